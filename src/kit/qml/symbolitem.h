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
    Q_PROPERTY(QString name READ name WRITE setName NOTIFY lookChanged)
    Q_PROPERTY(QColor ink READ ink WRITE setInk NOTIFY lookChanged)
    /// A font weight, such as Font.Bold.
    Q_PROPERTY(int weight READ weight WRITE setWeight NOTIFY lookChanged)
    /// Size of the text that it stands beside, in points; the item is a little larger.
    Q_PROPERTY(qreal pointSize READ pointSize WRITE setPointSize NOTIFY lookChanged)
public:
    explicit SymbolItem(QQuickItem *parent = nullptr);

    [[nodiscard]] QString name() const { return m_name; }
    void setName(const QString &name);
    [[nodiscard]] QColor ink() const { return m_ink; }
    void setInk(const QColor &ink);
    [[nodiscard]] int weight() const { return m_weight; }
    void setWeight(int weight);
    [[nodiscard]] qreal pointSize() const { return m_pointSize; }
    void setPointSize(qreal size);

    void paint(QPainter *painter) override;

Q_SIGNALS:
    void lookChanged();

private:
    QString m_name;
    QColor m_ink = Qt::white;
    int m_weight = 400;
    qreal m_pointSize = 0;
};
