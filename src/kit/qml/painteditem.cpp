#include "painteditem.h"

#include "kit/preferences.h"
#include "kit/zoom.h"

#include <QQuickWindow>

PaintedItem::PaintedItem(QQuickItem *parent)
    : QQuickPaintedItem(parent)
{
    setAntialiasing(true);
    Preferences::shared().follow(CNZoom::key, this, [this] { fitTexture(); });
}

double PaintedItem::renderScale() const
{
    return CNZoom::value() * (window() ? window()->effectiveDevicePixelRatio() : 1);
}

void PaintedItem::geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry)
{
    QQuickPaintedItem::geometryChange(newGeometry, oldGeometry);
    if (newGeometry.size() != oldGeometry.size())
        fitTexture();
}

void PaintedItem::itemChange(ItemChange change, const ItemChangeData &data)
{
    QQuickPaintedItem::itemChange(change, data);
    if (change == ItemDevicePixelRatioHasChanged || change == ItemSceneChange)
        fitTexture();
}

void PaintedItem::limitTexture(int longestSide)
{
    m_longestSide = longestSide;
    fitTexture();
}

void PaintedItem::fitTexture()
{
    QSizeF pixels = size() * renderScale();
    if (qMax(pixels.width(), pixels.height()) > m_longestSide)
        pixels.scale(m_longestSide, m_longestSide, Qt::KeepAspectRatio);
    setTextureSize(QSize(qCeil(pixels.width()), qCeil(pixels.height())));
}
