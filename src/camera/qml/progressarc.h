#pragma once

#include "camerasurface.h"

/// The track and the fill of a progress ring, with the fill's glow. `fraction` is 0 to 1.
class ProgressArc : public CameraSurface
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(qreal fraction MEMBER m_fraction WRITE setFraction NOTIFY lookChanged)
public:
    using CameraSurface::CameraSurface;

    void setFraction(qreal fraction) { set(m_fraction, qBound(0.0, fraction, 1.0)); }

    void paint(QPainter *painter) override;

private:
    qreal m_fraction = 0;
};
