#include "screens/gear/gearshelf.h"

#include "content/contentkind.h"
#include "content/contentlibrary.h"
#include "content/text.h"

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 kMostHits = 200;

QList<const GearEntry *> found(const QString &query, const ContentLibrary &library)
{
    QList<const GearEntry *> entries;
    for (const ContentLibrary::Hit &hit : library.search(query, ContentKind::gear, kMostHits)) {
        if (const GearEntry *entry = library.gearEntry(hit.ref))
            entries.append(entry);
    }
    return entries;
}

QList<const GearEntry *> all(const ContentLibrary &library)
{
    QList<const GearEntry *> entries;
    entries.reserve(library.gear().size());
    for (const GearEntry &entry : library.gear())
        entries.append(&entry);
    return entries;
}

} // namespace

namespace GearShelf {

QList<const GearEntry *> shown(
    const QString &query, const QString &category, const ContentLibrary &library)
{
    const QString words = Text::trimmedBlanks(query).toString();
    QList<const GearEntry *> entries = words.isEmpty() ? all(library) : found(words, library);
    if (category != allCategories)
        entries.removeIf(
            [&category](const GearEntry *entry) { return entry->category != category; });
    return entries;
}

const GearEntry *open(const std::optional<QString> &gearID, const QList<const GearEntry *> &shown,
    const ContentLibrary &library)
{
    if (gearID)
        return library.gearEntry(*gearID);
    return shown.isEmpty() ? nullptr : shown.first();
}

QString matches(qsizetype count)
{
    return count == 1 ? u"1 match"_s : u"%1 matches"_s.arg(count);
}

QString alsoCalled(const GearEntry &entry)
{
    return entry.aka.isEmpty() ? QString() : u"Also called: "_s + entry.aka;
}

QString checkedLine(const QString &day)
{
    return day.isEmpty() ? QString() : u"Specs checked "_s + day + u" on the maker's page"_s;
}

} // namespace GearShelf
