#include "screens/common/itemlist.h"

ItemList::ItemList(QObject *parent)
    : RowModel(parent)
{
    show();
}

void ItemList::setItems(const QList<Item> &items)
{
    if (m_items == items)
        return;
    m_items = items;
    show();
}

void ItemList::show()
{
    showRows<Item>(m_items, { { "itemID", &Item::id }, { "title", &Item::title } });
}
