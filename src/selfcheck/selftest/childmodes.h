// The modes in which the self-test starts the program a second time, to see that a process reads
// what another has written.
#pragma once

#include <QString>
#include <QStringList>

#include <functional>
#include <optional>

namespace HVSelfTest {

/// One of the notes that are written: what a text of the user's may hold beside plain letters.
inline const QString kWrittenNote
    = QStringLiteral("Aperture = the hole. Bigger hole, smaller f-number. ✓ ünïcödé");

/// Handles "--hv-child-write PATH", which fills the progress file at PATH with some of everything
/// that there is to store, and "--hv-child-read PATH", which only reads it. Where both stand,
/// writing goes first. Each prints the digest of the file as a line "DIGEST|…", and reading then a
/// line "COUNTS|lessons|quiz results|bookmarks|notes".
///
/// Returns the exit status: 0; 3, with nothing printed, if the file can't be opened as a progress
/// file; 4 and a line "ERROR|…" if it can't be written. Nothing if neither option stands in front
/// of another argument.
///
/// Needs no application object, no display and no file but that one.
[[nodiscard]] std::optional<int> handleChild(const QStringList &arguments);

/// How a child has ended and what it has printed; empty if that isn't UTF-8.
struct ChildResult {
    int status = 0;
    QString output;
};

using ChildRunner = std::function<ChildResult(const QStringList &arguments)>;

/// Runs this program once more and waits for its end. The status is 99 if the program can't tell
/// where it lies, 98 if it can't be started. Needs an application object.
[[nodiscard]] ChildResult runChild(const QStringList &arguments);

} // namespace HVSelfTest
