#include "optionlist.h"

#include "simulator/scales.h"

LightList::LightList(QObject *parent)
    : OptionList(parent)
{
    QList<Option> options;
    for (const LightLevel &level : LightLevel::all())
        options.append({ level.id, level.name });
    show(options);
}

FormatList::FormatList(QObject *parent)
    : OptionList(parent)
{
    QList<Option> options;
    for (const SensorFormat &format : SensorFormat::all())
        options.append({ format.id, format.name });
    show(options);
}
