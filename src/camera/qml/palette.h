// The camera's sizes and its palette under their QML names, and the one place that QML takes the
// palette from.
#pragma once

#include "camera/geometry.h"
#include "camera/hvcolors.h"

#include <QObject>
#include <QtQml/qqml.h>

struct GeometryForQml {
    Q_GADGET
    QML_FOREIGN(Geometry)
    QML_NAMED_ELEMENT(Geometry)
    QML_SINGLETON
};

struct HVColorsForQml {
    Q_GADGET
    QML_FOREIGN(HVColors)
    QML_VALUE_TYPE(hvColors)
};

/// Hands the palette of the selected theme to the window, which hands it on as `c`. Everything
/// that takes `c` is drawn anew when the theme changes.
class CameraPalette : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(HVColors current READ current NOTIFY currentChanged)
public:
    explicit CameraPalette(QObject *parent = nullptr);

    [[nodiscard]] HVColors current() const { return m_current; }

    Q_INVOKABLE [[nodiscard]] QColor levelColor(const QString &level, const HVColors &c) const;

Q_SIGNALS:
    void currentChanged();

private:
    HVColors m_current;
};
