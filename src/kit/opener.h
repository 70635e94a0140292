// The one way by which an address leaves the program: to the user's own browser.
#pragma once

#include <QString>
#include <QUrl>

#include <functional>

namespace Opener {

/// Hands a web address to the platform's browser. Anything but a whole http or https address with a
/// host stays here: a course file must not be able to start a program.
void open(const QUrl &address);

/// The same for an address as a text; one that isn't an address does nothing.
void open(const QString &address);

/// The host that open() would lead to, such as "www.example.com"; empty for what stays here.
[[nodiscard]] QString destination(const QString &address);

/// What open() hands addresses to. An empty action puts the platform's browser back.
void setAction(std::function<void(const QUrl &address)> action);

} // namespace Opener
