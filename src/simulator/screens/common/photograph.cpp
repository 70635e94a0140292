#include "photograph.h"

#include <QQuickWindow>
#include <QSGImageNode>

#include <utility>

Photograph::Photograph(QQuickItem *parent)
    : QQuickItem(parent)
{
    setFlag(ItemHasContents);
}

void Photograph::setPhoto(const Photo &photo)
{
    if (m_photo == photo)
        return;
    m_photo = photo;
    m_isNew = true;
    update();
    Q_EMIT photoChanged();
}

QSGNode *Photograph::updatePaintNode(QSGNode *old, UpdatePaintNodeData *)
{
    if (isEmpty() || size().isEmpty()) {
        delete old;
        return nullptr;
    }
    auto *node = static_cast<QSGImageNode *>(old);
    if (!node) {
        node = window()->createImageNode();
        node->setOwnsTexture(true);
        node->setFiltering(QSGTexture::Linear);
        m_isNew = true;
    }
    if (std::exchange(m_isNew, false)) {
        // The software scene graph draws pixels of this format fastest, and all are opaque.
        node->setTexture(
            window()->createTextureFromImage(m_photo.image.convertToFormat(QImage::Format_RGB32)));
        node->setSourceRect(m_photo.image.rect());
    }
    node->setRect(boundingRect());
    return node;
}

void Photograph::geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry)
{
    QQuickItem::geometryChange(newGeometry, oldGeometry);
    if (newGeometry.size() != oldGeometry.size())
        update();
}
