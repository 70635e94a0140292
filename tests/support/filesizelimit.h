#pragma once

#include <csignal>
#include <sys/resource.h>

/// While it lives, the tests' process can write to no file beyond this size: a disk without room.
class FileSizeLimit
{
public:
    explicit FileSizeLimit(rlim_t size)
    {
        getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit limited{ .rlim_cur = size, .rlim_max = m_before.rlim_max };
        setrlimit(RLIMIT_FSIZE, &limited);
    }
    ~FileSizeLimit()
    {
        setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_handler);
    }
    FileSizeLimit(const FileSizeLimit &) = delete;
    FileSizeLimit &operator=(const FileSizeLimit &) = delete;

private:
    rlimit m_before{};
    void (*m_handler)(int) = std::signal(SIGXFSZ, SIG_IGN); // then the write fails instead
};
