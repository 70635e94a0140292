#pragma once

#include "simulator/screens/common/sliderreading.h"
#include "simulator/screens/common/stopscale.h"

#include <QObject>
#include <QtQml/qqml.h>

struct StopScaleForQml {
    Q_GADGET
    QML_FOREIGN(StopScale)
    QML_VALUE_TYPE(stopScale)
};

/// The scales of the labs' dials, and how their sliders are read.
class LabScales : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(StopScale aperture READ aperture CONSTANT)
    Q_PROPERTY(StopScale shutter READ shutter CONSTANT)
    Q_PROPERTY(StopScale iso READ iso CONSTANT)
    Q_PROPERTY(StopScale focalLength READ focalLength CONSTANT)
public:
    using QObject::QObject;

    [[nodiscard]] StopScale aperture() const { return StopScales::aperture(); }
    [[nodiscard]] StopScale shutter() const { return StopScales::shutter(); }
    [[nodiscard]] StopScale iso() const { return StopScales::iso(); }
    [[nodiscard]] StopScale focalLength() const { return StopScales::focalLength(); }

    Q_INVOKABLE [[nodiscard]] QString reading(double value, const QString &unit) const
    {
        return SliderReading::text(value, unit);
    }
};
