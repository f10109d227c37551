#include "benchmarks/measurements.h"

#include "sdk/ffmpeg/ffmpegdecoderlibrary.h"

#include <QByteArray>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <algorithm>
#include <array>
#include <chrono>
#include <mutex>
#include <thread>
#include <vector>

namespace {

using Milliseconds = std::chrono::milliseconds;
using Time = std::chrono::steady_clock::time_point;

constexpr int ports = 9;
constexpr int pictures = 1500; // a minute
constexpr Milliseconds period{40};
constexpr Milliseconds keyPeriod{2000};
constexpr int numberBits = 11;
constexpr int bitSide = 64; // pixels
constexpr int width = 2560;
constexpr int patience = 300000;
constexpr std::uint32_t bufferSize = 8388608;

/// The filter that writes the number of each picture into its upper left corner: a square for each bit, the
/// lowest one first.
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

int numberOf(const std::uint8_t *luma)
{
    int number = 0;
    for (int bit = 0; bit < numberBits; ++bit) {
        constexpr int middle = 128;
        const std::size_t place = std::size_t{width} * bitSide / 2 + std::size_t(bit) * bitSide + bitSide / 2;
        number |= luma[place] > middle ? 1 << bit : 0;
    }
    return number;
}

/// A live stream of 1440p H.264 as its head and its pictures. Empty when it cannot be made here.
std::vector<QByteArray> makeStream()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("stream.mkv"));
    QProcess maker;
    maker.start(QStringLiteral("ffmpeg"), {QStringLiteral("-v"),
                                           QStringLiteral("error"),
                                           QStringLiteral("-f"),
                                           QStringLiteral("lavfi"),
                                           QStringLiteral("-i"),
                                           QStringLiteral("testsrc2=size=2560x1440:rate=25"),
                                           QStringLiteral("-vf"),
                                           numberFilter(),
                                           QStringLiteral("-frames:v"),
                                           QString::number(pictures),
                                           QStringLiteral("-c:v"),
                                           QStringLiteral("libx264"),
                                           QStringLiteral("-preset"),
                                           QStringLiteral("superfast"),
                                           QStringLiteral("-tune"),
                                           QStringLiteral("zerolatency"),
                                           QStringLiteral("-g"),
                                           QString::number(keyPeriod / period),
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
    const QByteArray cluster = QByteArray::fromHex("1f43b675"); // each holds a picture
    std::vector<QByteArray> pieces;
    for (qsizetype begin = 0; begin < bytes.size();) {
        const qsizetype next = bytes.indexOf(cluster, begin + 1);
        const qsizetype end = next < 0 ? bytes.size() : next;
        pieces.push_back(bytes.mid(begin, end - begin));
        begin = end;
    }
    return pieces;
}

/// A port that gets a stream at its own times, and how late its pictures are.
class WatchedPort
{
public:
    WatchedPort(sdk::ffmpeg::FfmpegDecoderLibrary &library, Time begin) : m_library(library), m_begin(begin)
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

    /// When the picture of that number is sent.
    [[nodiscard]] Time due(std::size_t number) const { return m_begin + period * number; }

    void send(const QByteArray &piece)
    {
        m_library.DecoderInputData(m_port, reinterpret_cast<const std::uint8_t *>(piece.constData()),
                                   static_cast<std::uint32_t>(piece.size()));
    }

    struct Result
    {
        double longestGap = 0; ///< between two pictures, in milliseconds
        double longestLag = 0; ///< of a picture behind its sending
        double lag = 0;        ///< the longest one during the last four seconds
        double shown = 0;      ///< pictures
        double skipped = 0;    ///< pictures, as the port tells
    };
    [[nodiscard]] Result result()
    {
        sdk::DecoderStatus status = {};
        m_library.DecoderGetStatus(m_port, status);
        const std::lock_guard lock(m_mutex);
        note(std::max(m_last, due(pictures))); // silence at the end
        m_result.skipped = status.skippedPictures;
        return m_result;
    }

private:
    static void handle(std::int32_t, const std::uint8_t *data, std::int32_t,
                       const sdk::DecodedFrameInformation *, void *user)
    {
        auto *port = static_cast<WatchedPort *>(user);
        const Time now = std::chrono::steady_clock::now();
        const int number = numberOf(data);
        const std::lock_guard lock(port->m_mutex);
        port->note(now);
        const double lag = milliseconds(now - port->due(static_cast<std::size_t>(number)));
        constexpr int atTheEnd = pictures - 100;
        port->m_result.longestLag = std::max(port->m_result.longestLag, lag);
        if (number >= atTheEnd)
            port->m_result.lag = std::max(port->m_result.lag, lag);
        ++port->m_result.shown;
    }

    void note(Time now)
    {
        if (m_last != Time())
            m_result.longestGap = std::max(m_result.longestGap, milliseconds(now - m_last));
        m_last = now;
    }

    static double milliseconds(std::chrono::steady_clock::duration duration)
    {
        return std::chrono::duration<double, std::milli>(duration).count();
    }

    sdk::ffmpeg::FfmpegDecoderLibrary &m_library;
    const Time m_begin;
    std::int32_t m_port = -1;
    std::mutex m_mutex; // for the two below
    Result m_result;
    Time m_last;
};

} // namespace

QList<Figure> measureLivePorts()
{
    const std::vector<QByteArray> stream = makeStream();
    if (stream.size() < pictures)
        return {};
    sdk::ffmpeg::FfmpegDecoderLibrary library;
    std::vector<std::unique_ptr<WatchedPort>> watched;
    const Time begin = std::chrono::steady_clock::now() + std::chrono::seconds(1);
    for (int port = 0; port < ports; ++port) // their key pictures do not come at the same time
        watched.push_back(std::make_unique<WatchedPort>(library, begin + port * keyPeriod / ports));
    std::vector<std::size_t> sent(ports, 0);
    while (sent.back() < stream.size()) {
        for (std::size_t port = 0; port < ports; ++port) {
            // The head goes with the first picture.
            while (sent[port] < stream.size() &&
                   std::chrono::steady_clock::now() >=
                       watched[port]->due(std::max<std::size_t>(sent[port], 1) - 1)) {
                watched[port]->send(stream[sent[port]++]);
            }
        }
        std::this_thread::sleep_for(Milliseconds(2));
    }
    WatchedPort::Result worst;
    for (const auto &port : watched) {
        const WatchedPort::Result result = port->result();
        worst.longestGap = std::max(worst.longestGap, result.longestGap);
        worst.longestLag = std::max(worst.longestLag, result.longestLag);
        worst.lag = std::max(worst.lag, result.lag);
        worst.shown += result.shown / ports / pictures * 100;
        worst.skipped += result.skipped / ports / pictures * 100;
    }
    const auto figure = [](const char *subject, double value, double budget, const char *unit = "ms") {
        return Figure{.subject =
                          QStringLiteral("nine live streams of 1440p: ") + QString::fromLatin1(subject),
                      .value = value,
                      .unit = QString::fromLatin1(unit),
                      .budget = budget,
                      .peer = {},
                      .largestRatio = {},
                      .peerName = {}};
    };
    return {figure("lag after a minute", worst.lag, 1000), figure("longest lag", worst.longestLag, 1000),
            figure("longest time without a picture", worst.longestGap, 1000),
            figure("pictures left out", worst.skipped, 100, "%")};
}
