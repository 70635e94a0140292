#include "prepareditem.h"

#include "kit/zoom.h"

#include <QQuickWindow>

#include <utility>

Preparation *Preparation::of(QQuickWindow *window)
{
    auto *known = window->findChild<Preparation *>(QString(), Qt::FindDirectChildrenOnly);
    return known ? known : new Preparation(window);
}

Preparation::Preparation(QQuickWindow *window)
    : QObject(window)
{
    connect(window, &QQuickWindow::beforeSynchronizing, this, &Preparation::prepare,
        Qt::DirectConnection);
    connect(window, &QQuickWindow::afterSynchronizing, this, &Preparation::settle,
        Qt::DirectConnection);
}

void Preparation::prepare() const
{
    for (PreparedItem *item : m_items) {
        if (item->isVisible())
            item->prepare();
    }
}

void Preparation::settle()
{
    for (PreparedItem *item : std::as_const(m_items)) {
        item->settle();
        item->m_waits = false;
    }
    m_items.clear();
}

PreparedItem::PreparedItem(QQuickItem *parent)
    : QQuickItem(parent)
{
    setFlag(ItemHasContents);
    repaint(); // Its parent may be in a window already.
}

PreparedItem::~PreparedItem()
{
    withdraw();
}

double PreparedItem::renderScale() const
{
    return CNZoom::value() * (window() ? window()->effectiveDevicePixelRatio() : 1);
}

void PreparedItem::repaint()
{
    update();
    if (!m_preparation && window())
        m_preparation = Preparation::of(window());
    if (m_preparation && !m_waits) {
        m_preparation->add(this);
        m_waits = true;
    }
}

void PreparedItem::withdraw()
{
    if (m_preparation && m_waits)
        m_preparation->remove(this);
    m_waits = false;
}

void PreparedItem::itemChange(ItemChange change, const ItemChangeData &data)
{
    QQuickItem::itemChange(change, data);
    if (change == ItemSceneChange) {
        withdraw();
        m_preparation = nullptr;
    }
    if (change == ItemSceneChange || change == ItemVisibleHasChanged
        || change == ItemDevicePixelRatioHasChanged)
        repaint();
}
