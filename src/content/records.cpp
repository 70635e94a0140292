#include "content/records.h"

QString GearEntry::summary() const
{
    return body.left(body.indexOf(QLatin1String("\n\n")));
}

QString Video::length() const
{
    return QString::asprintf("%lld:%02lld", seconds / 60, seconds % 60);
}
