#pragma once

#include "kit/rowmodel.h"

#include <QtQml/qqml.h>

/// The themes as rows of a single-choice menu: roles `name`, `themeID` and `themeChecked`. The
/// preference may name a theme that is gone; then
/// no row is checked.
class ThemeList : public RowModel
{
    Q_OBJECT
    QML_ELEMENT
public:
    explicit ThemeList(QObject *parent = nullptr);

    Q_INVOKABLE void choose(const QString &themeID);
};
