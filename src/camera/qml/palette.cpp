#include "palette.h"

#include "kit/preferences.h"

CameraPalette::CameraPalette(QObject *parent)
    : QObject(parent)
{
    connect(&Preferences::shared(), &Preferences::changed, this, [this](const QString &key) {
        if (key != CRVNThemes::key)
            return;
        m_current = HVColors();
        Q_EMIT currentChanged();
    });
}

QColor CameraPalette::levelColor(const QString &level, const HVColors &c) const
{
    return ::levelColor(level, c);
}
