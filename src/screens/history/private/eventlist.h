#pragma once

#include "kit/rowmodel.h"

#include <QtQml/qqml.h>

struct TimelineEvent;

/// The timeline, era by era: roles `eventID`, `year`, `title`, `era` and `selected`.
class EventList : public RowModel
{
    Q_OBJECT
    QML_ELEMENT
    /// The row of the selected event; −1 if none is selected.
    Q_PROPERTY(int selectedRow READ selectedRow NOTIFY selectedRowChanged)
public:
    explicit EventList(QObject *parent = nullptr);

    [[nodiscard]] int selectedRow() const;

    /// Selects the event in this row; none that there isn't.
    Q_INVOKABLE void open(int row) const;

Q_SIGNALS:
    void selectedRowChanged();

private:
    QList<const TimelineEvent *> m_events;
};
