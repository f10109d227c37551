// Simulates a full disk for the files of this process.
#pragma once

#include <csignal>
#include <sys/resource.h>

/// While the object exists, this process cannot write beyond the first `bytes` bytes of any file: a write is
/// truncated there, and the next one fails, as on a full disk.
class FileSizeLimit
{
public:
    explicit FileSizeLimit(rlim_t bytes)
    {
        getrlimit(RLIMIT_FSIZE, &m_before);
        rlimit limit = m_before;
        limit.rlim_cur = bytes;
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    FileSizeLimit(const FileSizeLimit &) = delete;
    FileSizeLimit &operator=(const FileSizeLimit &) = delete;
    ~FileSizeLimit()
    {
        setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_handler);
    }

private:
    void (*const m_handler)(int) = std::signal(SIGXFSZ, SIG_IGN); // it would end the process
    rlimit m_before = {};
};
