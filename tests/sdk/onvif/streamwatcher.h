// The data and the end of a live stream over RTSP, for tests.
#pragma once

#include "sdk/onvif/live/rtspstream.h"

#include <QByteArray>
#include <QString>

#include <atomic>
#include <mutex>

namespace sdk::onvif {

/// Opens a stream and stores its data. The destructor ends the stream. Thread-safe.
class StreamWatcher
{
public:
    /// Starts the stream of `order` (URL and account) and returns immediately. `sink` receives the bytes as
    /// well, on the stream's thread; it may be empty.
    explicit StreamWatcher(RtspOrder order, std::function<void(const QByteArray &)> sink = {})
        : m_sink(std::move(sink)),
          m_stream(
              std::move(order), [this](std::span<const std::uint8_t> bytes) { take(bytes); },
              [this](StreamEnd end, const std::string &text) { takeEnd(end, text); })
    {
    }

    /// All bytes of the stream so far, in Matroska.
    [[nodiscard]] QByteArray bytes() const
    {
        const std::lock_guard lock(m_mutex);
        return m_bytes;
    }

    /// The name of the reason why the stream has ended (streamEndName()); empty before the end.
    [[nodiscard]] QString end() const
    {
        const std::lock_guard lock(m_mutex);
        return m_end;
    }
    /// The description of that reason in English; may be empty.
    [[nodiscard]] QString endText() const
    {
        const std::lock_guard lock(m_mutex);
        return m_endText;
    }

    /// The number of handler calls so far: data and end.
    [[nodiscard]] int calls() const { return m_calls; }

    /// The stream, to stop or restart it.
    [[nodiscard]] RtspStream &stream() { return m_stream; }

private:
    void take(std::span<const std::uint8_t> bytes)
    {
        const QByteArray piece(reinterpret_cast<const char *>(bytes.data()),
                               static_cast<qsizetype>(bytes.size()));
        ++m_calls;
        if (m_sink)
            m_sink(piece);
        const std::lock_guard lock(m_mutex);
        m_bytes.append(piece);
    }

    void takeEnd(StreamEnd end, const std::string &text)
    {
        ++m_calls;
        const std::string_view name = streamEndName(end);
        const std::lock_guard lock(m_mutex);
        m_end = QString::fromLatin1(name.data(), static_cast<qsizetype>(name.size()));
        m_endText = QString::fromStdString(text);
    }

    const std::function<void(const QByteArray &)> m_sink;
    std::atomic<int> m_calls = 0;
    mutable std::mutex m_mutex;
    QByteArray m_bytes;
    QString m_end;
    QString m_endText;
    RtspStream m_stream; // last: it calls until it ends
};

} // namespace sdk::onvif
