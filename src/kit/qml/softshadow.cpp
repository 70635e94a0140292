#include "softshadow.h"

#include "kit/preferences.h"
#include "kit/zoom.h"

#include <QQuickWindow>
#include <QSGNinePatchNode>

#include <utility>

SoftShadow::SoftShadow(QQuickItem *parent)
    : PreparedItem(parent)
{
    Preferences::shared().follow(CNZoom::key, this, [this] { repaint(); });
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
    repaint();
    Q_EMIT lookChanged();
}

void SoftShadow::geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry)
{
    PreparedItem::geometryChange(newGeometry, oldGeometry);
    repaint();
}

bool SoftShadow::isSeen() const
{
    return isVisible() && !size().isEmpty() && m_color.alpha() != 0;
}

std::shared_future<ShadowPatch> SoftShadow::startedPatch() const
{
    // Blurred in the pixels of the screen, so that a magnified shadow stays smooth.
    const double scale = renderScale();
    const double radius = qMin(m_radius, qMin(width(), height()) / 2);
    return startShadowPatch(
        (size() * scale).toSize(), qRound(radius * scale), qRound(m_blur * scale), m_color);
}

void SoftShadow::prepare()
{
    if (isSeen())
        m_patch = startedPatch();
}

void SoftShadow::settle()
{
    if (m_patch.valid())
        std::exchange(m_patch, {}).wait();
}

QSGNode *SoftShadow::updatePaintNode(QSGNode *old, UpdatePaintNodeData *)
{
    delete old;
    if (!isSeen())
        return nullptr;
    if (!m_patch.valid())
        m_patch = startedPatch();
    const ShadowPatch patch = std::exchange(m_patch, {}).get();

    const QRectF reach = boundingRect().adjusted(-m_blur, -m_blur, m_blur, m_blur);
    QSGTexture *texture = window()->createTextureFromImage(patch.image);
    texture->setFiltering(QSGTexture::Linear);
    QSGNinePatchNode *node = window()->createNinePatchNode();
    node->setTexture(texture); // owned by the node
    node->setBounds(reach);
    node->setDevicePixelRatio(renderScale());
    node->setPadding(patch.sideBorder, patch.endBorder, patch.sideBorder, patch.endBorder);
    node->update();
    return node;
}
