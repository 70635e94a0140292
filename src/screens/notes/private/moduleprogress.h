#pragma once

#include "kit/rowmodel.h"

#include <QSet>
#include <QtQml/qqml.h>

/// How far each module has got: roles `title`, `done`, `total` (lessons) and `quiz`, the best score
/// in words.
class ModuleProgress : public RowModel
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString caption READ caption NOTIFY captionChanged)
public:
    explicit ModuleProgress(QObject *parent = nullptr);

    [[nodiscard]] QString caption() const;

Q_SIGNALS:
    void captionChanged();

private:
    void follow();

    QSet<QString> m_finished;
};
