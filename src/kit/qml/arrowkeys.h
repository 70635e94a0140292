#pragma once

#include <QQmlParserStatus>
#include <QQuickItem>
#include <QtQml/qqml.h>

class QKeyEvent;

/// Lets the arrow keys move the focus among the controls in an item: to the nearest in that
/// direction, whether they stand in a column, a row or a grid. Home and End go to the first and the
/// last. What has no further control in its direction goes on to what is around, which scrolls.
class ArrowKeys : public QObject, public QQmlParserStatus
{
    Q_OBJECT
    QML_ELEMENT
    Q_INTERFACES(QQmlParserStatus)
public:
    using QObject::QObject;

    bool eventFilter(QObject *watched, QEvent *event) override;

    /// Gives the focus to the first control, as a key does. Returns whether there is one.
    Q_INVOKABLE bool enter();

protected:
    void classBegin() override { }
    void componentComplete() override;

private:
    [[nodiscard]] QQuickItem *group() const { return qobject_cast<QQuickItem *>(parent()); }
    [[nodiscard]] QQuickItem *target(int key) const;
};
