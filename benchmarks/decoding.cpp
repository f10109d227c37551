#include "benchmarks/decodingport.h"
#include "benchmarks/madestream.h"
#include "benchmarks/measurements.h"

#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <algorithm>

namespace {

constexpr int pictures = 300;
constexpr int runs = 5;
constexpr int patience = 120000;
constexpr std::uint32_t pieceSize = 65536;

/// Pushes a stream into a port of its own and waits for so many pictures.
void decode(const QByteArray &stream, int wanted)
{
    DecodingPort port;
    const auto *bytes = reinterpret_cast<const std::uint8_t *>(stream.constData());
    const auto size = static_cast<std::uint32_t>(stream.size());
    for (std::uint32_t place = 0; place < size; place += pieceSize)
        port.push({bytes + place, std::min(pieceSize, size - place)});
    port.waitFor(wanted);
}

/// What the peer says that it took, without its start; nothing when it does not work here.
std::optional<double> peerMilliseconds(const QString &path)
{
    QProcess peer;
    peer.setProcessChannelMode(QProcess::MergedChannels);
    peer.start(QStringLiteral("ffmpeg"), {QStringLiteral("-benchmark"), QStringLiteral("-threads"),
                                          QStringLiteral("1"), QStringLiteral("-i"), path,
                                          QStringLiteral("-f"), QStringLiteral("null"), QStringLiteral("-")});
    peer.waitForFinished(patience);
    static const QRegularExpression said(QStringLiteral("bench: .*rtime=([0-9.]+)s"));
    const QRegularExpressionMatch match = said.match(QString::fromUtf8(peer.readAll()));
    constexpr double millisecondsPerSecond = 1000;
    return match.hasMatch() ? std::optional(match.captured(1).toDouble() * millisecondsPerSecond)
                            : std::nullopt;
}

} // namespace

QList<Figure> measureDecoding()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("stream.mkv"));
    QFile file(path);
    if (!makeStream(path, pictures) || !file.open(QFile::ReadOnly))
        return {};
    const QByteArray stream = file.readAll();
    QList<double> own;
    QList<double> peer;
    for (int run = 0; run < runs; ++run) { // in turn, so that both feel the same unrest
        own.append(medianMilliseconds(1, [&] { decode(stream, pictures); }));
        if (const std::optional<double> time = peerMilliseconds(path))
            peer.append(*time);
    }
    return {{.subject = QStringLiteral("%1 pictures of 1080p H.264 through a port").arg(pictures),
             .value = median(own),
             .unit = QStringLiteral("ms"),
             .budget = 3000,
             .peer = peer.isEmpty() ? std::nullopt : std::optional(median(peer)),
             .largestRatio = 1.11, // nine tenths of its pictures a second
             .peerName = QStringLiteral("ffmpeg -f null")},
            {.subject = QStringLiteral("first picture of a port after its key picture"),
             .value = medianMilliseconds(runs, [&] { decode(stream.first(stream.size() / 10), 1); }),
             .unit = QStringLiteral("ms"),
             .budget = 300,
             .peer = {},
             .largestRatio = {},
             .peerName = {}}};
}
