// A course small enough to know by heart, as the files that a ContentLibrary reads.
//
//     lessons       a1-l1, a1-l2 (module a1), a2-l1 (module a2)
//     questions     a1-q1, a1-q2 (module a1)
//     gear          tripod (Supports), fast-prime (Lenses)
//     history       obscura (1015), daguerre (1839)
//     videos        vid-light (module a1), vid-lens (module a2)
//     software      darkroom
//     workflow      load, develop
//
// "tripod" stands in lessons, gear and videos alike; "f/1.4" in the body of a1-l2 alone.
#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>

namespace TestCourse {

/// The texts of the seven course files, each under its file's name.
using Files = QMap<QString, QByteArray>;

/// The whole course; a test takes out or replaces what it wants otherwise.
[[nodiscard]] Files files();

/// Writes files into a folder, which is created if it is missing.
void write(const QString &folder, const Files &files = TestCourse::files());

/// Makes these files, read from `folder`, the course of this process.
void share(const QString &folder, const Files &files = TestCourse::files());

} // namespace TestCourse
