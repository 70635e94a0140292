#pragma once

#include <QAbstractListModel>
#include <QtQml/qqml.h>

/// The screens as rows: roles `screen`, `title`, `symbol` and `shortcut`, a digit key as long as
/// there are digits.
class ScreenList : public QAbstractListModel
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(int count READ count CONSTANT)
    /// The QML types that show them, in the same order.
    Q_PROPERTY(QStringList components READ components CONSTANT)
public:
    enum Role { ScreenRole = Qt::UserRole, TitleRole, SymbolRole, ShortcutRole };

    using QAbstractListModel::QAbstractListModel;

    [[nodiscard]] int count() const;
    [[nodiscard]] QStringList components() const;

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;
};
