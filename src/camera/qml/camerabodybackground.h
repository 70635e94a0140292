#pragma once

#include "camerasurface.h"

/// The body that fills the window: metal, leather and a lit edge. `display` is the part that
/// something opaque covers; it isn't painted.
class CameraBodyBackground : public CameraSurface
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QRectF display MEMBER m_display WRITE setDisplay NOTIFY lookChanged)
public:
    using CameraSurface::CameraSurface;

    void setDisplay(const QRectF &display) { set(m_display, display); }

    void paint(QPainter *painter) override;

protected:
    [[nodiscard]] QRectF leftOut() const override { return m_display; }

private:
    QRectF m_display;
};
