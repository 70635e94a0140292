#pragma once

#include "kit/rowmodel.h"

#include <QtQml/qqml.h>

/// Products named as examples of a kind of gear: roles `name`, `use`, `specs`, `address`, `host`
/// (empty for an address that leads nowhere) and `checked`.
class ExampleList : public RowModel
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Handed out by GearReading")
public:
    explicit ExampleList(QObject *parent = nullptr);

    void setExamples(const QList<struct GearModel> &examples);
};
