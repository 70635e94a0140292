#include "shell/launch/terminationsignals.h"

#include <QCoreApplication>
#include <QSocketNotifier>

#ifdef Q_OS_UNIX
#include <csignal>
#include <sys/socket.h>
#include <unistd.h>

namespace {

// A signal handler may do next to nothing; it writes a byte, and the event loop reads it.
int g_sockets[2];

void handleSignal(int)
{
    const char byte = 1;
    [[maybe_unused]] const auto written = ::write(g_sockets[0], &byte, 1);
}

} // namespace

void Launch::quitOnTerminationSignals()
{
    if (::socketpair(AF_UNIX, SOCK_STREAM, 0, g_sockets) != 0)
        return;
    auto *notifier
        = new QSocketNotifier(g_sockets[1], QSocketNotifier::Read, QCoreApplication::instance());
    QObject::connect(
        notifier, &QSocketNotifier::activated, notifier, [isRepeated = false]() mutable {
            char byte = 0;
            [[maybe_unused]] const auto taken = ::read(g_sockets[1], &byte, 1);
            // The window may ask about a note that isn't saved. Who sends a second signal has
            // decided.
            if (isRepeated)
                QCoreApplication::exit();
            else
                QCoreApplication::quit();
            isRepeated = true;
        });

    struct sigaction action = {};
    action.sa_handler = handleSignal;
    sigemptyset(&action.sa_mask);
    action.sa_flags = SA_RESTART;
    for (const int signal : { SIGTERM, SIGINT, SIGHUP }) {
        struct sigaction before = {};
        if (::sigaction(signal, nullptr, &before) == 0 && before.sa_handler != SIG_IGN)
            ::sigaction(signal, &action, nullptr);
    }
}
#else
void Launch::quitOnTerminationSignals() { }
#endif
