// The contents of the course: its modules, and the lessons of one of them.
#pragma once

#include "kit/rowmodel.h"

#include <QtQml/qqml.h>

#include <QSet>

/// The modules as rows of the contents: roles `moduleID`, `title`, `open` and `quizOpen`.
class CourseOutline : public RowModel
{
    Q_OBJECT
    QML_ELEMENT
public:
    explicit CourseOutline(QObject *parent = nullptr);

    /// Opens a module in the contents, or closes it if it is the open one. What is being read
    /// stays.
    Q_INVOKABLE void toggleModule(const QString &moduleID);
    Q_INVOKABLE void showLesson(const QString &lessonID);
    Q_INVOKABLE void showQuiz(const QString &moduleID);
};

/// The lessons of a module: roles `lessonID`, `number` (from 1), `title`, `minutes`, `finished`
/// and `current`.
class LessonList : public RowModel
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString moduleID READ moduleID WRITE setModuleID NOTIFY moduleIDChanged)
public:
    explicit LessonList(QObject *parent = nullptr);

    [[nodiscard]] QString moduleID() const { return m_moduleID; }
    void setModuleID(const QString &id);

Q_SIGNALS:
    void moduleIDChanged();

private:
    void show();
    void follow();

    QString m_moduleID;
    QSet<QString> m_finished;
};
