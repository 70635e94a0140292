#include "kit/netstatus.h"

#ifdef Q_OS_LINUX
#include "kit/routewatch.h"
#endif

NetStatus &NetStatus::shared()
{
    static NetStatus status;
    return status;
}

NetStatus::NetStatus(QObject *parent)
    : QObject(parent)
{ }

void NetStatus::start()
{
    if (m_started)
        return;
    m_started = true;
    if (!QNetworkInformation::loadBackendByFeatures(QNetworkInformation::Feature::Reachability))
        return;
    const QNetworkInformation *platform = QNetworkInformation::instance();
    connect(platform, &QNetworkInformation::reachabilityChanged, this, &NetStatus::follow);
    follow(platform->reachability());
#ifdef Q_OS_LINUX
    const auto *routes = new RouteWatch(this);
    connect(routes, &RouteWatch::changed, this, [this] {
        follow(RouteWatch::hasWayOut() ? QNetworkInformation::Reachability::Online
                                       : QNetworkInformation::Reachability::Disconnected);
    });
#endif
}

void NetStatus::setOverride(std::optional<bool> online)
{
    shared().change([online] { s_override = online; });
}

void NetStatus::follow(QNetworkInformation::Reachability reachability)
{
    change([this, reachability] { m_online = countsAsOnline(reachability); });
}

bool NetStatus::countsAsOnline(QNetworkInformation::Reachability reachability)
{
    return reachability != QNetworkInformation::Reachability::Disconnected;
}
