// Frames and sound of complete streams.
#include "tests/datatable.h"
#include "tests/sdk/ffmpeg/testport.h"

#include <cmath>
#include <future>

using namespace sdk;
using namespace sdk::ffmpeg;

Q_DECLARE_METATYPE(VideoFormat)
Q_DECLARE_METATYPE(SoundFormat)

namespace {

constexpr double nearEnough = 4;

/// A frame of one grey level, which depends on the number.
Patches greyOf(int number)
{
    const Patches::Colour grey = {20 + 10 * number, 128, 128};
    return {{grey, grey, grey, grey}};
}

/// A clock that only advances on request.
class StandingClock : public Clock
{
public:
    [[nodiscard]] std::int64_t now() const override { return m_now; }
    bool wait(std::chrono::milliseconds, const std::stop_token &) override { return true; }
    void advance(int milliseconds) { m_now += milliseconds; }

private:
    std::atomic<std::int64_t> m_now = 1704067200000;
};

} // namespace

class FfmpegDecoderTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void decodesFrames_data()
    {
        const auto row = dataTable<VideoFormat, QString>({"format", "codec"});
        row("H.264", {.encoder = "libx264"}, "H.264");
        row("H.264, cropped to 1080 lines", {.encoder = "libx264", .width = 192, .height = 1080, .rate = 12},
            "H.264");
        row("H.264, 4:2:2 of 10 bits", {.encoder = "libx264", .pixels = AV_PIX_FMT_YUV422P10}, "H.264");
        row("H.265", {.encoder = "libx265", .width = 98, .height = 70, .rate = 30}, "H.265");
        row("H.265, 10 bits",
            {.encoder = "libx265", .width = 98, .height = 70, .pixels = AV_PIX_FMT_YUV420P10}, "H.265");
        row("MJPEG, 4:2:2, odd size",
            {.encoder = "mjpeg", .width = 65, .height = 33, .pixels = AV_PIX_FMT_YUVJ422P}, "MJPEG");
        row("MJPEG, 4:4:4, narrow",
            {.encoder = "mjpeg", .width = 17, .height = 121, .pixels = AV_PIX_FMT_YUVJ444P}, "MJPEG");
    }

    void decodesFrames()
    {
        QFETCH(VideoFormat, format);
        QFETCH(QString, codec);
        constexpr int count = 7; // twice the size of the ring buffer
        LiveStream stream(format);
        TestPort port;
        QVERIFY(port.push(stream.head() + stream.frames(count)));
        QTRY_COMPARE(port.receiver.frames().size(), count);
        const QList<Delivered> frames = port.receiver.frames();
        for (int number = 0; number < count; ++number) {
            const Delivered &frame = frames.at(number);
            QCOMPARE(frame.information.width, format.width);
            QCOMPARE(frame.information.height, format.height);
            QCOMPARE(frame.information.rate, format.rate);
            QVERIFY2(distance(frame, Patches::numbered(number)) < nearEnough,
                     qPrintable(QStringLiteral("frame %1 is off by %2")
                                    .arg(number)
                                    .arg(distance(frame, Patches::numbered(number)))));
            QVERIFY(frame.thread == frames.first().thread && frame.thread != std::this_thread::get_id());
        }
        QCOMPARE(port.videoCodec(), codec);
        QCOMPARE(port.audioCodec(), QString());
        QCOMPARE(port.status().damages, 0U);
    }

    void decodesColours_data()
    {
        const auto addRow = dataTable<VideoFormat, int>({"format", "colour"});
        const auto row = [&addRow](const char *name, const VideoFormat &format, FrameColour colour) {
            addRow(name, format, static_cast<int>(colour));
        };
        row("says nothing, small", {}, FrameColour::Bt601Limited);
        row("says nothing, 720 lines", {.width = 64, .height = 720}, FrameColour::Bt709Limited);
        row("says BT.709, small", {.colourSpace = AVCOL_SPC_BT709}, FrameColour::Bt709Limited);
        row("says BT.709, full", {.colourSpace = AVCOL_SPC_BT709, .range = AVCOL_RANGE_JPEG},
            FrameColour::Bt709Full);
        row("says BT.601, 720 lines", {.width = 64, .height = 720, .colourSpace = AVCOL_SPC_SMPTE170M},
            FrameColour::Bt601Limited);
        row("says full", {.range = AVCOL_RANGE_JPEG}, FrameColour::Bt601Full);
        row("H.265, full", {.encoder = "libx265", .colourSpace = AVCOL_SPC_BT709, .range = AVCOL_RANGE_JPEG},
            FrameColour::Bt709Full);
        row("MJPEG, 720 lines",
            {.encoder = "mjpeg",
             .width = 64,
             .height = 720,
             .pixels = AV_PIX_FMT_YUVJ420P,
             .range = AVCOL_RANGE_JPEG},
            FrameColour::Bt601Full);
        row("converted, full",
            {.pixels = AV_PIX_FMT_YUV444P, .colourSpace = AVCOL_SPC_BT709, .range = AVCOL_RANGE_JPEG},
            FrameColour::Bt709Full);
    }

    void decodesColours()
    {
        QFETCH(VideoFormat, format);
        QFETCH(int, colour);
        LiveStream stream(format);
        TestPort port;
        QVERIFY(port.push(stream.head() + stream.frames(1)));
        QTRY_COMPARE(port.receiver.frames().size(), 1);
        const Delivered frame = port.receiver.frames().first();
        QCOMPARE(static_cast<int>(frame.information.colour), colour);
        QVERIFY(distance(frame, Patches::numbered(0)) < nearEnough); // the values are those of the stream
    }

    void decodesSound_data()
    {
        const auto row = dataTable<SoundFormat, QString>({"format", "codec"});
        row("A-law", {.encoder = "pcm_alaw"}, "G.711A");
        row("mu-law", {.encoder = "pcm_mulaw", .rate = 16000}, "G.711Mu");
        row("PCM", {.encoder = "pcm_s16le", .rate = 44100}, "PCM");
        row("AAC, two channels", {.encoder = "aac", .rate = 48000, .channels = 2}, "AAC");
    }

    void decodesSound()
    {
        QFETCH(SoundFormat, format);
        QFETCH(QString, codec);
        LiveStream stream({.encoder = "mjpeg", .pixels = AV_PIX_FMT_YUVJ420P}, format);
        TestPort port;
        QVERIFY(port.push(stream.head() + stream.frames(1)));
        for (int piece = 0; piece < 10; ++piece)
            QVERIFY(port.push(stream.tone(format.rate / 10)));
        const int enough = format.rate * 9 / 10; // an encoder keeps its last packet
        QTRY_VERIFY(port.receiver.sampleCount() >= enough);
        QCOMPARE(port.receiver.frames().size(), 1);

        QList<std::int16_t> samples;
        for (const Delivered &sound : port.receiver.sounds()) {
            QCOMPARE(sound.information.rate, format.rate);
            QCOMPARE(sound.information.width, 0);
            const auto *values = reinterpret_cast<const std::int16_t *>(sound.bytes.constData());
            samples.append(QList<std::int16_t>(values, values + sound.bytes.size() / 2));
        }
        // The middle, after the start of the encoder: a tone of 500 Hz and its amplitude.
        samples = samples.mid(format.rate / 4, format.rate / 2);
        int risings = 0;
        double squares = 0;
        for (qsizetype index = 1; index < samples.size(); ++index) {
            risings += samples.at(index - 1) < 0 && samples.at(index) >= 0 ? 1 : 0;
            squares += std::pow(samples.at(index), 2);
        }
        QVERIFY2(std::abs(risings - 250) <= 2, qPrintable(QString::number(risings)));
        const double loudness = std::sqrt(squares / static_cast<double>(samples.size()));
        QVERIFY2(std::abs(loudness - 5792) < 400, qPrintable(QString::number(loudness)));
        QCOMPARE(port.audioCodec(), codec);
        QCOMPARE(port.status().damages, 0U);
    }

    void acceptsChunksOfAnySize_data()
    {
        const auto row = dataTable<int>({"pieceSize"});
        row("bytes", 1);
        row("three", 3);
        row("odd", 1021);
        row("complete", 10000000);
    }

    void acceptsChunksOfAnySize()
    {
        QFETCH(int, pieceSize);
        LiveStream first({.encoder = "libx264"}, SoundFormat{.encoder = "aac", .rate = 16000});
        LiveStream second(VideoFormat{.encoder = "libx265", .width = 96, .height = 64});
        QByteArray bytes = first.head();
        for (int number = 0; number < 4; ++number)
            bytes += first.frames(1, number) + first.tone(640);
        bytes += second.head() + second.frames(4, 4);
        TestPort port;
        QVERIFY(port.push(bytes, pieceSize));
        QTRY_COMPARE(port.receiver.frames().size(), 8);
        const QList<Delivered> frames = port.receiver.frames();
        for (int number = 0; number < 8; ++number)
            QVERIFY(distance(frames.at(number), Patches::numbered(number)) < nearEnough);
        QCOMPARE(frames.at(3).information.width, 64);
        QCOMPARE(frames.at(4).information.width, 96);
        QVERIFY(port.receiver.sampleCount() > 1000);
        QCOMPARE(port.videoCodec(), QStringLiteral("H.265"));
        QCOMPARE(port.status().damages, 0U);
    }

    void acceptsASplitHeader_data()
    {
        const auto row = dataTable<int>({"firstBytes"});
        row("first byte", 1);
        row("identifier", 4);
        row("more than half", 20);
    }

    void acceptsASplitHeader()
    {
        QFETCH(int, firstBytes);
        LiveStream first(VideoFormat{.encoder = "mjpeg", .pixels = AV_PIX_FMT_YUVJ420P});
        LiveStream second(VideoFormat{.encoder = "mjpeg", .pixels = AV_PIX_FMT_YUVJ420P});
        TestPort port;
        const QByteArray next = second.head() + second.frames(1, 1);
        QVERIFY(port.push(first.head() + first.frames(1) + next.first(firstBytes)));
        QTRY_COMPARE(port.status().waitingBytes, 0U); // the demuxer has read the start of the header
        QVERIFY(port.push(next.sliced(firstBytes)));
        QTRY_COMPARE(port.receiver.frames().size(), 2);
        QCOMPARE(port.status().damages, 0U);
    }

    void showsTheFirstFrameImmediately_data()
    {
        const auto row = dataTable<VideoFormat>({"format"});
        row("H.264", {.encoder = "libx264"});
        row("H.265", {.encoder = "libx265"});
        row("MJPEG", {.encoder = "mjpeg", .pixels = AV_PIX_FMT_YUVJ420P});
    }

    void showsTheFirstFrameImmediately()
    {
        QFETCH(VideoFormat, format);
        LiveStream stream(format, SoundFormat{}); // announced sound that does not arrive delays no frame
        TestPort port;
        QVERIFY(port.push(stream.head()));
        for (int number = 0; number < 4; ++number) {
            QVERIFY(port.push(stream.frames(1, number)));
            QTRY_COMPARE(port.receiver.frames().size(), number + 1);
        }
    }

    void ordersFramesByTime()
    {
        // Two frames between their reference frames, which are sent first.
        VideoFormat format;
        format.keyEvery = 30;
        format.options = "tune=film:bf=2:b_strategy=0:rc-lookahead=0:x264-params=scenecut=0";
        LiveStream stream(format);
        LiveStream next(VideoFormat{.encoder = "mjpeg", .pixels = AV_PIX_FMT_YUVJ420P});
        TestPort port;
        QVERIFY(port.push(stream.head() + stream.frames(12)));
        QVERIFY(port.push(next.head() + next.frames(1))); // waiting frames are delivered at the end
        QTRY_COMPARE(port.videoCodec(), QStringLiteral("MJPEG"));
        QTRY_COMPARE(port.receiver.frames().last().information.colour, FrameColour::Bt601Full);
        // The last frame follows those that the encoder has not returned.
        const QList<Delivered> frames = port.receiver.frames();
        QVERIFY(frames.size() > 8);
        for (int number = 0; number < frames.size() - 2; ++number) {
            const double off = distance(frames.at(number), Patches::numbered(number));
            QVERIFY2(off < nearEnough,
                     qPrintable(QStringLiteral("frame %1 is off by %2").arg(number).arg(off)));
        }
    }

    void skipsLateFrames_data()
    {
        // format: every fifth frame is a key frame
        // late: frames after the first one, which is delayed
        // period: between them
        // shown: including three frames that follow in time
        const auto row = dataTable<VideoFormat, bool, int, int, QList<int>>(
            {"format", "isLive", "late", "period", "shown"});
        const VideoFormat h264{.encoder = "libx264"};
        const VideoFormat h265{.encoder = "libx265"};
        const VideoFormat jpeg{.encoder = "mjpeg", .pixels = AV_PIX_FMT_YUVJ420P};
        row("in time", h264, true, 6, 10, QList<int>{0, 1, 2, 3, 4, 5, 6, 7, 8, 9});
        row("no live stream", h264, false, 6, 500, QList<int>{0, 1, 2, 3, 4, 5, 6, 7, 8, 9});
        row("on from the newest key frame", h264, true, 12, 120, QList<int>{0, 10, 12, 13, 14, 15});
        row("H.265", h265, true, 12, 120, QList<int>{0, 10, 12, 13, 14, 15});
        row("key frames only", jpeg, true, 12, 120, QList<int>{0, 12, 13, 14, 15});
        row("somewhat late, no key frame", h264, true, 3, 120, QList<int>{0, 1, 3, 4, 5, 6});
        row("late, a key frame is near", h264, true, 3, 450, QList<int>{0, 5, 6});
        row("late, a key frame is far", h264, true, 3, 250, QList<int>{0, 1, 3, 4, 5, 6});
        row("too late", h264, true, 3, 5000, QList<int>{0, 5, 6});
    }

    void skipsLateFrames()
    {
        QFETCH(VideoFormat, format);
        QFETCH(bool, isLive);
        QFETCH(int, late);
        QFETCH(int, period);
        QFETCH(QList<int>, shown);
        LiveStream stream(format);
        const auto clock = std::make_shared<StandingClock>();
        std::promise<void> entered;
        std::promise<void> leave;
        TestPort port(usualBuffer, isLive ? clock : nullptr);
        port.receiver.onDelivery = [&, isFirst = true]() mutable {
            if (!std::exchange(isFirst, false))
                return;
            entered.set_value();
            leave.get_future().wait();
        };
        QVERIFY(port.push(stream.head() + stream.frame(greyOf(0))));
        entered.get_future().wait();
        for (int number = 1; number <= late; ++number) {
            clock->advance(period);
            QVERIFY(port.push(stream.frame(greyOf(number))));
        }
        leave.set_value();
        QTRY_VERIFY(port.isIdle());
        for (int number = late + 1; number <= late + 3; ++number)
            QVERIFY(port.push(stream.frame(greyOf(number))));
        QTRY_VERIFY(port.isIdle());

        QList<int> numbers;
        for (const Delivered &frame : port.receiver.frames())
            numbers.append(qRound((static_cast<std::uint8_t>(frame.bytes.at(0)) - 20) / 10.0));
        QCOMPARE(numbers, shown);
        QCOMPARE(port.status().skippedFrames, static_cast<std::uint32_t>(late + 4 - shown.size()));
        QCOMPARE(port.status().damages, 0U);
    }

    void doesNotSkipWaitingFrames()
    {
        LiveStream stream(VideoFormat{.keyEvery = 50, .options = "bf=2"});
        const QByteArray bytes = stream.head() + stream.frames(20);
        const auto pushed = bytes.count("\x1F\x43\xB6\x75"); // the clusters, one for each frame
        const auto clock = std::make_shared<StandingClock>();
        Receiver receiver;
        FfmpegDecoderLibrary library(clock);
        std::int32_t port = -1;
        QVERIFY(library.DecoderAllocPort(port) && library.DecoderSetStreamMode(port, 0));
        QVERIFY(library.DecoderOpenStream(port, reinterpret_cast<const std::uint8_t *>(bytes.constData()),
                                          static_cast<std::uint32_t>(bytes.size()), usualBuffer));
        QVERIFY(library.DecoderSetDecodeCallback(port, &Receiver::handle, &receiver));
        clock->advance(200); // the stream is late from its first frame on
        QVERIFY(library.DecoderPlay(port, 0));
        DecoderStatus status{};
        QTRY_VERIFY(library.DecoderGetStatus(port, status) && status.waitingBytes == 0 &&
                    status.skippedFrames > 0);
        library.DecoderFreePort(port);
        QCOMPARE_LT(status.skippedFrames + receiver.frames().size(), pushed);
    }
};

QTEST_GUILESS_MAIN(FfmpegDecoderTest)

#include "tst_ffmpegdecoder.moc"
