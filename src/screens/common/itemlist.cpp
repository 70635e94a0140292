#include "screens/common/itemlist.h"

void ItemList::setItems(const QList<Item> &items)
{
    if (m_items == items)
        return;
    beginResetModel();
    m_items = items;
    endResetModel();
    Q_EMIT countChanged();
}

int ItemList::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : count();
}

QVariant ItemList::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Item &item = m_items.at(index.row());
    switch (role) {
    case ItemIDRole:
        return item.id;
    case TitleRole:
        return item.title;
    default:
        return {};
    }
}

QHash<int, QByteArray> ItemList::roleNames() const
{
    return { { ItemIDRole, "itemID" }, { TitleRole, "title" } };
}
