// Streams that are damaged, truncated or malicious.
#include "tests/datatable.h"
#include "tests/sdk/ffmpeg/testport.h"

#include <random>

using namespace sdk;
using namespace sdk::ffmpeg;

Q_DECLARE_METATYPE(VideoFormat)

namespace {

constexpr double nearEnough = 4;
const VideoFormat mjpeg{.encoder = "mjpeg", .pixels = AV_PIX_FMT_YUVJ420P};

QByteArray randomBytes(qsizetype count, unsigned seed)
{
    std::mt19937 generator(seed);
    QByteArray bytes(count, '\0');
    std::generate(bytes.begin(), bytes.end(), [&] { return static_cast<char>(generator()); });
    return bytes;
}

} // namespace

class FfmpegDamageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void continuesAfterAGap_data()
    {
        // inFrame: the start of the gap, in bytes of the frame with that number
        const auto row = dataTable<VideoFormat, int, int, int>({"format", "inFrame", "begin", "size"});
        const VideoFormat h264{.encoder = "libx264"};
        const VideoFormat h265{.encoder = "libx265"};
        row("H.264, a byte of a frame", h264, 7, 60, 1);
        row("H.264, several frames", h264, 6, 60, 1500);
        row("H.265, several frames", h265, 6, 60, 1500);
        row("MJPEG, the size of a block", mjpeg, 7, 18, 2);
    }

    void continuesAfterAGap()
    {
        QFETCH(VideoFormat, format);
        QFETCH(int, inFrame);
        QFETCH(int, begin);
        QFETCH(int, size);
        constexpr int frames = 400;
        LiveStream stream(format);
        QByteArray bytes = stream.head() + stream.frames(inFrame);
        const qsizetype hole = bytes.size() + begin;
        // The demuxer may skip some kilobytes before it resynchronises: many of these small frames.
        bytes += stream.frames(frames - inFrame, inFrame);
        QVERIFY(bytes.size() > hole + size);
        bytes.remove(hole, size);
        TestPort port;
        QVERIFY(port.push(bytes, 777));
        QTRY_VERIFY(port.isIdle());

        const QList<Delivered> delivered = port.receiver.frames();
        QVERIFY2(delivered.size() >= inFrame + 5 && delivered.size() < frames,
                 qPrintable(QString::number(delivered.size())));
        for (int number = 0; number < inFrame; ++number)
            QVERIFY(distance(delivered.at(number), Patches::numbered(number)) < nearEnough);
        // The frames from the last key frame on are complete again.
        for (int fromEnd = 1; fromEnd <= 5; ++fromEnd) {
            const Delivered &frame = delivered.at(delivered.size() - fromEnd);
            QVERIFY(distance(frame, Patches::numbered(frames - fromEnd)) < nearEnough);
        }
        QVERIFY(port.status().damages > 0);
    }

    void showsNothingBeforeAKeyFrame_data()
    {
        const auto row = dataTable<VideoFormat>({"format"});
        row("H.264", {.encoder = "libx264"});
        row("H.265", {.encoder = "libx265"});
    }

    void showsNothingBeforeAKeyFrame()
    {
        QFETCH(VideoFormat, format);
        LiveStream stream(format);
        static_cast<void>(stream.frames(2)); // not pushed
        TestPort port;
        QVERIFY(port.push(stream.head() + stream.frames(6, 2)));
        QTRY_COMPARE(port.receiver.frames().size(), 3); // numbers 5, 6 and 7
        for (int index = 0; index < 3; ++index)
            QVERIFY(distance(port.receiver.frames().at(index), Patches::numbered(5 + index)) < nearEnough);
    }

    void acceptsTheNextStream_data()
    {
        const auto row = dataTable<QByteArray>({"before"});
        LiveStream h264(VideoFormat{.encoder = "libx264"}, SoundFormat{.encoder = "aac", .rate = 16000});
        const QByteArray whole = h264.head() + h264.frames(20) + h264.tone(16000);
        row("random bytes", randomBytes(300000, 1));
        row("a stream and random bytes", whole + randomBytes(300000, 3));
        row("a beginning of a header", QByteArray("\x1A\x45\xDF\xA3\x1A\x45\xDF", 7));
        row("no head", whole.mid(h264.head().size()));
        std::mt19937 generator(4);
        for (const unsigned oneOf : {20U, 200U, 2000U}) {
            QByteArray damaged = whole;
            for (char &byte : damaged) {
                if (generator() % oneOf == 0)
                    byte = static_cast<char>(generator());
            }
            const QByteArray title = "one byte is wrong of " + QByteArray::number(oneOf);
            row(title, damaged);
            row(title + ", but none of the head", h264.head() + damaged.mid(h264.head().size()));
        }
    }

    void acceptsTheNextStream()
    {
        QFETCH(QByteArray, before);
        LiveStream next(
            VideoFormat{.encoder = "mjpeg", .width = 33, .height = 21, .pixels = AV_PIX_FMT_YUVJ420P});
        TestPort port;
        QVERIFY(port.push(before, 1000));
        QTRY_VERIFY(port.isIdle());
        const qsizetype delivered = port.receiver.frames().size();
        QVERIFY(port.push(next.head() + next.frames(2)));
        QTRY_VERIFY(port.receiver.frames().size() >= delivered + 2);
        QCOMPARE(port.receiver.frames().last().information.width, 33);
        QVERIFY(distance(port.receiver.frames().last(), Patches::numbered(1)) < nearEnough);
        QCOMPARE(port.videoCodec(), QStringLiteral("MJPEG"));
        QCOMPARE(port.audioCodec(), QString());
    }

    void ignoresMarkersInsideFrames()
    {
        // A marker of four bytes can occur in frames by chance. Samples can have any value.
        const SoundFormat pcm{.encoder = "pcm_s16le", .rate = 16000};
        LiveStream stream(pcm);
        TestPort port;
        QVERIFY(port.push(stream.head()));
        for (const char *mark :
             {"\x1A\x45\xDF\xA3", "\x1A\x45\xDF\xA3\x8B\x42\x82\x88matroskb", "\x1F\x43\xB6\x75"}) {
            QByteArray piece = stream.tone(1600);
            piece.replace(piece.size() / 2, static_cast<qsizetype>(std::strlen(mark)), mark);
            QVERIFY(port.push(piece, 100));
        }
        QVERIFY(port.push(stream.tone(1600)));
        QTRY_COMPARE(port.receiver.sampleCount(), 4800); // the last chunk waits for the next one
        QCOMPARE(port.status().damages, 0U);
    }

    void limitsFrameSizes_data()
    {
        const auto row = dataTable<QByteArray>({"bytes"});
        LiveStream stream(mjpeg);
        const auto withSize = [&stream](int width, int height) {
            QByteArray bytes = stream.frames(1);
            const qsizetype header =
                bytes.indexOf(QByteArray("\xFF\xC0", 2)); // its size, precision, height, width
            for (int byte = 0; byte < 2; ++byte) {
                bytes[header + 5 + byte] = static_cast<char>(height >> (8 * (1 - byte)));
                bytes[header + 7 + byte] = static_cast<char>(width >> (8 * (1 - byte)));
            }
            return stream.head() + bytes;
        };
        row("MJPEG of 30000 x 30000", withSize(30000, 30000));
        row("MJPEG of 65500 x 16", withSize(65500, 16));
        row("MJPEG of 0 x 36", withSize(0, 36));
        LiveStream tall(VideoFormat{.encoder = "libx264", .width = 32, .height = 9000});
        row("H.264 of 32 x 9000", tall.head() + tall.frames(2));
    }

    void limitsFrameSizes()
    {
        QFETCH(QByteArray, bytes);
        LiveStream next(mjpeg);
        TestPort port;
        const double before = processMegabytes("VmPeak:");
        QVERIFY(port.push(bytes));
        QVERIFY(port.push(next.head() + next.frames(2)));
        QTRY_COMPARE(port.receiver.frames().size(), 2);
        QVERIFY(port.status().damages > 0);
        QVERIFY(processMegabytes("VmPeak:") - before < 500);
    }

    void packetSizesAreBounded()
    {
        // A cluster of unknown size with a block whose size field is 256 MB.
        const QByteArray swallow(
            "\x1F\x43\xB6\x75\x01\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xE7\x81\x01\xA3\x1F\xFF\xFF\xFE\x81", 21);
        LiveStream stream(mjpeg);
        TestPort port;
        QVERIFY(port.push(stream.head() + stream.frames(2)));
        QTRY_COMPARE(port.receiver.frames().size(), 2);
        QVERIFY(port.push(swallow));
        const double before = processMegabytes("VmRSS:");
        const QByteArray more = stream.frames(20, 2);
        for (int sent = 0; sent < 40 * 1024 * 1024; sent += more.size())
            QVERIFY(QTest::qWaitFor([&] { return port.push(more); }));
        QTRY_VERIFY(port.isIdle());
        QVERIFY(processMegabytes("VmRSS:") - before < 30);
        QVERIFY(port.status().damages > 0);
        QVERIFY(port.push(stream.head() + stream.frames(2))); // as when the view requests the stream again
        QTRY_COMPARE(port.receiver.frames().size(), 4);
    }
};

QTEST_GUILESS_MAIN(FfmpegDamageTest)

#include "tst_ffmpegdamage.moc"
