#pragma once

#include "kit/rowmodel.h"

#include <QtQml/qqml.h>

/// The categories to choose from, "All" first: roles `optionID` and `title`.
class GearCategories : public RowModel
{
    Q_OBJECT
    QML_ELEMENT
public:
    explicit GearCategories(QObject *parent = nullptr);
};
