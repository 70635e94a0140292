#pragma once

#include <QAbstractListModel>
#include <QtQml/qqml.h>

/// The screens as rows: roles `screen`, `title`, `symbol` and `shortcut` (its digit key).
class ScreenList : public QAbstractListModel
{
    Q_OBJECT
    QML_ELEMENT
public:
    enum Role { ScreenRole = Qt::UserRole, TitleRole, SymbolRole, ShortcutRole };

    using QAbstractListModel::QAbstractListModel;

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;
};
