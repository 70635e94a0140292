#include "softshadow.h"

#include <QMatrix4x4>
#include <QQuickWindow>
#include <QSGNinePatchNode>
#include <QSGTransformNode>

#include <utility>

namespace {

// Counts in device pixels: a nine-patch in logical units would have its seams between pixels at
// most zooms, and they would be seen.
class ShadowNode : public QSGTransformNode
{
public:
    explicit ShadowNode(QQuickWindow *window)
        : m_patch(window->createNinePatchNode())
    {
        appendChildNode(m_patch);
    }

    void setPatch(QSGTexture *texture, const Painting::ShadowPatch &patch, const QRect &bounds)
    {
        m_patch->setTexture(texture); // owned by the node
        m_patch->setBounds(bounds);
        m_patch->setPadding(patch.sideBorder, patch.endBorder, patch.sideBorder, patch.endBorder);
        m_patch->update();
    }

    // Where a device pixel is in the item's coordinates.
    void setUnit(const QRectF &pixel)
    {
        QMatrix4x4 matrix;
        matrix.translate(float(pixel.x()), float(pixel.y()));
        matrix.scale(float(pixel.width()), float(pixel.height()));
        if (matrix != this->matrix())
            setMatrix(matrix);
    }

private:
    QSGNinePatchNode *m_patch;
};

} // namespace

void SoftShadow::geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry)
{
    PreparedItem::geometryChange(newGeometry, oldGeometry);
    if (newGeometry.size() != oldGeometry.size())
        repaint();
}

bool SoftShadow::isSeen() const
{
    return isVisible() && !deviceSize().isEmpty() && m_color.alpha() != 0;
}

std::shared_future<Painting::ShadowPatch> SoftShadow::blurAsync() const
{
    // Blurred in the pixels of the screen, so that a magnified shadow stays smooth.
    const double scale = renderScale();
    const double radius = qMin(m_radius, qMin(width(), height()) / 2);
    return Painting::shadowPatchAsync(
        deviceSize(), qRound(radius * scale), qRound(m_blur * scale), m_color);
}

void SoftShadow::prepare()
{
    if (isSeen())
        m_patch = blurAsync();
}

void SoftShadow::settle()
{
    if (m_patch.valid())
        std::exchange(m_patch, {}).wait();
}

QSGNode *SoftShadow::updatePaintNode(QSGNode *old, UpdatePaintNodeData *)
{
    if (!isSeen()) {
        delete old;
        return nullptr;
    }
    auto *node = static_cast<ShadowNode *>(old);
    if (!node) {
        node = new ShadowNode(window());
        if (!m_patch.valid())
            m_patch = blurAsync();
    }
    if (m_patch.valid()) { // or else the item has only been moved
        const Painting::ShadowPatch patch = std::exchange(m_patch, {}).get();
        QSGTexture *texture = window()->createTextureFromImage(patch.image);
        texture->setFiltering(isUpright() ? QSGTexture::Nearest : QSGTexture::Linear);
        const int reach = qRound(m_blur * renderScale());
        node->setPatch(
            texture, patch, QRect({}, deviceSize()).adjusted(-reach, -reach, reach, reach));
    }
    node->setUnit(onDevice({ 0, 0, 1, 1 }));
    return node;
}
