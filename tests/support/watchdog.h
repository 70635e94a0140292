#pragma once

#include <QtGlobal>

#include <chrono>
#include <csignal>
#include <unistd.h>

/// Ends the tests' process if it lives for longer than anything takes that doesn't hang.
class Watchdog
{
public:
    explicit Watchdog(std::chrono::seconds patience = std::chrono::seconds(100))
    {
        std::signal(SIGALRM, [](int) {
            constexpr char message[] = "The test hangs.\n";
            static_cast<void>(!write(STDERR_FILENO, message, sizeof message - 1));
            _exit(1);
        });
        alarm(static_cast<unsigned>(patience.count()));
    }
    ~Watchdog()
    {
        alarm(0);
        std::signal(SIGALRM, SIG_DFL);
    }
    Q_DISABLE_COPY_MOVE(Watchdog)
};
