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

void PaintedItem::fitTexture()
{
    const QSizeF pixels = size() * renderScale();
    setTextureSize(QSize(qCeil(pixels.width()), qCeil(pixels.height())));
}
