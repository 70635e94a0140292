#include "zoomcontrol.h"

#include "kit/preferences.h"
#include "kit/zoom.h"

#include <QPointer>
#include <QTimer>

using namespace std::chrono_literals;

ZoomControl::ZoomControl(QObject *parent)
    : QObject(parent)
{
    Preferences::shared().follow(CNZoom::key, this, [this] { Q_EMIT zoomChanged(); });
}

qreal ZoomControl::zoom() const
{
    return CNZoom::value();
}

QStringList ZoomControl::levelTitles() const
{
    QStringList titles;
    for (int percent : CNZoom::levels)
        titles.append(CNZoom::levelTitle(percent));
    return titles;
}

void ZoomControl::zoomIn()
{
    CNZoom::setValue(CNZoom::value() + CNZoom::step);
}
void ZoomControl::zoomOut()
{
    CNZoom::setValue(CNZoom::value() - CNZoom::step);
}
void ZoomControl::actualSize()
{
    CNZoom::setValue(1);
}

void ZoomControl::chooseLevel(int index)
{
    if (index >= 0 && index < int(CNZoom::levels.size()))
        CNZoom::setValue(CNZoom::levels[size_t(index)] / 100.0);
}

QSizeF ZoomControl::logicalSize(QSizeF offered, qreal zoom, QSizeF minimum) const
{
    return CNZoom::layout(offered, zoom, minimum).logical;
}

bool ZoomControl::scrolls(QSizeF offered, qreal zoom, QSizeF minimum) const
{
    return CNZoom::layout(offered, zoom, minimum).scrolls;
}

void ZoomControl::scrollHome(QQuickItem *flickable)
{
    const auto moves
        = [](const QQuickItem *item) { return item ? item->property("handMoves").toInt() : 0; };
    const auto home = [flickable = QPointer(flickable), moves, before = moves(flickable)] {
        if (!flickable || moves(flickable) != before)
            return;
        flickable->setProperty("contentX", 0);
        flickable->setProperty("contentY", 0);
    };
    home();
    for (const auto delay : { 0ms, 150ms, 400ms, 900ms, 1600ms })
        QTimer::singleShot(delay, this, home);
}
