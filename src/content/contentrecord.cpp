#include "content/contentrecord.h"

QStringView ContentRecord::first(QStringView key) const
{
    for (const Field &field : fields) {
        if (field.key == key)
            return field.value;
    }
    return {};
}

QList<QStringView> ContentRecord::all(QStringView key) const
{
    QList<QStringView> values;
    for (const Field &field : fields) {
        if (field.key == key)
            values.append(field.value);
    }
    return values;
}
