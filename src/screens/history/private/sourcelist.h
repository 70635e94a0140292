#pragma once

#include "kit/rowmodel.h"

#include <QtQml/qqml.h>

/// Pages of the web that a text rests on: roles `title`, `address`, `host` (empty for an address
/// that leads nowhere) and `checked`.
class SourceList : public RowModel
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Handed out by the models of the screens")
public:
    explicit SourceList(QObject *parent = nullptr);

    void setSources(const QList<struct Citation> &sources);
};
