#pragma once

#include <QQuickItem>
#include <QtQml/qqml.h>

/// Lies over other items, so that nothing under it can be clicked, pointed at or scrolled. The
/// panes around it still scroll.
class Curtain : public QQuickItem
{
    Q_OBJECT
    QML_ELEMENT
public:
    explicit Curtain(QQuickItem *parent = nullptr);

protected:
    // A press is taken and nothing done with it; by default an item refuses it.
    void mousePressEvent(QMouseEvent *) override { }
    void touchEvent(QTouchEvent *) override { }
    void wheelEvent(QWheelEvent *event) override;
};
