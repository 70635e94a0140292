// The painted surfaces of the camera: everything that is more than a rounded rectangle.
#pragma once

#include "kit/qml/painteditem.h"

#include "camera/hvcolors.h"

/// A surface that is painted in the colors of the palette `c`.
class CameraSurface : public PaintedItem
{
    Q_OBJECT
    QML_ANONYMOUS
    Q_PROPERTY(HVColors c READ c WRITE setC NOTIFY cChanged REQUIRED)
public:
    using PaintedItem::PaintedItem;

    [[nodiscard]] const HVColors &c() const { return m_c; }
    void setC(const HVColors &colors);

Q_SIGNALS:
    void cChanged();

private:
    HVColors m_c;
};

/// The body that fills the window: metal, leather and a lit edge. `display` is the part that
/// something opaque covers; it isn't painted.
class CameraBodyBackground : public CameraSurface
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QRectF display READ display WRITE setDisplay NOTIFY displayChanged)
public:
    using CameraSurface::CameraSurface;

    [[nodiscard]] QRectF display() const { return m_display; }
    void setDisplay(const QRectF &display);

Q_SIGNALS:
    void displayChanged();

protected:
    [[nodiscard]] std::shared_future<QImage> startedPicture() override;

private:
    QRectF m_display;
};

/// The display's frame: bezel, inner glow and the sheen of its glass. It lies over the content and
/// takes no clicks; its round opening is what rounds the content's corners.
class DisplayGlass : public CameraSurface
{
    Q_OBJECT
    QML_ELEMENT
public:
    using CameraSurface::CameraSurface;

protected:
    [[nodiscard]] std::shared_future<QImage> startedPicture() override;
};

/// The mode dial without its lettering: a knurled ring around a smooth disc. `turn` rotates the
/// knurling, in degrees.
class DialFace : public CameraSurface
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(qreal turn READ turn WRITE setTurn NOTIFY turnChanged)
    Q_PROPERTY(bool lit READ lit WRITE setLit NOTIFY litChanged)
public:
    using CameraSurface::CameraSurface;

    [[nodiscard]] qreal turn() const { return m_turn; }
    void setTurn(qreal degrees);
    [[nodiscard]] bool lit() const { return m_lit; }
    void setLit(bool lit);

    void paint(QPainter *painter) override;

Q_SIGNALS:
    void turnChanged();
    void litChanged();

private:
    qreal m_turn = 0;
    bool m_lit = false;
};

/// Knurled metal over the whole item.
class KnurlTexture : public PaintedItem
{
    Q_OBJECT
    QML_ELEMENT
public:
    using PaintedItem::PaintedItem;

    void paint(QPainter *painter) override;
};

/// The track and the fill of a progress ring, with the fill's glow. `fraction` is 0 to 1.
class ProgressArc : public CameraSurface
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(qreal fraction READ fraction WRITE setFraction NOTIFY fractionChanged)
public:
    using CameraSurface::CameraSurface;

    [[nodiscard]] qreal fraction() const { return m_fraction; }
    void setFraction(qreal fraction);

    void paint(QPainter *painter) override;

Q_SIGNALS:
    void fractionChanged();

private:
    qreal m_fraction = 0;
};
