// What the About window tells: the application's version, its own lines, and whose it is.
//
// The window itself registers with setOpener(). Main thread only.
#pragma once

#include <QDate>
#include <QString>
#include <QStringList>

#include <functional>

namespace CRVNAbout {

/// What the application says of itself; empty at first.
[[nodiscard]] QStringList extraLines();
void setExtraLines(const QStringList &lines);

/// "Version 1.0 (1)" from the version record handed to CRVNKit::install. A build without a number
/// has no parentheses, an application without a version nothing behind the word.
[[nodiscard]] QString version();

/// "© 2026 Corvane", with the year of `today`.
[[nodiscard]] QString copyrightLine(QDate today = QDate::currentDate());

/// Has the window shown. Does nothing until one has been registered.
void show();
void setOpener(std::function<void()> opener);

} // namespace CRVNAbout
