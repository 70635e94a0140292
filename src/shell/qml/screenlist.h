#pragma once

#include "kit/rowmodel.h"

#include <QtQml/qqml.h>

/// The screens as rows: roles `screen`, `title`, `symbol` and `shortcut`, a digit key as long as
/// there are digits.
class ScreenList : public RowModel
{
    Q_OBJECT
    QML_ELEMENT
    /// The QML types that show them, in the same order.
    Q_PROPERTY(QStringList components READ components CONSTANT)
public:
    explicit ScreenList(QObject *parent = nullptr);

    [[nodiscard]] QStringList components() const;
};
