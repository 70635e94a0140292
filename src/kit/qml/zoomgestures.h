#pragma once

#include <QPointer>
#include <QQmlParserStatus>
#include <QQuickItem>
#include <QQuickWindow>
#include <QtQml/qqml.h>

class QTouchEvent;

/// Changes the interface zoom by what people do to make a page larger: the wheel with Ctrl, two
/// fingers on a screen, two fingers on a touchpad. Stands in an item of the window, and hears of
/// them before any pane that would scroll.
class ZoomGestures : public QObject, public QQmlParserStatus
{
    Q_OBJECT
    QML_ELEMENT
    Q_INTERFACES(QQmlParserStatus)
public:
    using QObject::QObject;

    bool eventFilter(QObject *watched, QEvent *event) override;

protected:
    void classBegin() override { }
    void componentComplete() override;

private:
    void followWindow(QQuickWindow *window);
    void turn(int angle);
    /// Returns whether the fingers are about the zoom.
    bool pinch(const QTouchEvent &touch);

    QPointer<QQuickWindow> m_window;
    int m_turned = 0;     ///< By the wheel since its last whole click, in eighths of a degree.
    double m_fingers = 0; ///< How far apart two fingers began, in pixels; 0 if they aren't there.
    double m_zoomBefore = 1; ///< Before the gesture.
    bool m_pinching = false;
};
