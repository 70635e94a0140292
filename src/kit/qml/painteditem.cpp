#include "painteditem.h"

#include "pixelnode.h"

#include "kit/picture.h"

#include <QQuickWindow>
#include <QRegion>
#include <QSGImageNode>

#include <utility>

// One child for each part of the picture.
class PaintedItem::Node : public PixelNode
{
public:
    void setParts(QSize whole, const std::vector<Part> &parts, QQuickWindow *window)
    {
        clear();
        m_whole = whole;
        for (const Part &part : parts) {
            const QImage picture = part.picture.get();
            QSGImageNode *node = window->createImageNode();
            node->setTexture(window->createTextureFromImage(picture));
            node->setOwnsTexture(true);
            node->setSourceRect(picture.rect());
            node->setRect(part.area);
            appendChildNode(node);
            m_shown.push_back(node);
        }
    }

    // The whole picture covers `area` of the item.
    void show(const QRectF &area, QSGTexture::Filtering filtering)
    {
        setUnit({ area.x(), area.y(), area.width() / m_whole.width(),
            area.height() / m_whole.height() });
        for (QSGImageNode *node : m_shown)
            node->setFiltering(filtering);
    }

    [[nodiscard]] QSize whole() const { return m_whole; }

private:
    void clear()
    {
        for (const QSGImageNode *node : std::exchange(m_shown, {}))
            delete node; // which leaves its parent
    }

    QSize m_whole; // pixels
    std::vector<QSGImageNode *> m_shown;
};

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

void PaintedItem::paint(QPainter *) { }

std::shared_future<QImage> PaintedItem::paintAsync()
{
    return Painting::paintAsync(
        textureSize(), size(), [this](QPainter &painter) { paint(&painter); });
}

QRect PaintedItem::pixelsLeftOut() const
{
    const QRectF part = leftOut();
    const QSize pixels = textureSize();
    const double x = pixels.width() / width();
    const double y = pixels.height() / height();
    const QPoint topLeft(qCeil(part.left() * x) + 1, qCeil(part.top() * y) + 1);
    const QPoint end(qFloor(part.right() * x) - 1, qFloor(part.bottom() * y) - 1);
    return { topLeft, end - QPoint(1, 1) };
}

std::vector<PaintedItem::Part> PaintedItem::paintPartsAsync()
{
    const QRect whole({}, textureSize());
    if (leftOut().isEmpty())
        return { { whole, paintAsync() } };
    std::vector<Part> parts;
    for (const QRect &area : QRegion(whole) - pixelsLeftOut()) {
        parts.push_back(
            { area, Painting::paintPartAsync(whole.size(), size(), area, [this](QPainter &painter) {
                 paint(&painter);
             }) });
    }
    return parts;
}

void PaintedItem::prepare()
{
    if (!deviceSize().isEmpty())
        m_parts = paintPartsAsync();
}

void PaintedItem::settle()
{
    for (const Part &part : std::exchange(m_parts, {}))
        part.picture.wait();
}

QSGNode *PaintedItem::updatePaintNode(QSGNode *old, UpdatePaintNodeData *)
{
    const QSize shown = deviceSize();
    if (!isVisible() || shown.isEmpty()) {
        delete old;
        return nullptr;
    }
    auto *node = static_cast<Node *>(old);
    if (!node) {
        node = new Node;
        if (m_parts.empty())
            m_parts = paintPartsAsync();
    }
    if (!m_parts.empty()) // or else the item has only been moved
        node->setParts(textureSize(), std::exchange(m_parts, {}), window());
    const bool pixelForPixel = isUpright() && node->whole() == shown;
    node->show(onDevice({ {}, shown }), pixelForPixel ? QSGTexture::Nearest : QSGTexture::Linear);
    return node;
}
