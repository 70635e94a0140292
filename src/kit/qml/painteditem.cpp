#include "painteditem.h"

#include "kit/picture.h"

#include <QQuickWindow>
#include <QSGImageNode>

#include <utility>

QSize PaintedItem::textureSize() const
{
    const QSize pixels = deviceSize();
    if (qMax(pixels.width(), pixels.height()) <= m_longestSide)
        return pixels;
    const QSizeF limited = QSizeF(pixels).scaled(m_longestSide, m_longestSide, Qt::KeepAspectRatio);
    return { qCeil(limited.width()), qCeil(limited.height()) };
}

void PaintedItem::limitTexture(int longestSide)
{
    m_longestSide = longestSide;
    repaint();
}

void PaintedItem::geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry)
{
    PreparedItem::geometryChange(newGeometry, oldGeometry);
    if (newGeometry.size() != oldGeometry.size())
        repaint();
}

void PaintedItem::paint(QPainter *) { }

std::shared_future<QImage> PaintedItem::paintAsync()
{
    return Painting::paintAsync(
        textureSize(), size(), [this](QPainter &painter) { paint(&painter); });
}

void PaintedItem::prepare()
{
    if (!deviceSize().isEmpty())
        m_picture = paintAsync();
}

void PaintedItem::settle()
{
    if (m_picture.valid())
        std::exchange(m_picture, {}).wait();
}

QSGNode *PaintedItem::updatePaintNode(QSGNode *old, UpdatePaintNodeData *)
{
    if (!isVisible() || deviceSize().isEmpty()) {
        delete old;
        return nullptr;
    }
    auto *node = static_cast<QSGImageNode *>(old);
    if (!node) {
        node = window()->createImageNode();
        node->setOwnsTexture(true);
        if (!m_picture.valid())
            m_picture = paintAsync();
    }
    if (m_picture.valid()) { // or else the item has only been moved
        const QImage image = std::exchange(m_picture, {}).get();
        node->setTexture(window()->createTextureFromImage(image));
        node->setSourceRect(image.rect());
    }
    const QSize shown = deviceSize();
    const bool pixelForPixel = isUpright() && node->texture()->textureSize() == shown;
    node->setFiltering(pixelForPixel ? QSGTexture::Nearest : QSGTexture::Linear);
    node->setRect(onDevice({ {}, shown }));
    return node;
}
