#pragma once

#include "ninepatchitem.h"

#include <QColor>

/// A rectangle with continuous corners, a flat or vertical gradient fill and an edge inside it.
///
/// A gradient runs from `fillFrom` at the top over an optional `fillVia` in the middle to
/// `fillTo`; without `fillTo` the fill is flat. The edge does the same with `strokeFrom` and
/// `strokeTo`, and is absent while `strokeWidth` is 0. A radius of half the height or more gives
/// a capsule.
class ContinuousRectangle : public NinePatchItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(qreal radius MEMBER m_radius WRITE setRadius NOTIFY lookChanged)
    Q_PROPERTY(QColor fillFrom MEMBER m_fillFrom WRITE setFillFrom NOTIFY lookChanged)
    Q_PROPERTY(QColor fillVia MEMBER m_fillVia WRITE setFillVia NOTIFY lookChanged)
    Q_PROPERTY(QColor fillTo MEMBER m_fillTo WRITE setFillTo NOTIFY lookChanged)
    Q_PROPERTY(QColor strokeFrom MEMBER m_strokeFrom WRITE setStrokeFrom NOTIFY lookChanged)
    Q_PROPERTY(QColor strokeTo MEMBER m_strokeTo WRITE setStrokeTo NOTIFY lookChanged)
    Q_PROPERTY(qreal strokeWidth MEMBER m_strokeWidth WRITE setStrokeWidth NOTIFY lookChanged)
public:
    using NinePatchItem::NinePatchItem;

    void setRadius(qreal radius) { set(m_radius, radius); }
    void setFillFrom(const QColor &color) { set(m_fillFrom, color); }
    void setFillVia(const QColor &color) { set(m_fillVia, color); }
    void setFillTo(const QColor &color) { set(m_fillTo, color); }
    void setStrokeFrom(const QColor &color) { set(m_strokeFrom, color); }
    void setStrokeTo(const QColor &color) { set(m_strokeTo, color); }
    void setStrokeWidth(qreal width) { set(m_strokeWidth, width); }

protected:
    [[nodiscard]] Painting::NinePatch patchAsync() const override;

private:
    qreal m_radius = 0;
    qreal m_strokeWidth = 0;
    QColor m_fillFrom = Qt::transparent;
    QColor m_fillVia;
    QColor m_fillTo;
    QColor m_strokeFrom = Qt::transparent;
    QColor m_strokeTo;
};
