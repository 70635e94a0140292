#pragma once

#include "painteditem.h"

#include "kit/symbols.h"

#include <QColor>

/// One of the program's own symbols, drawn in one ink. Decoration: it has no accessible role of
/// its own, the control that bears it has.
class SymbolItem : public PaintedItem
{
    Q_OBJECT
    QML_NAMED_ELEMENT(Symbol)
    Q_PROPERTY(QString name MEMBER m_name WRITE setName NOTIFY lookChanged)
    Q_PROPERTY(QColor ink MEMBER m_ink WRITE setInk NOTIFY lookChanged)
    /// A font weight, such as Font.Bold.
    Q_PROPERTY(int weight MEMBER m_weight WRITE setWeight NOTIFY lookChanged)
    /// Size of the text that it stands beside, in points; the item is a little larger.
    Q_PROPERTY(qreal pointSize MEMBER m_pointSize WRITE setPointSize NOTIFY lookChanged)
public:
    explicit SymbolItem(QQuickItem *parent = nullptr);

    void setName(const QString &name) { set(m_name, name); }
    void setInk(const QColor &ink) { set(m_ink, ink); }
    void setWeight(int weight) { set(m_weight, weight); }
    void setPointSize(qreal size);

    void paint(QPainter *painter) override;

private:
    QString m_name;
    QColor m_ink = Qt::white;
    int m_weight = 400;
    qreal m_pointSize = 0;
};
