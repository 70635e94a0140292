#pragma once

#include <QObject>
#include <QtQml/qqml.h>

/// What the right pane of the course screen shows, following AppModel's selection.
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
