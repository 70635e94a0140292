#include "ninepatchitem.h"

#include "pixelnode.h"

#include <QQuickWindow>
#include <QSGNinePatchNode>

#include <utility>

namespace {

class Node : public PixelNode
{
public:
    explicit Node(QQuickWindow *window)
        : m_patch(window->createNinePatchNode())
    {
        appendChildNode(m_patch);
    }

    void setPatch(QSGTexture *texture, const Painting::NinePatch &patch, const QRect &bounds)
    {
        m_patch->setTexture(texture); // owned by the node
        m_patch->setBounds(bounds);
        m_patch->setPadding(patch.sideBorder, patch.endBorder, patch.sideBorder, patch.endBorder);
        m_patch->update();
    }

private:
    QSGNinePatchNode *m_patch;
};

} // namespace

bool NinePatchItem::isSeen() const
{
    return isVisible() && !deviceSize().isEmpty();
}

void NinePatchItem::prepare()
{
    if (isSeen())
        m_patch = patchAsync();
}

void NinePatchItem::settle()
{
    if (m_patch.picture.valid())
        std::exchange(m_patch, {}).picture.wait();
}

QSGNode *NinePatchItem::updatePaintNode(QSGNode *old, UpdatePaintNodeData *)
{
    if (!isSeen()) {
        delete old;
        return nullptr;
    }
    auto *node = static_cast<Node *>(old);
    if (!node) {
        node = new Node(window());
        if (!m_patch.picture.valid())
            m_patch = patchAsync();
    }
    if (m_patch.picture.valid()) { // or else the item has only been moved
        const Painting::NinePatch patch = std::exchange(m_patch, {});
        QSGTexture *texture = window()->createTextureFromImage(patch.picture.get());
        texture->setFiltering(isUpright() ? QSGTexture::Nearest : QSGTexture::Linear);
        const int by = reach();
        node->setPatch(texture, patch, QRect({}, deviceSize()).adjusted(-by, -by, by, by));
    }
    node->setUnit(onDevice({ 0, 0, 1, 1 }));
    return node;
}
