#pragma once

#include <QPointer>
#include <QQmlParserStatus>
#include <QQuickItem>
#include <QQuickWindow>
#include <QtQml/qqml.h>

class QKeyEvent;
class QWheelEvent;

/// What moves a scrolling area: the wheel, the touchpad, keys, a finger, and the keyboard focus of
/// what it holds. Stands in a ScrollSurface, whose pane it moves.
///
/// Panes may stand in each other. What a pane can't follow, because it is at its end or doesn't
/// scroll in that direction, goes on to the pane around it. Shift turns the wheel sideways.
///
/// It shows what the Tab key or a shortcut gives the focus to. An item whose focus is seen on a
/// larger one around it, such as the field in a search capsule, names that as its `focusFrame`.
///
/// A drag of the mouse moves nothing, so that texts can be selected. Qt 6.4's Flickable follows
/// both mouse and finger or neither; it is switched by what touches the window next.
class ScrollBehavior : public QObject, public QQmlParserStatus
{
    Q_OBJECT
    QML_ELEMENT
    Q_INTERFACES(QQmlParserStatus)
public:
    using QObject::QObject;

    /// Moves the pane so that this place of its content is at the upper left, as far as the content
    /// goes. Returns whether anything moved.
    Q_INVOKABLE bool scrollTo(qreal x, qreal y);

    /// Gives the focus of the pane itself to the next control, the first in it, or to the one
    /// before; the window's own way on from what isn't reached by Tab would begin at its first
    /// control again. False, and nothing happens, if something else has the focus.
    Q_INVOKABLE bool goOn(bool forward);

    /// Brings the pane back between the ends of its content as soon as that is laid out.
    Q_INVOKABLE void stayInsideLater();

    /// Moves the pane, and the panes around it, no further than it takes to show the item with a
    /// margin around it. Of an item that is too large the beginning is shown.
    Q_INVOKABLE void reveal(QQuickItem *item);

    /// The same for a part of an item, in the panes around it. `area` is in the item's coordinates.
    static void revealAround(const QQuickItem &item, const QRectF &area);

    /// Does what the wheel asks for in the innermost pane around `item` that can follow. Returns
    /// whether one could.
    static bool scrollAround(const QQuickItem *item, const QWheelEvent &wheel);

    bool eventFilter(QObject *watched, QEvent *event) override;

protected:
    void classBegin() override { }
    void componentComplete() override;

private:
    [[nodiscard]] QQuickItem *pane() const { return qobject_cast<QQuickItem *>(parent()); }
    /// The behavior of the innermost pane that holds the item; null if none does.
    [[nodiscard]] static ScrollBehavior *around(const QQuickItem *item);
    [[nodiscard]] QPointF position() const;

    void reveal(const QQuickItem &item, const QRectF &part);
    void followWindow(QQuickWindow *window);
    void followFocus();
    /// scrollTo() for the reader himself.
    bool moveTo(qreal x, qreal y);
    bool follow(const QWheelEvent &wheel);
    bool follow(const QKeyEvent &key);

    QPointer<QQuickWindow> m_window;
};
