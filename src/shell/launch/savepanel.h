#pragma once

#include <QString>
#include <QWindow>

#include <optional>

namespace Launch {

/// The platform's own dialog for the place and name of a text file, over a window, with this name
/// suggested; Qt's where the platform has none. Blocks the program until it is closed. Nothing if
/// the user cancels it. Needs a QApplication.
[[nodiscard]] std::optional<QString> askWhereToSave(QWindow *window, const QString &suggestedName);

} // namespace Launch
