#pragma once

#include "screens/history/private/sourcelist.h"

#include <QObject>
#include <QtQml/qqml.h>

/// The event that the history's page shows, following AppModel's selection, with the user's
/// bookmark on it.
class EventReading : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    /// Empty in a course without events.
    Q_PROPERTY(QString eventID READ eventID NOTIFY eventChanged)
    Q_PROPERTY(QString era READ era NOTIFY eventChanged)
    Q_PROPERTY(QString dateText READ dateText NOTIFY eventChanged)
    Q_PROPERTY(QString title READ title NOTIFY eventChanged)
    Q_PROPERTY(QString body READ body NOTIFY eventChanged)
    Q_PROPERTY(SourceList *sources READ sources CONSTANT)
    Q_PROPERTY(bool exists READ exists NOTIFY eventChanged)
    Q_PROPERTY(bool bookmarked READ isBookmarked NOTIFY marksChanged)
public:
    explicit EventReading(QObject *parent = nullptr);

    [[nodiscard]] bool exists() const { return m_event; }
    [[nodiscard]] QString eventID() const;
    [[nodiscard]] QString era() const;
    [[nodiscard]] QString dateText() const;
    [[nodiscard]] QString title() const;
    [[nodiscard]] QString body() const;
    [[nodiscard]] SourceList *sources() { return &m_sources; }
    [[nodiscard]] bool isBookmarked() const;

    Q_INVOKABLE void toggleBookmark();
    Q_INVOKABLE void addNote();

Q_SIGNALS:
    void eventChanged();
    void marksChanged();

private:
    void follow();

    const struct TimelineEvent *m_event = nullptr;
    SourceList m_sources;
};
