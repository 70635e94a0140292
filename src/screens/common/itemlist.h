#pragma once

#include "kit/rowmodel.h"

#include <QtQml/qqml.h>

/// A list of things to go to: roles `itemID` and `title`.
class ItemList : public RowModel
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Handed out by the models of the screens")
public:
    struct Item {
        QString id;
        QString title;

        friend bool operator==(const Item &, const Item &) = default;
    };

    explicit ItemList(QObject *parent = nullptr);

    void setItems(const QList<Item> &items);

private:
    void show();

    QList<Item> m_items;
};
