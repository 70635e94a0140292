#include "softshadow.h"

#include "kit/preferences.h"
#include "kit/zoom.h"

#include <QQuickWindow>
#include <QSGImageNode>
#include <QSGNinePatchNode>

#include <array>
#include <utility>

namespace {

// A stretch of the picture along one axis, and where it is shown.
struct Span {
    double from;   ///< Pixels of the picture.
    double pixels; ///< How many of them.
    double to;     ///< Points.
    double length; ///< Points.

    [[nodiscard]] Span first(double part, double scale) const
    {
        return { from, part * scale, to, part };
    }
    [[nodiscard]] Span last(double part, double scale) const
    {
        return { from + pixels - part * scale, part * scale, to + length - part, part };
    }
};

// The two borders, and the line of pixels between them that is stretched.
std::array<Span, 3> spans(double start, double length, double pixels, int border, double scale)
{
    const double corner = border / scale;
    return { {
        { 0, double(border), start, corner },
        { double(border), 1, start + corner, length - 2 * corner },
        { pixels - border, double(border), start + length - corner, corner },
    } };
}

} // namespace

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

void SoftShadow::setHollow(bool hollow)
{
    if (m_hollow == hollow)
        return;
    m_hollow = hollow;
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

// The nine-patch without its middle: four corners, and between them the edges, which end where the
// blur does.
QSGNode *SoftShadow::rim(const QRectF &reach, QSGTexture *texture, int border) const
{
    const double scale = renderScale();
    const double depth = 2 * m_blur;
    const QSizeF pixels = texture->textureSize();
    const std::array columns = spans(reach.left(), reach.width(), pixels.width(), border, scale);
    const std::array rows = spans(reach.top(), reach.height(), pixels.height(), border, scale);

    auto *root = new QSGNode;
    const auto add = [&](const Span &column, const Span &row) {
        QSGImageNode *node = window()->createImageNode();
        node->setOwnsTexture(!root->firstChild());
        node->setTexture(texture);
        node->setSourceRect(column.from, row.from, column.pixels, row.pixels);
        node->setRect(column.to, row.to, column.length, row.length);
        root->appendChildNode(node);
    };
    const auto &[left, center, right] = columns;
    const auto &[top, middle, bottom] = rows;
    add(left, top);
    add(center, top.first(depth, scale));
    add(right, top);
    add(left.first(depth, scale), middle);
    add(right.last(depth, scale), middle);
    add(left, bottom);
    add(center, bottom.last(depth, scale));
    add(right, bottom);
    return root;
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
    if (patch.border == 0) {
        QSGImageNode *node = window()->createImageNode();
        node->setOwnsTexture(true);
        node->setTexture(texture);
        node->setRect(reach);
        return node;
    }
    if (m_hollow)
        return rim(reach, texture, patch.border);
    QSGNinePatchNode *node = window()->createNinePatchNode();
    node->setTexture(texture); // owned by the node
    node->setBounds(reach);
    node->setDevicePixelRatio(renderScale());
    node->setPadding(patch.border, patch.border, patch.border, patch.border);
    node->update();
    return node;
}
