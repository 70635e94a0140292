// The encyclopedia's decisions: which entries its list shows and which one is open.
#pragma once

#include <QList>
#include <QString>
#include <QStringView>

#include <optional>

class ContentLibrary;
struct GearEntry;

namespace GearShelf {

/// The name of the choice that hides nothing.
inline const QString allCategories = QStringLiteral("All");

/// What the list shows. A query that holds more than blanks is searched for, and its hits stand
/// best first, at most 200; else all entries stand in the course's order. The category holds for
/// hits too. The pointers are into the library.
[[nodiscard]] QList<const GearEntry *> shown(
    const QString &query, const QString &category, const ContentLibrary &library);

/// The entry that the page shows: the chosen one, whether it is listed or not, and without a choice
/// the first of the list. Nothing for an id that names no entry, and for an empty list.
[[nodiscard]] const GearEntry *open(const std::optional<QString> &gearID,
    const QList<const GearEntry *> &shown, const ContentLibrary &library);

/// "1 match", "0 matches".
[[nodiscard]] QString matches(qsizetype count);

/// The line under an entry's name; empty without other names.
[[nodiscard]] QString alsoCalled(const GearEntry &entry);

/// The line under an example's specifications; empty for one that was never checked.
[[nodiscard]] QString checkedLine(const QString &day);

} // namespace GearShelf
