#pragma once

#include "kit/rowmodel.h"

#include <QSet>
#include <QtQml/qqml.h>

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
