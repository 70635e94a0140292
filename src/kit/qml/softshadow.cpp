#include "softshadow.h"

#include "kit/preferences.h"
#include "kit/softblur.h"
#include "kit/zoom.h"

#include <QQuickWindow>
#include <QSGImageNode>
#include <QSGNinePatchNode>

SoftShadow::SoftShadow(QQuickItem *parent)
    : QQuickItem(parent)
{
    setFlag(ItemHasContents);
    Preferences::shared().follow(CNZoom::key, this, [this] { update(); });
}

void SoftShadow::setColor(const QColor &color)
{
    if (m_color == color)
        return;
    m_color = color;
    look();
}

void SoftShadow::setRadius(qreal radius)
{
    if (m_radius == radius)
        return;
    m_radius = radius;
    look();
}

void SoftShadow::setBlur(qreal blur)
{
    if (m_blur == blur)
        return;
    m_blur = blur;
    look();
}

void SoftShadow::look()
{
    update();
    Q_EMIT lookChanged();
}

void SoftShadow::geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry)
{
    QQuickItem::geometryChange(newGeometry, oldGeometry);
    update();
}

void SoftShadow::itemChange(ItemChange change, const ItemChangeData &data)
{
    QQuickItem::itemChange(change, data);
    if (change == ItemVisibleHasChanged)
        update();
}

QSGNode *SoftShadow::updatePaintNode(QSGNode *old, UpdatePaintNodeData *)
{
    delete old;
    const QRectF reach = boundingRect().adjusted(-m_blur, -m_blur, m_blur, m_blur);
    if (!isVisible() || size().isEmpty() || m_color.alpha() == 0)
        return nullptr;

    // Blurred in the pixels of the screen, so that a magnified shadow stays smooth.
    const double scale = CNZoom::value() * window()->effectiveDevicePixelRatio();
    const double radius = qMin(m_radius, qMin(width(), height()) / 2);
    const ShadowPatch patch = shadowPatch(
        (size() * scale).toSize(), qRound(radius * scale), qRound(m_blur * scale), m_color);

    QSGTexture *texture = window()->createTextureFromImage(patch.image);
    texture->setFiltering(QSGTexture::Linear);
    if (patch.border == 0) {
        QSGImageNode *node = window()->createImageNode();
        node->setOwnsTexture(true);
        node->setTexture(texture);
        node->setRect(reach);
        return node;
    }
    QSGNinePatchNode *node = window()->createNinePatchNode();
    node->setTexture(texture); // owned by the node
    node->setBounds(reach);
    node->setDevicePixelRatio(scale);
    node->setPadding(patch.border, patch.border, patch.border, patch.border);
    node->update();
    return node;
}
