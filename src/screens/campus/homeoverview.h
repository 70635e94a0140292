#pragma once

#include "kit/rowmodel.h"

#include <QSet>
#include <QtQml/qqml.h>

/// The Campus screen's figures and texts: progress over the whole course, the lesson to go on
/// with, and a row for each module (roles `moduleID`, `level`, `title`, `summary`, `doneIn`,
/// `lessonsIn`).
class HomeOverview : public RowModel
{
    Q_OBJECT
    QML_ELEMENT
    /// Size of the finished set, lessons that have left the course included.
    Q_PROPERTY(int done READ done NOTIFY progressChanged)
    Q_PROPERTY(int total READ total CONSTANT)
    /// The label of the button that goes on; empty in a course without lessons.
    Q_PROPERTY(QString continueTitle READ continueTitle NOTIFY progressChanged)
public:
    explicit HomeOverview(QObject *parent = nullptr);

    [[nodiscard]] int done() const { return int(m_finished.size()); }
    [[nodiscard]] int total() const;
    [[nodiscard]] QString continueTitle() const;

Q_SIGNALS:
    void progressChanged();

private:
    void follow();

    QSet<QString> m_finished;
};
