#pragma once

#include "kit/rowmodel.h"
#include "screens/videos/videoshelf.h"

#include <QtQml/qqml.h>

/// The films that the library's list shows, following its filter and AppModel's selection: roles
/// `videoID`, `title`, `byline`, `moduleID` and `selected`.
class VideoList : public RowModel
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString filter READ filter WRITE setFilter NOTIFY filterChanged)
    /// Whether the filter holds more than blanks.
    Q_PROPERTY(bool filtering READ isFiltering NOTIFY filterChanged)
    /// How many films a filter has found, as a text.
    Q_PROPERTY(QString outcome READ outcome NOTIFY filterChanged)
    /// The row of the selected film; −1 if it isn't listed or none is selected.
    Q_PROPERTY(int selectedRow READ selectedRow NOTIFY openChanged)
    /// The id of the film that the page is about; empty if it is about none.
    Q_PROPERTY(QString openID READ openID NOTIFY openChanged)
public:
    explicit VideoList(QObject *parent = nullptr);

    [[nodiscard]] QString filter() const { return m_filter; }
    void setFilter(const QString &filter);
    [[nodiscard]] bool isFiltering() const;
    [[nodiscard]] QString outcome() const;
    [[nodiscard]] int selectedRow() const;
    [[nodiscard]] QString openID() const;

    /// Selects the film in this row; none that there isn't.
    Q_INVOKABLE void open(int row) const;
    /// What stands over the films of a module.
    Q_INVOKABLE [[nodiscard]] QString caption(const QString &moduleID) const;

Q_SIGNALS:
    void filterChanged();
    void openChanged();

private:
    void show();

    QString m_filter;
    QList<const Video *> m_shown;
    QList<VideoShelf::Row> m_rows;
};
