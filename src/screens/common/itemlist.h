#pragma once

#include <QAbstractListModel>
#include <QtQml/qqml.h>

/// A list of things to go to: roles `itemID` and `title`.
class ItemList : public QAbstractListModel
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Handed out by the models of the screens")
    Q_PROPERTY(int count READ count NOTIFY countChanged)
public:
    struct Item {
        QString id;
        QString title;

        friend bool operator==(const Item &, const Item &) = default;
    };
    enum Role { ItemIDRole = Qt::UserRole, TitleRole };

    using QAbstractListModel::QAbstractListModel;

    void setItems(const QList<Item> &items);
    [[nodiscard]] int count() const { return int(m_items.size()); }

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void countChanged();

private:
    QList<Item> m_items;
};
