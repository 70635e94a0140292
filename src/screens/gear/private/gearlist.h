#pragma once

#include "kit/rowmodel.h"

#include <QtQml/qqml.h>

struct GearEntry;

/// The entries that the encyclopedia's list shows, following AppModel's query and selection: roles
/// `entryID`, `name`, `category`, `diagram`, `exampleCount` and `selected`.
class GearList : public RowModel
{
    Q_OBJECT
    QML_ELEMENT
    /// "All" or the category that alone is shown.
    Q_PROPERTY(QString category READ category WRITE setCategory NOTIFY categoryChanged)
    /// Whether anything stands in the search field, blanks included.
    Q_PROPERTY(bool searching READ isSearching NOTIFY shownChanged)
    /// How many entries a search has found, as a text.
    Q_PROPERTY(QString outcome READ outcome NOTIFY shownChanged)
    /// The row of the selected entry; −1 if it isn't listed or none is selected.
    Q_PROPERTY(int selectedRow READ selectedRow NOTIFY openChanged)
    /// The id of the entry that the page shows; empty if it shows none.
    Q_PROPERTY(QString openID READ openID NOTIFY openChanged)
public:
    explicit GearList(QObject *parent = nullptr);

    [[nodiscard]] QString category() const { return m_category; }
    void setCategory(const QString &category);
    [[nodiscard]] bool isSearching() const;
    [[nodiscard]] QString outcome() const;
    [[nodiscard]] int selectedRow() const;
    [[nodiscard]] QString openID() const;

    /// Selects the entry in this row; none that there isn't.
    Q_INVOKABLE void open(int row) const;

Q_SIGNALS:
    void categoryChanged();
    void shownChanged();
    void openChanged();

private:
    void follow();
    void show();

    QString m_category;
    QList<const GearEntry *> m_shown;
};
