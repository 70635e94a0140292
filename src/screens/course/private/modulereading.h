#pragma once

#include <QObject>
#include <QtQml/qqml.h>

/// The texts of a module's introduction. An id that names no module gives the placeholder
/// "Course".
class ModuleReading : public QObject
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
