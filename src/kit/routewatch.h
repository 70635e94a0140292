// Whether the kernel knows a way out of this machine, on Linux.
#pragma once

#include <QObject>

/// Tells when the routes have changed. Qt's network monitor hears of changes through NetworkManager
/// alone; on a Linux without it, it says for ever what it said at first.
class RouteWatch : public QObject
{
    Q_OBJECT
public:
    explicit RouteWatch(QObject *parent = nullptr);
    ~RouteWatch() override;

    /// Whether there is a default route, by either version of IP. Halves of one, as some private
    /// networks set them, count as well.
    [[nodiscard]] static bool hasWayOut();

Q_SIGNALS:
    void changed();

private:
    void hear();

    int m_socket = -1; ///< Of the kernel's news about links and routes.
};
