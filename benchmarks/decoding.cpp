#include "benchmarks/decodingport.h"
#include "benchmarks/measurements.h"
#include "benchmarks/teststream.h"

#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <algorithm>

namespace {

constexpr int frameCount = 300;
constexpr int runs = 5;
constexpr int patience = 120000;
constexpr std::uint32_t chunkSize = 65536;

/// Decodes a stream with a new port and waits for that many frames.
void decode(const QByteArray &stream, int frames)
{
    DecodingPort port;
    const auto *bytes = reinterpret_cast<const std::uint8_t *>(stream.constData());
    const auto size = static_cast<std::uint32_t>(stream.size());
    for (std::uint32_t offset = 0; offset < size; offset += chunkSize)
        port.push({bytes + offset, std::min(chunkSize, size - offset)});
    port.waitFor(frames);
}

/// The time that the peer reports, without its start; nothing if the peer cannot run on this host.
std::optional<double> peerMilliseconds(const QString &path)
{
    QProcess peer;
    peer.setProcessChannelMode(QProcess::MergedChannels);
    peer.start(QStringLiteral("ffmpeg"), {QStringLiteral("-benchmark"), QStringLiteral("-threads"),
                                          QStringLiteral("1"), QStringLiteral("-i"), path,
                                          QStringLiteral("-f"), QStringLiteral("null"), QStringLiteral("-")});
    peer.waitForFinished(patience);
    static const QRegularExpression expression(QStringLiteral("bench: .*rtime=([0-9.]+)s"));
    const QRegularExpressionMatch match = expression.match(QString::fromUtf8(peer.readAll()));
    constexpr double millisecondsPerSecond = 1000;
    return match.hasMatch() ? std::optional(match.captured(1).toDouble() * millisecondsPerSecond)
                            : std::nullopt;
}

} // namespace

QList<BenchmarkResult> measureDecoding()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("stream.mkv"));
    QFile file(path);
    if (!createTestStream(path, frameCount) || !file.open(QFile::ReadOnly))
        return {};
    const QByteArray stream = file.readAll();
    QList<double> own;
    QList<double> peer;
    for (int run = 0; run < runs; ++run) { // alternating, so that both have the same background load
        own.append(medianMilliseconds(1, [&] { decode(stream, frameCount); }));
        if (const std::optional<double> time = peerMilliseconds(path))
            peer.append(*time);
    }
    return {{.subject = QStringLiteral("%1 frames of 1080p H.264 through a port").arg(frameCount),
             .value = median(own),
             .unit = QStringLiteral("ms"),
             .budget = 3000,
             .peer = peer.isEmpty() ? std::nullopt : std::optional(median(peer)),
             .largestRatio = 1.11, // nine tenths of the frame rate of the peer
             .peerName = QStringLiteral("ffmpeg -f null")},
            {.subject = QStringLiteral("first frame of a port after its key frame"),
             .value = medianMilliseconds(runs, [&] { decode(stream.first(stream.size() / 10), 1); }),
             .unit = QStringLiteral("ms"),
             .budget = 300,
             .peer = {},
             .largestRatio = {},
             .peerName = {}}};
}
