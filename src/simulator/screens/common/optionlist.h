#pragma once

#include "kit/rowmodel.h"

#include <QtQml/qqml.h>

/// What a picker offers: roles `optionID` and `title`.
class OptionList : public RowModel
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("A list of options is one of its kinds")
protected:
    using RowModel::RowModel;

    struct Option {
        QString id;
        QString title;
    };

    void show(const QList<Option> &options)
    {
        showRows<Option>(options, { { "optionID", &Option::id }, { "title", &Option::title } });
    }
};

/// The levels of light, brightest first.
class LightList : public OptionList
{
    Q_OBJECT
    QML_ELEMENT
public:
    explicit LightList(QObject *parent = nullptr);
};

/// The sensor and film sizes.
class FormatList : public OptionList
{
    Q_OBJECT
    QML_ELEMENT
public:
    explicit FormatList(QObject *parent = nullptr);
};
