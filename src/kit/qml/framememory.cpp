#include "framememory.h"

#include "kit/preferences.h"

#include <QGuiApplication>
#include <QScreen>

#include <utility>

using namespace std::chrono_literals;

FrameMemory::FrameMemory(QObject *parent)
    : QObject(parent)
{
    // Some desktops tell of the new area before they tell that the window is maximized.
    m_settled.setInterval(200ms);
    m_settled.setSingleShot(true);
    m_settled.callOnTimeout(this, &FrameMemory::note);
}

FrameMemory::~FrameMemory() = default;

QString FrameMemory::key() const
{
    return u"crvn.frame." + m_name;
}

std::optional<WindowFrame> FrameMemory::stored() const
{
    return WindowFrame::fromText(Preferences::shared().text(key()));
}

WindowPlace FrameMemory::place(const WindowFrame &frame) const
{
    QList<QRect> screens;
    for (const QScreen *screen : QGuiApplication::screens())
        screens.append(screen->availableGeometry());
    return placeOn(screens, frame.area, m_window ? m_window->minimumSize() : QSize());
}

bool FrameMemory::isPlaced() const
{
    const std::optional<WindowFrame> frame = stored();
    return frame && place(*frame).position;
}

QSizeF FrameMemory::room() const
{
    constexpr QSizeF endless(1'000'000, 1'000'000); // where nothing is shown, nothing is cut
    const QScreen *screen = m_window ? m_window->screen() : QGuiApplication::primaryScreen();
    return screen ? roomOn(screen->availableGeometry()).toSizeF() : endless;
}

QSizeF FrameMemory::size(QSizeF usual) const
{
    const std::optional<WindowFrame> frame = stored();
    return frame ? place(*frame).size.toSizeF() : usual.boundedTo(room());
}

void FrameMemory::componentComplete()
{
    if (!m_window)
        return;
    if (const std::optional<WindowFrame> frame = stored()) {
        m_area = frame->area;
        if (const std::optional<QPoint> position = place(*frame).position)
            m_window->setPosition(*position);
        m_maximizes = frame->maximized;
    }
    connect(m_window, &QWindow::screenChanged, this, &FrameMemory::roomChanged);
    const auto settle = [this] { m_settled.start(); };
    connect(m_window, &QWindow::xChanged, this, settle);
    connect(m_window, &QWindow::yChanged, this, settle);
    connect(m_window, &QWindow::widthChanged, this, settle);
    connect(m_window, &QWindow::heightChanged, this, settle);
    connect(m_window, &QWindow::visibleChanged, this, [this](bool visible) {
        if (!visible)
            store();
        else if (std::exchange(m_maximizes, false))
            m_window->setWindowStates(m_window->windowStates() | Qt::WindowMaximized);
    });
    connect(qGuiApp, &QCoreApplication::aboutToQuit, this, &FrameMemory::store);
}

void FrameMemory::note()
{
    if (m_window->windowStates() == Qt::WindowNoState)
        m_area = m_window->geometry();
}

void FrameMemory::store()
{
    if (m_settled.isActive() || m_area.isEmpty())
        note();
    if (m_area.isEmpty())
        return;
    const WindowFrame frame{ .area = m_area,
        .maximized = m_window->windowStates().testFlag(Qt::WindowMaximized) };
    Preferences::shared().set(key(), frame.text());
}
