#include "screens/videos/player/fullscreen.h"

namespace {

// Above the camera and its menus, under dialogs.
constexpr qreal kOnTop = 1000;

} // namespace

FullScreen::~FullScreen()
{
    if (isActive())
        end();
}

void FullScreen::setActive(bool active)
{
    if (active == isActive())
        return;
    if (active)
        begin();
    else
        end();
    Q_EMIT activeChanged();
    Q_EMIT sizeChanged();
}

void FullScreen::begin()
{
    if (!m_item || !m_item->window())
        return; // nothing to fill
    m_window = m_item->window();
    m_home = m_item->parentItem();
    m_before = m_window->visibility();
    m_item->setParentItem(m_window->contentItem());
    m_item->setZ(kOnTop);
    m_window->showFullScreen();
    connect(m_window, &QWindow::widthChanged, this, &FullScreen::sizeChanged);
    connect(m_window, &QWindow::heightChanged, this, &FullScreen::sizeChanged);
    connect(m_window, &QWindow::visibilityChanged, this, [this](QWindow::Visibility visibility) {
        // Not at once: a desktop may hide and show a window on its way.
        if (visibility == QWindow::Windowed || visibility == QWindow::Maximized)
            Q_EMIT refused();
    });
}

void FullScreen::end()
{
    const QPointer<QQuickWindow> window = m_window;
    m_window = nullptr;
    if (window) {
        window->disconnect(this);
        if (m_before != QWindow::FullScreen && window->visibility() == QWindow::FullScreen)
            window->setVisibility(m_before);
    }
    if (m_item && m_home) {
        m_item->setZ(0);
        m_item->setParentItem(m_home);
    }
}
