#include "screens/gear/private/gearlist.h"

#include "screens/gear/gearshelf.h"

#include "content/contentlibrary.h"
#include "shell/appmodel.h"

#include <algorithm>

GearList::GearList(QObject *parent)
    : RowModel(parent)
    , m_category(GearShelf::allCategories)
    , m_shown(
          GearShelf::shown(AppModel::shared().gearQuery(), m_category, ContentLibrary::shared()))
{
    show();
    const AppModel *model = &AppModel::shared();
    connect(model, &AppModel::gearQueryChanged, this, &GearList::follow);
    connect(model, &AppModel::gearIDChanged, this, [this] {
        refresh("selected");
        Q_EMIT openChanged();
    });
}

void GearList::setCategory(const QString &category)
{
    if (m_category == category)
        return;
    m_category = category;
    Q_EMIT categoryChanged();
    follow();
}

void GearList::follow()
{
    QList<const GearEntry *> shown
        = GearShelf::shown(AppModel::shared().gearQuery(), m_category, ContentLibrary::shared());
    // The same rows stay where they are scrolled to.
    if (shown != m_shown) {
        m_shown = std::move(shown);
        show();
    }
    Q_EMIT shownChanged();
    Q_EMIT openChanged();
}

void GearList::show()
{
    showRows<const GearEntry *>(m_shown,
        {
            { "entryID", &GearEntry::id },
            { "name", &GearEntry::name },
            { "category", &GearEntry::category },
            { "diagram", &GearEntry::diagram },
            { "exampleCount", [](const GearEntry *entry) { return int(entry->models.size()); } },
            { "selected",
                [](const GearEntry *entry) { return AppModel::shared().gearID() == entry->id; } },
        });
}

bool GearList::isSearching() const
{
    return !AppModel::shared().gearQuery().isEmpty();
}

QString GearList::outcome() const
{
    return isSearching() ? GearShelf::matches(m_shown.size()) : QString();
}

int GearList::selectedRow() const
{
    const AppModel::OptionalText &id = AppModel::shared().gearID();
    const auto isSelected = [&id](const GearEntry *entry) { return id == entry->id; };
    const auto found = std::find_if(m_shown.begin(), m_shown.end(), isSelected);
    return found == m_shown.end() ? -1 : int(found - m_shown.begin());
}

QString GearList::openID() const
{
    const GearEntry *entry
        = GearShelf::open(AppModel::shared().gearID(), m_shown, ContentLibrary::shared());
    return entry ? entry->id : QString();
}

void GearList::open(int row) const
{
    if (row >= 0 && row < m_shown.size())
        AppModel::shared().setGearID(m_shown.at(row)->id);
}
