#include "kit/rowmodel.h"

int RowModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_count;
}

QVariant RowModel::data(const QModelIndex &index, int role) const
{
    const int column = role - Qt::UserRole;
    if (!checkIndex(index, CheckIndexOption::IndexIsValid) || column < 0
        || column >= m_roleNames.size())
        return {};
    return m_cells(index.row(), column);
}

QHash<int, QByteArray> RowModel::roleNames() const
{
    QHash<int, QByteArray> names;
    for (int i = 0; i < m_roleNames.size(); ++i)
        names.insert(Qt::UserRole + i, m_roleNames.at(i));
    return names;
}

void RowModel::refresh(QByteArrayView role)
{
    const int column = int(m_roleNames.indexOf(role));
    Q_ASSERT(column >= 0);
    if (m_count > 0)
        Q_EMIT dataChanged(index(0), index(m_count - 1), { Qt::UserRole + column });
}

void RowModel::reset(int count, QList<QByteArray> roleNames, Cells cells)
{
    Q_ASSERT(m_roleNames.isEmpty() || m_roleNames == roleNames);
    const bool changes = m_count != count;
    beginResetModel();
    m_count = count;
    m_roleNames = std::move(roleNames);
    m_cells = std::move(cells);
    endResetModel();
    if (changes)
        Q_EMIT countChanged();
}
