#include "benchmarks/decodingport.h"
#include "benchmarks/measurements.h"
#include "benchmarks/teststream.h"
#include "sdk/onvif/live/rtspstream.h"
#include "tests/sdk/onvif/rtspserver.h"

#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <ctime>

namespace {

constexpr int frameCount = 300;
constexpr int runs = 5;
constexpr int patience = 120000;
constexpr double millisecondsPerSecond = 1000;
constexpr std::chrono::milliseconds period{40};

double processMilliseconds()
{
    timespec time{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    constexpr double nanosecondsPerMillisecond = 1e6;
    return static_cast<double>(time.tv_sec) * millisecondsPerSecond +
           static_cast<double>(time.tv_nsec) / nanosecondsPerMillisecond;
}

/// The stream of a device, which sends as fast as the client receives.
sdk::onvif::RtspScript scriptOf(const QByteArray &container)
{
    const sdk::onvif::RtpSource source = sdk::onvif::RtpSource::of(container);
    sdk::onvif::RtspScript script;
    script.description = source.description;
    script.packets = source.packets;
    script.closesAtEnd = true;
    return script;
}

/// The same in real time.
sdk::onvif::RtspScript paced(sdk::onvif::RtspScript script)
{
    constexpr qsizetype timeOffset = 4;
    constexpr qsizetype timeSize = 4;
    QByteArray last;
    std::chrono::milliseconds due{-period};
    for (sdk::onvif::RtpPacket &packet : script.packets) {
        if (packet.channel == 0 && packet.bytes.mid(timeOffset, timeSize) != last) {
            last = packet.bytes.mid(timeOffset, timeSize);
            due += period;
        }
        packet.due = std::max(due, std::chrono::milliseconds(0));
    }
    return script;
}

/// Receives and decodes a stream until that many frames were decoded.
void watch(const sdk::onvif::RtspServer &server, int frames)
{
    DecodingPort port;
    sdk::onvif::RtspOrder order;
    order.url = server.url();
    sdk::onvif::RtspStream stream(
        order, [&](std::span<const std::uint8_t> bytes) { port.push(bytes); },
        [](sdk::onvif::StreamEnd, const std::string &) {});
    port.waitFor(frames);
    stream.stop();
}

/// Runs ffmpeg on a stream. Returns its output; empty if it cannot run on this host.
QString peerOutput(const sdk::onvif::RtspServer &server, const QStringList &options)
{
    QProcess peer;
    peer.setProcessChannelMode(QProcess::MergedChannels);
    peer.start(QStringLiteral("ffmpeg"),
               QStringList{QStringLiteral("-benchmark"), QStringLiteral("-threads"), QStringLiteral("1"),
                           QStringLiteral("-rtsp_transport"), QStringLiteral("tcp"), QStringLiteral("-i"),
                           QString::fromStdString(server.url())} +
                   options + QStringList{QStringLiteral("-f"), QStringLiteral("null"), QStringLiteral("-")});
    peer.waitForFinished(patience);
    return QString::fromUtf8(peer.readAll());
}

std::optional<double> peerComputing(const sdk::onvif::RtspServer &server)
{
    static const QRegularExpression expression(QStringLiteral("bench: utime=([0-9.]+)s stime=([0-9.]+)s"));
    const QRegularExpressionMatch match = expression.match(peerOutput(server, {}));
    if (!match.hasMatch())
        return std::nullopt;
    return (match.captured(1).toDouble() + match.captured(2).toDouble()) * millisecondsPerSecond;
}

BenchmarkResult measureComputing(const sdk::onvif::RtspScript &script)
{
    QList<double> own;
    QList<double> peer;
    for (int run = 0; run < runs; ++run) { // alternating, so that both have the same background load
        const sdk::onvif::RtspServer server(script);
        const double before = processMilliseconds();
        watch(server, frameCount);
        const std::chrono::duration<double, std::milli> serving = server.computingTime();
        own.append(processMilliseconds() - before - serving.count());
        if (const std::optional<double> time = peerComputing(server))
            peer.append(*time);
    }
    return {.subject = QStringLiteral("processor time of %1 frames of 1080p H.264 over RTSP").arg(frameCount),
            .value = median(own),
            .unit = QStringLiteral("ms"),
            .budget = 4000,
            .peer = peer.isEmpty() ? std::nullopt : std::optional(median(peer)),
            .largestRatio = 1.2,
            .peerName = QStringLiteral("ffmpeg -f null")};
}

BenchmarkResult measureFirstFrame(const sdk::onvif::RtspScript &script)
{
    const sdk::onvif::RtspServer server(script);
    QList<double> own;
    QList<double> peer;
    for (int run = 0; run < runs; ++run) {
        own.append(medianMilliseconds(1, [&] { watch(server, 1); }));
        peer.append(medianMilliseconds(1, [&] {
            peerOutput(server, {QStringLiteral("-frames:v"), QStringLiteral("1")});
        }));
    }
    return {.subject = QStringLiteral("from the start of a stream over RTSP to its first frame, 1080p"),
            .value = median(own),
            .unit = QStringLiteral("ms"),
            .budget = 500,
            .peer = median(peer),
            .largestRatio = 1,
            .peerName = QStringLiteral("ffmpeg -f null")};
}

} // namespace

QList<BenchmarkResult> measureRtspStream()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("stream.mkv"));
    QFile file(path);
    if (!createTestStream(path, frameCount) || !file.open(QFile::ReadOnly)) {
        qWarning("a live stream cannot be created on this host");
        return {};
    }
    const sdk::onvif::RtspScript script = scriptOf(file.readAll());
    return {measureComputing(script), measureFirstFrame(paced(script))};
}
