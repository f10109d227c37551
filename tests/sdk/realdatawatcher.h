// Records the data of a live stream of the network library.
#pragma once

#include "sdk/streamblocks.h"

#include <QByteArray>
#include <QList>

#include <cstdint>
#include <mutex>

/// Records the data and the end of one stream. Thread-safe. Must outlive the stream.
class RealDataWatcher
{
public:
    /// The handler for NetSetRealDataCallback(); `user` is the watcher. Called on a thread of the library.
    static void take(std::int64_t, std::uint32_t type, const std::uint8_t *data, std::uint32_t size,
                     std::int64_t parameter, void *user)
    {
        auto *watcher = static_cast<RealDataWatcher *>(user);
        const std::scoped_lock lock(watcher->m_mutex);
        ++watcher->m_calls;
        if (static_cast<sdk::RealDataType>(type) == sdk::RealDataType::End)
            watcher->m_ends.append(static_cast<int>(parameter));
        else if (watcher->m_ends.isEmpty())
            watcher->m_bytes.append(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
        else
            watcher->m_hasLateData = true;
    }

    /// The number of handler calls so far: data and ends.
    [[nodiscard]] int calls() const { return locked(m_calls); }
    /// The data before the end.
    [[nodiscard]] QByteArray bytes() const { return locked(m_bytes); }
    /// The reasons (sdk::StreamEndReason) of the reported ends; at most one in a correct stream.
    [[nodiscard]] QList<int> ends() const { return locked(m_ends); }
    /// True if data has arrived after the end, which is a fault.
    [[nodiscard]] bool hasLateData() const { return locked(m_hasLateData); }

private:
    template<typename Value>
    Value locked(const Value &value) const
    {
        const std::scoped_lock lock(m_mutex);
        return value;
    }

    mutable std::mutex m_mutex;
    int m_calls = 0;
    QByteArray m_bytes;
    QList<int> m_ends;
    bool m_hasLateData = false;
};
