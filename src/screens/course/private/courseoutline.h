#pragma once

#include "kit/rowmodel.h"

#include <QtQml/qqml.h>

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
