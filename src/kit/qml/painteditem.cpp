#include "painteditem.h"

#include "kit/picture.h"
#include "kit/preferences.h"
#include "kit/zoom.h"

#include <QQuickWindow>
#include <QSGImageNode>
#include <QSGRendererInterface>

#include <utility>

PaintedItem::PaintedItem(QQuickItem *parent)
    : PreparedItem(parent)
{
    setAntialiasing(true);
    Preferences::shared().follow(CNZoom::key, this, [this] { refit(); });
}

void PaintedItem::refit()
{
    repaint();
    Q_EMIT textureSizeChanged();
}

QSize PaintedItem::textureSize() const
{
    QSizeF pixels = size() * renderScale();
    if (qMax(pixels.width(), pixels.height()) > m_longestSide)
        pixels.scale(m_longestSide, m_longestSide, Qt::KeepAspectRatio);
    return QSize(qCeil(pixels.width()), qCeil(pixels.height()));
}

// Whole units, as the scene graph's own painted items are shown.
QSize PaintedItem::shownSize() const
{
    return size().toSize();
}

void PaintedItem::limitTexture(int longestSide)
{
    m_longestSide = longestSide;
    refit();
}

void PaintedItem::itemChange(ItemChange change, const ItemChangeData &data)
{
    PreparedItem::itemChange(change, data);
    if (change == ItemDevicePixelRatioHasChanged || change == ItemSceneChange)
        Q_EMIT textureSizeChanged();
}

void PaintedItem::geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry)
{
    PreparedItem::geometryChange(newGeometry, oldGeometry);
    if (newGeometry.size() != oldGeometry.size())
        refit();
}

void PaintedItem::paint(QPainter *) { }

std::shared_future<QImage> PaintedItem::startedPicture()
{
    return startPicture(textureSize(), shownSize(), [this](QPainter &painter) { paint(&painter); });
}

void PaintedItem::prepare()
{
    if (!shownSize().isEmpty())
        m_picture = startedPicture();
}

void PaintedItem::settle()
{
    if (m_picture.valid())
        std::exchange(m_picture, {}).wait();
}

QSGNode *PaintedItem::updatePaintNode(QSGNode *old, UpdatePaintNodeData *)
{
    if (!isVisible() || shownSize().isEmpty()) {
        delete old;
        return nullptr;
    }
    auto *node = static_cast<QSGImageNode *>(old);
    if (!node) {
        node = window()->createImageNode();
        node->setOwnsTexture(true);
        // A graphics processor draws at fractions of a pixel. The software scene graph doesn't, and
        // the fraction of a pixel by which a picture may be too large would only blur it.
        const bool software
            = window()->rendererInterface()->graphicsApi() == QSGRendererInterface::Software;
        node->setFiltering(software ? QSGTexture::Nearest : QSGTexture::Linear);
    }
    if (!m_picture.valid())
        m_picture = startedPicture();
    const QImage image = std::exchange(m_picture, {}).get();
    node->setTexture(window()->createTextureFromImage(image));
    node->setSourceRect(image.rect());
    node->setRect(QRect(QPoint(), shownSize()));
    return node;
}
