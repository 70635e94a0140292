#pragma once

#include "camera/qml/camerasurface.h"

/// The scale of a viewfinder's light meter: a tick for each third of a stop, from −3 to +3. It
/// tells where on it the needle for `offset` stops stands, and in what color.
class MeterScale : public CameraSurface
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(double offset READ offset WRITE setOffset NOTIFY needleChanged)
    Q_PROPERTY(qreal needleX READ needleX NOTIFY needleChanged)
    Q_PROPERTY(QColor needleInk READ needleInk NOTIFY needleChanged)
public:
    explicit MeterScale(QQuickItem *parent = nullptr);

    [[nodiscard]] double offset() const { return m_offset; }
    void setOffset(double stops);

    /// The middle of the needle, in the item's coordinates.
    [[nodiscard]] qreal needleX() const;
    [[nodiscard]] QColor needleInk() const;

    void paint(QPainter *painter) override;

Q_SIGNALS:
    void needleChanged();

protected:
    void geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry) override;

private:
    /// From −1 at the scale's left end to 1 at its right.
    [[nodiscard]] double x(double place) const;

    double m_offset = 0;
};
