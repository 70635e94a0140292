// What a launch asks the camera to show: an argument of the command line, a desktop's action, a
// word from one process to the other.
#pragma once

#include <QString>
#include <QStringList>
#include <QStringView>

#include <optional>

namespace Launch {

/// What these arguments ask for, as one word without blanks: "continue" for "--continue", the id of
/// a screen for "--screen ID", empty if they ask for nothing. The last one counts. Nothing if
/// "--screen" stands without the id of a screen behind it.
[[nodiscard]] std::optional<QString> requestIn(const QStringList &arguments);

/// One line that tells how "--screen" is used, with all ids.
[[nodiscard]] QString usageOfScreen();

/// Does what the word asks for: goes on with the course, or to the screen, and closes the search
/// results that would cover it. Any other word does nothing. Call it once course and progress file
/// are there.
void fulfill(QStringView request);

} // namespace Launch
