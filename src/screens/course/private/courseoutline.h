// The contents of the course: its modules, and the lessons of one of them.
#pragma once

#include <QAbstractListModel>
#include <QtQml/qqml.h>

#include <QSet>

/// The modules as rows of the contents: roles `moduleID`, `title`, `open` and `quizOpen`.
class CourseOutline : public QAbstractListModel
{
    Q_OBJECT
    QML_ELEMENT
public:
    enum Role { ModuleIDRole = Qt::UserRole, TitleRole, OpenRole, QuizOpenRole };

    explicit CourseOutline(QObject *parent = nullptr);

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

    /// Opens a module in the contents, or closes it if it is the open one. What is being read
    /// stays.
    Q_INVOKABLE void toggleModule(const QString &moduleID);
    Q_INVOKABLE void showLesson(const QString &lessonID);
    Q_INVOKABLE void showQuiz(const QString &moduleID);

private:
    void refresh(Role role);
};

/// The lessons of a module: roles `lessonID`, `number` (from 1), `title`, `minutes`, `finished`
/// and `current`.
class LessonList : public QAbstractListModel
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString moduleID READ moduleID WRITE setModuleID NOTIFY moduleIDChanged)
public:
    enum Role {
        LessonIDRole = Qt::UserRole,
        NumberRole,
        TitleRole,
        MinutesRole,
        FinishedRole,
        CurrentRole,
    };

    explicit LessonList(QObject *parent = nullptr);

    [[nodiscard]] QString moduleID() const { return m_moduleID; }
    void setModuleID(const QString &id);

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void moduleIDChanged();

private:
    void refreshFinished();
    void refreshCurrent();

    QString m_moduleID;
    QList<const struct Lesson *> m_lessons; ///< Into the library, which never changes.
    QSet<QString> m_finished;
};
