// The right pane of the course screen: which of its three contents it shows, and their texts.
#pragma once

#include "screens/common/itemlist.h"

#include "screens/course/courseflow.h"

#include <QObject>
#include <QtQml/qqml.h>

/// What the right pane shows, following AppModel's selection.
class CourseReading : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(Kind kind READ kind NOTIFY changed)
    /// The id of the lesson; empty while none is shown.
    Q_PROPERTY(QString lessonID READ lessonID NOTIFY changed)
    /// The id of the quiz's or the introduced module; empty in a course without modules.
    Q_PROPERTY(QString moduleID READ moduleID NOTIFY changed)
public:
    enum Kind { Quiz, Lesson, ModuleIntro };
    Q_ENUM(Kind)

    explicit CourseReading(QObject *parent = nullptr);

    [[nodiscard]] Kind kind() const { return m_kind; }
    [[nodiscard]] QString lessonID() const { return m_lessonID; }
    [[nodiscard]] QString moduleID() const { return m_moduleID; }

Q_SIGNALS:
    void changed();

private:
    void refresh();

    Kind m_kind = ModuleIntro;
    QString m_lessonID;
    QString m_moduleID;
};

/// The texts of a module's introduction. An id that names no module gives the placeholder
/// "Course".
class ModuleIntroduction : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString moduleID READ moduleID WRITE setModuleID NOTIFY moduleIDChanged)
    Q_PROPERTY(QString level READ level NOTIFY moduleIDChanged)
    Q_PROPERTY(QString title READ title NOTIFY moduleIDChanged)
    Q_PROPERTY(QString summary READ summary NOTIFY moduleIDChanged)
    Q_PROPERTY(QString quizTitle READ quizTitle NOTIFY moduleIDChanged)
public:
    using QObject::QObject;

    [[nodiscard]] QString moduleID() const { return m_moduleID; }
    void setModuleID(const QString &id);
    [[nodiscard]] QString level() const;
    [[nodiscard]] QString title() const;
    [[nodiscard]] QString summary() const;
    [[nodiscard]] QString quizTitle() const;

    Q_INVOKABLE void showLesson(const QString &lessonID);
    Q_INVOKABLE void showQuiz();

Q_SIGNALS:
    void moduleIDChanged();

private:
    QString m_moduleID;
};

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
