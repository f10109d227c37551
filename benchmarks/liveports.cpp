#include "benchmarks/measurements.h"

#include "benchmarks/numberedstream.h"
#include "sdk/ffmpeg/ffmpegdecoderlibrary.h"

#include <memory>
#include <mutex>
#include <vector>

namespace {

constexpr int ports = 9;
constexpr std::uint32_t bufferSize = 8388608;

/// A port with the times of its frames.
class WatchedPort
{
public:
    WatchedPort(sdk::ffmpeg::FfmpegDecoderLibrary &library, NumberedStream::Time begin)
        : m_library(library), m_times(begin)
    {
        m_library.DecoderAllocPort(m_port);
        m_library.DecoderSetStreamMode(m_port, 0);
        m_library.DecoderOpenStream(m_port, nullptr, 0, bufferSize);
        m_library.DecoderSetDecodeCallback(m_port, &WatchedPort::handle, this);
        m_library.DecoderPlay(m_port, 0);
    }
    ~WatchedPort() { m_library.DecoderFreePort(m_port); }
    WatchedPort(const WatchedPort &) = delete;
    WatchedPort &operator=(const WatchedPort &) = delete;

    void send(const QByteArray &chunk)
    {
        m_library.DecoderInputData(m_port, reinterpret_cast<const std::uint8_t *>(chunk.constData()),
                                   static_cast<std::uint32_t>(chunk.size()));
    }

    [[nodiscard]] FrameTimes times()
    {
        const std::lock_guard lock(m_mutex);
        m_times.end();
        return m_times;
    }
    [[nodiscard]] double skippedFrames() const
    {
        sdk::DecoderStatus status = {};
        m_library.DecoderGetStatus(m_port, status);
        return status.skippedFrames;
    }

private:
    static void handle(std::int32_t, const std::uint8_t *data, std::int32_t,
                       const sdk::DecodedFrameInformation *, void *user)
    {
        auto *port = static_cast<WatchedPort *>(user);
        const std::lock_guard lock(port->m_mutex);
        port->m_times.note(NumberedStream::numberOf(data), std::chrono::steady_clock::now());
    }

    sdk::ffmpeg::FfmpegDecoderLibrary &m_library;
    std::int32_t m_port = -1;
    std::mutex m_mutex; // guards m_times
    FrameTimes m_times;
};

} // namespace

QList<BenchmarkResult> measureLivePorts(const NumberedStream &stream)
{
    sdk::ffmpeg::FfmpegDecoderLibrary library;
    std::vector<std::unique_ptr<WatchedPort>> watched;
    const NumberedStream::Time begin = std::chrono::steady_clock::now() + std::chrono::seconds(1);
    for (int port = 0; port < ports; ++port) {
        watched.push_back(
            std::make_unique<WatchedPort>(library, NumberedStream::startOf(port, ports, begin)));
    }
    stream.send(ports, begin, [&](int port, const QByteArray &chunk) { watched[port]->send(chunk); });
    std::vector<FrameTimes> times;
    double skipped = 0;
    for (const auto &port : watched) {
        times.push_back(port->times());
        skipped += port->skippedFrames();
    }
    return resultsOf(QStringLiteral("nine decoder ports of 1440p"), times, skipped);
}
