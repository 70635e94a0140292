#pragma once

#include "camerasurface.h"

/// The mode dial without its lettering: a knurled ring around a smooth disc. `turn` rotates the
/// knurling, in degrees.
class DialFace : public CameraSurface
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(qreal turn MEMBER m_turn WRITE setTurn NOTIFY lookChanged)
    Q_PROPERTY(bool lit MEMBER m_lit WRITE setLit NOTIFY lookChanged)
public:
    using CameraSurface::CameraSurface;

    void setTurn(qreal degrees) { set(m_turn, degrees); }
    void setLit(bool lit) { set(m_lit, lit); }

    void paint(QPainter *painter) override;

private:
    qreal m_turn = 0;
    bool m_lit = false;
};
