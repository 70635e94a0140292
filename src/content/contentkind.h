// The words for what can be pointed at in the course.
//
// Part of the leaf hv_records. A search hit says what it is, and a bookmark or a note what it is
// tied to, by one of these and an id among those of its kind. The words stand in users' files: none
// may ever change.
#pragma once

#include <QString>

namespace ContentKind {

inline const QString lesson = QStringLiteral("lesson");
inline const QString gear = QStringLiteral("gear");       ///< An article of the encyclopedia.
inline const QString history = QStringLiteral("history"); ///< An event of the timeline.
inline const QString video = QStringLiteral("video");
inline const QString software = QStringLiteral("software"); ///< Only found, never tied to.
inline const QString general = QStringLiteral("general");   ///< Tied to nothing; never found.

} // namespace ContentKind
