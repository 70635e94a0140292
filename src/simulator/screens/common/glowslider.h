#pragma once

#include "camera/qml/camerasurface.h"
#include "simulator/screens/common/stopscale.h"

#include <QQuickItem>
#include <QtQml/qqml.h>

class QFocusEvent;
class QHoverEvent;
class QKeyEvent;
class QMouseEvent;
class QWheelEvent;

/// A slider on the display: a track, lit up to the handle. It runs over the stops of a scale, one
/// place as far from the next as any other, or, without a scale, evenly from `from` to `to`.
///
/// It never changes what it shows. Mouse, wheel, keys and assistive technology ask for a value with
/// `moved`, and the owner answers by binding another to `shown`. A value beyond the ends is shown
/// at the end and stays what it is until the user moves the slider.
///
/// A press takes hold of the handle, or fetches it to where the pointer is. One notch of the wheel
/// and one arrow key is a step: the next stop, or the next figure that SliderReading shows. Page Up
/// and Page Down are ten steps, Home and End the ends.
class GlowSlider : public CameraSurface
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(StopScale scaleOfStops READ scaleOfStops WRITE setScaleOfStops NOTIFY rangeChanged)
    Q_PROPERTY(double from READ from WRITE setFrom NOTIFY rangeChanged)
    Q_PROPERTY(double to READ to WRITE setTo NOTIFY rangeChanged)
    Q_PROPERTY(double shown READ shown WRITE setShown NOTIFY valueChanged)
    Q_PROPERTY(bool pressed READ isPressed NOTIFY pressedChanged)
    /// The focus came by keyboard, and so has to be seen.
    Q_PROPERTY(bool visualFocus READ visualFocus NOTIFY visualFocusChanged)
    /// A Qt::FocusReason, as controls have it: what scrolls brings the place of the focus in sight.
    Q_PROPERTY(int focusReason READ focusReason NOTIFY visualFocusChanged)
    // What assistive technology looks for in a slider; writing `value` asks for it.
    Q_PROPERTY(double value READ shown WRITE ask NOTIFY valueChanged)
    Q_PROPERTY(double minimumValue READ least NOTIFY rangeChanged)
    Q_PROPERTY(double maximumValue READ greatest NOTIFY rangeChanged)
    Q_PROPERTY(double stepSize READ smallestStep NOTIFY rangeChanged)
public:
    explicit GlowSlider(QQuickItem *parent = nullptr);

    [[nodiscard]] const StopScale &scaleOfStops() const { return m_scale; }
    void setScaleOfStops(const StopScale &scale);
    [[nodiscard]] double from() const { return m_from; }
    void setFrom(double from);
    [[nodiscard]] double to() const { return m_to; }
    void setTo(double to);
    [[nodiscard]] double shown() const { return m_shown; }
    void setShown(double value);
    [[nodiscard]] bool isPressed() const { return m_pressed; }
    [[nodiscard]] bool visualFocus() const { return m_visualFocus && hasActiveFocus(); }
    [[nodiscard]] int focusReason() const { return m_focusReason; }

    /// Asks for a value.
    void ask(double value);

    /// Asks for the value so many steps up the track, or down.
    Q_INVOKABLE void step(int steps);

    /// Steps as the wheel does that has turned by this angle, in eighths of a degree.
    Q_INVOKABLE void roll(QPointF angle);

    void paint(QPainter *painter) override;

Q_SIGNALS:
    /// The user wants this value.
    void moved(double value);

    void rangeChanged();
    void valueChanged();
    void pressedChanged();
    void visualFocusChanged();

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseUngrabEvent() override;
    void wheelEvent(QWheelEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void hoverEnterEvent(QHoverEvent *event) override;
    void hoverLeaveEvent(QHoverEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    [[nodiscard]] bool hasStops() const { return !m_scale.stops().isEmpty(); }
    [[nodiscard]] double first() const;
    [[nodiscard]] double last() const;
    [[nodiscard]] double least() const { return qMin(first(), last()); }
    [[nodiscard]] double greatest() const { return qMax(first(), last()); }
    /// By which a screen reader knows how many decimals to read.
    [[nodiscard]] double smallestStep() const;

    // Along the track, from 0 to 1.
    [[nodiscard]] double fraction() const;
    [[nodiscard]] double valueAt(double fraction) const;

    [[nodiscard]] double trackLength() const;
    [[nodiscard]] double handleX() const;
    void dragTo(double x);
    void setPressed(bool pressed);
    void setFocusLook(bool visual, Qt::FocusReason reason);

    StopScale m_scale;
    double m_from = 0;
    double m_to = 1;
    double m_shown = 0;
    double m_grip = 0;     ///< From the handle's center to where the mouse took hold of it.
    double m_unrolled = 0; ///< What the wheel has turned and no step has answered, in notches.
    bool m_pressed = false;
    bool m_hovered = false;
    bool m_visualFocus = false;
    Qt::FocusReason m_focusReason = Qt::OtherFocusReason;
};
