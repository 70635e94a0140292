#pragma once

#include "screens/common/itemlist.h"

#include <QObject>
#include <QtQml/qqml.h>

/// A lesson as the reader shows it, with the user's marks on it and the ways on from it.
class LessonReading : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString lessonID READ lessonID WRITE setLessonID NOTIFY lessonChanged)
    Q_PROPERTY(QString moduleTitle READ moduleTitle NOTIFY lessonChanged)
    Q_PROPERTY(QString title READ title NOTIFY lessonChanged)
    Q_PROPERTY(QString body READ body NOTIFY lessonChanged)
    Q_PROPERTY(int minutes READ minutes NOTIFY lessonChanged)
    Q_PROPERTY(bool hasPrevious READ hasPrevious NOTIFY lessonChanged)
    Q_PROPERTY(bool hasNext READ hasNext NOTIFY lessonChanged)
    Q_PROPERTY(ItemList *gear READ gear CONSTANT)
    Q_PROPERTY(ItemList *videos READ videos CONSTANT)
    Q_PROPERTY(bool finished READ finished NOTIFY marksChanged)
    Q_PROPERTY(bool bookmarked READ bookmarked NOTIFY marksChanged)
public:
    explicit LessonReading(QObject *parent = nullptr);

    [[nodiscard]] QString lessonID() const { return m_lessonID; }
    void setLessonID(const QString &id);
    [[nodiscard]] QString moduleTitle() const;
    [[nodiscard]] QString title() const;
    [[nodiscard]] QString body() const;
    [[nodiscard]] int minutes() const;
    [[nodiscard]] bool hasPrevious() const;
    [[nodiscard]] bool hasNext() const;
    /// Entries and videos that belong to the lesson; ids that name none are left out.
    [[nodiscard]] ItemList *gear() { return &m_gear; }
    [[nodiscard]] ItemList *videos() { return &m_videos; }
    [[nodiscard]] bool finished() const;
    [[nodiscard]] bool bookmarked() const;

    Q_INVOKABLE void toggleFinished();
    Q_INVOKABLE void toggleBookmark();
    Q_INVOKABLE void addNote();
    Q_INVOKABLE void goToPrevious();
    /// Marks the lesson as finished and goes on, even if the mark could not be written.
    Q_INVOKABLE void finishAndGoOn();

Q_SIGNALS:
    void lessonChanged();
    void marksChanged();

private:
    [[nodiscard]] const struct Lesson *lesson() const;
    void setFinished(bool finished);

    QString m_lessonID;
    ItemList m_gear;
    ItemList m_videos;
};
