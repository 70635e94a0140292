// The base of every list that QML shows.
//
// Leaf target hv_row_model. For the main thread.
#pragma once

#include <QAbstractListModel>
#include <QByteArray>
#include <QList>
#include <QVariant>

#include <functional>
#include <type_traits>
#include <utility>

/// A list of records of one type, each seen by QML through the roles of a table:
///
///     showRows<Module>(library.modules(), {
///         { "moduleID", &Module::id },
///         { "open", [](const Module &module) { return isOpen(module); } },
///         { "number", [](const Module &, int row) { return row + 1; } },
///     });
///
/// A role is worked out whenever it is asked for, so it may depend on more than the record; after
/// that has changed, refresh() has it asked for again. A derived class shows its rows in its
/// constructor at the latest, empty ones too: a view reads the names of the roles but once.
///
/// The base is no template, because the class that moc and the QML compiler see has to have a name
/// that they know.
class RowModel : public QAbstractListModel
{
    Q_OBJECT
    Q_PROPERTY(int count READ count NOTIFY countChanged)
public:
    [[nodiscard]] int count() const { return m_count; }

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const final;
    /// Nothing for a row or a role that there isn't.
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const final;
    /// The roles of the table, from Qt::UserRole on in its order.
    [[nodiscard]] QHash<int, QByteArray> roleNames() const final;

Q_SIGNALS:
    void countChanged();

protected:
    /// A name for QML and what it gives: a member of the record, or a function of the record or of
    /// the record and the number of its row, from 0. Both work for rows that are pointers too.
    template <typename Row>
    struct Role {
        template <typename Value>
        Role(const char *called, Value given)
            : name(called)
            , value([given = std::move(given)](const Row &row, int number) {
                if constexpr (std::is_invocable_v<Value, const Row &, int>)
                    return QVariant::fromValue(std::invoke(given, row, number));
                else
                    return QVariant::fromValue(std::invoke(given, row));
            })
        { }

        QByteArray name;
        std::function<QVariant(const Row &row, int number)> value;
    };

    using QAbstractListModel::QAbstractListModel;

    /// Puts these rows in the place of all others. The names of the roles stay the same from call
    /// to call.
    template <typename Row>
    void showRows(QList<Row> rows, QList<Role<Row>> roles)
    {
        QList<QByteArray> names;
        for (const Role<Row> &role : std::as_const(roles))
            names.append(role.name);
        const int count = int(rows.size());
        reset(count, std::move(names),
            [rows = std::move(rows), roles = std::move(roles)](
                int row, int role) { return roles.at(role).value(rows.at(row), row); });
    }

    /// Tells that this role of every row may have changed.
    void refresh(QByteArrayView role);

private:
    using Cells = std::function<QVariant(int row, int role)>;

    void reset(int count, QList<QByteArray> roleNames, Cells cells);

    int m_count = 0;
    QList<QByteArray> m_roleNames;
    Cells m_cells;
};
