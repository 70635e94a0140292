#pragma once

#include "camera/qml/camerasurface.h"

#include <QColor>

/// Lies over a picture: a thin edge along a rectangle with continuous corners, and what is around
/// the picture in the corners outside of it.
class PictureFrame : public CameraSurface
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(qreal radius MEMBER m_radius WRITE setRadius NOTIFY lookChanged)
    Q_PROPERTY(QColor surround MEMBER m_surround WRITE setSurround NOTIFY lookChanged)
public:
    using CameraSurface::CameraSurface;

    void setRadius(qreal radius) { set(m_radius, radius); }
    void setSurround(const QColor &color) { set(m_surround, color); }

    void paint(QPainter *painter) override;

private:
    qreal m_radius = 0;
    QColor m_surround = Qt::black;
};
