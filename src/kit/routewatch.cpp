#include "kit/routewatch.h"

#include <QFile>
#include <QSocketNotifier>

#include <bit>

#include <linux/netlink.h>
#include <linux/rtnetlink.h>
#include <net/route.h>
#include <sys/socket.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

constexpr int kLongestPrefix = 1; // of a default route, or of half of one

// The lines of one of the kernel's tables, in columns.
QList<QByteArrayList> rows(const QString &table)
{
    QFile file(table);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QList<QByteArrayList> rows;
    for (const QByteArray &line : file.readAll().split('\n'))
        rows.append(line.simplified().split(' '));
    return rows;
}

bool isOpen(const QByteArray &flags)
{
    const uint set = flags.toUInt(nullptr, 16);
    return set & RTF_UP && !(set & RTF_REJECT);
}

} // namespace

RouteWatch::RouteWatch(QObject *parent)
    : QObject(parent)
    , m_socket(::socket(AF_NETLINK, SOCK_RAW | SOCK_CLOEXEC | SOCK_NONBLOCK, NETLINK_ROUTE))
{
    sockaddr_nl address{};
    address.nl_family = AF_NETLINK;
    // Links too: routes that go with their link go in silence.
    address.nl_groups = RTMGRP_LINK | RTMGRP_IPV4_ROUTE | RTMGRP_IPV6_ROUTE;
    if (m_socket < 0
        || ::bind(m_socket, reinterpret_cast<const sockaddr *>(&address), sizeof address) != 0)
        return;
    const auto *news = new QSocketNotifier(m_socket, QSocketNotifier::Read, this);
    connect(news, &QSocketNotifier::activated, this, &RouteWatch::hear);
}

RouteWatch::~RouteWatch()
{
    if (m_socket >= 0)
        ::close(m_socket);
}

void RouteWatch::hear()
{
    // What the news are doesn't matter: the tables tell it better.
    char news[8192];
    while (::recv(m_socket, news, sizeof news, 0) > 0) { }
    Q_EMIT changed();
}

bool RouteWatch::hasWayOut()
{
    // Interface, destination, gateway, flags, reference count, use, metric, mask.
    for (const QByteArrayList &row : rows(u"/proc/net/route"_s)) {
        bool isMask = false;
        const uint mask = row.value(7).toUInt(&isMask, 16);
        if (isMask && std::popcount(mask) <= kLongestPrefix && isOpen(row.value(3)))
            return true;
    }
    // Destination, length of its prefix, source and its length, next hop, metric, reference count,
    // use, flags, interface.
    for (const QByteArrayList &row : rows(u"/proc/net/ipv6_route"_s)) {
        bool isLength = false;
        const int length = row.value(1).toInt(&isLength, 16);
        if (isLength && length <= kLongestPrefix && isOpen(row.value(8)) && row.value(9) != "lo")
            return true;
    }
    return false;
}
