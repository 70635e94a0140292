#include "palette.h"

#include "kit/preferences.h"

CameraPalette::CameraPalette(QObject *parent)
    : QObject(parent)
{
    Preferences::shared().follow(CRVNThemes::key, this, [this] {
        m_current = HVColors();
        Q_EMIT currentChanged();
    });
}

QColor CameraPalette::levelColor(const QString &level, const HVColors &c) const
{
    return ::levelColor(level, c);
}
