#include "benchmarks/numberedstream.h"

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <algorithm>
#include <thread>

namespace {

constexpr int numberBits = 11;
constexpr int bitSide = 64; // pixels
constexpr int width = 2560;
constexpr int patience = 300000;

/// The filter that draws the number of each frame in its upper left corner: a square for each bit, the lowest
/// one first.
QString numberFilter()
{
    QString filter;
    for (int bit = 0; bit < numberBits; ++bit) {
        for (const QString &part :
             {QStringLiteral("color=black:t=fill"),
              QStringLiteral("color=white:t=fill:enable='mod(floor(n/%1),2)'").arg(1 << bit)}) {
            filter += QStringLiteral(",drawbox=x=%1:y=0:w=%2:h=%2:").arg(bit * bitSide).arg(bitSide) + part;
        }
    }
    return filter.mid(1);
}

/// The chunks of a live stream of 1440p H.264: the header, then one for each frame. Empty if it cannot be
/// created on this host.
std::vector<QByteArray> createStream()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("stream.mkv"));
    QProcess maker;
    maker.start(QStringLiteral("ffmpeg"),
                {QStringLiteral("-v"),
                 QStringLiteral("error"),
                 QStringLiteral("-f"),
                 QStringLiteral("lavfi"),
                 QStringLiteral("-i"),
                 QStringLiteral("testsrc2=size=2560x1440:rate=25"),
                 QStringLiteral("-vf"),
                 numberFilter(),
                 QStringLiteral("-frames:v"),
                 QString::number(NumberedStream::frames),
                 QStringLiteral("-c:v"),
                 QStringLiteral("libx264"),
                 QStringLiteral("-preset"),
                 QStringLiteral("superfast"),
                 QStringLiteral("-tune"),
                 QStringLiteral("zerolatency"),
                 QStringLiteral("-g"),
                 QString::number(NumberedStream::keyPeriod / NumberedStream::period),
                 QStringLiteral("-b:v"),
                 QStringLiteral("6M"),
                 QStringLiteral("-f"),
                 QStringLiteral("matroska"),
                 QStringLiteral("-live"),
                 QStringLiteral("1"),
                 QStringLiteral("-cluster_time_limit"),
                 QStringLiteral("1"),
                 path});
    QFile file(path);
    if (!maker.waitForFinished(patience) || maker.exitCode() != 0 || !file.open(QFile::ReadOnly))
        return {};
    const QByteArray bytes = file.readAll();
    const QByteArray cluster = QByteArray::fromHex("1f43b675"); // each contains a frame
    std::vector<QByteArray> chunks;
    for (qsizetype begin = 0; begin < bytes.size();) {
        const qsizetype next = bytes.indexOf(cluster, begin + 1);
        const qsizetype end = next < 0 ? bytes.size() : next;
        chunks.push_back(bytes.mid(begin, end - begin));
        begin = end;
    }
    return chunks;
}

double milliseconds(std::chrono::steady_clock::duration duration)
{
    return std::chrono::duration<double, std::milli>(duration).count();
}

} // namespace

NumberedStream::NumberedStream() : m_chunks(createStream()) {}

int NumberedStream::numberOf(const std::uint8_t *luma)
{
    int number = 0;
    for (int bit = 0; bit < numberBits; ++bit) {
        constexpr int middle = 128;
        const std::size_t offset =
            std::size_t{width} * bitSide / 2 + std::size_t(bit) * bitSide + bitSide / 2;
        number |= luma[offset] > middle ? 1 << bit : 0;
    }
    return number;
}

void NumberedStream::send(int streams, Time begin,
                          const std::function<void(int stream, const QByteArray &chunk)> &send) const
{
    constexpr std::chrono::milliseconds pause{2};
    std::vector<std::size_t> sent(streams, 0);
    while (sent.back() < m_chunks.size()) {
        const Time now = std::chrono::steady_clock::now();
        for (int stream = 0; stream < streams; ++stream) {
            std::size_t &next = sent[stream];
            // The header is sent with the first frame.
            const auto due = [&] {
                return startOf(stream, streams, begin) + period * (std::max<std::size_t>(next, 1) - 1);
            };
            while (next < m_chunks.size() && due() <= now)
                send(stream, m_chunks[next++]);
        }
        std::this_thread::sleep_for(pause);
    }
}

void FrameTimes::note(int number, Time now)
{
    if (number == m_number)
        return;
    noteGap(now);
    m_number = number;
    ++shown;
    const double lag = milliseconds(now - (m_begin + NumberedStream::period * number));
    longestLag = std::max(longestLag, lag);
    constexpr int atTheEnd = NumberedStream::frames - 100;
    if (number >= atTheEnd)
        lastLag = std::max(lastLag, lag);
}

void FrameTimes::end()
{
    noteGap(std::max(m_last, m_begin + NumberedStream::period * NumberedStream::frames));
}

void FrameTimes::noteGap(Time now)
{
    if (m_number >= 0)
        longestGap = std::max(longestGap, milliseconds(now - m_last));
    m_last = now;
}

QList<BenchmarkResult> resultsOf(const QString &subject, const std::vector<FrameTimes> &times, double skipped)
{
    FrameTimes worst{NumberedStream::Time()};
    for (const FrameTimes &stream : times) {
        worst.longestGap = std::max(worst.longestGap, stream.longestGap);
        worst.longestLag = std::max(worst.longestLag, stream.longestLag);
        worst.lastLag = std::max(worst.lastLag, stream.lastLag);
        worst.shown += stream.shown;
    }
    const auto result = [&subject](const char *what, double value, double budget, const char *unit = "ms") {
        return BenchmarkResult{.subject = subject + QString::fromLatin1(what),
                               .value = value,
                               .unit = QString::fromLatin1(unit),
                               .budget = budget,
                               .peer = {},
                               .largestRatio = {},
                               .peerName = {}};
    };
    const double all = static_cast<double>(times.size()) * NumberedStream::frames;
    return {result(": lag after a minute", worst.lastLag, 1000),
            result(": longest lag", worst.longestLag, 1000),
            result(": longest time without a frame", worst.longestGap, 1000),
            result(": frames that were not decoded", skipped / all * 100, 100, "%"),
            result(": frames that were not displayed", (1 - worst.shown / all) * 100, 100, "%")};
}
