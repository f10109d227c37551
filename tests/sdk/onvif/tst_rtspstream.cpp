// Live streams over RTSP, from a device on the loopback interface to decoded frames.
#include "tests/datatable.h"
#include "tests/sdk/ffmpeg/testport.h"
#include "tests/sdk/onvif/rtspserver.h"
#include "tests/sdk/onvif/streamwatcher.h"

namespace sdk::onvif {

using ffmpeg::LiveStream;
using ffmpeg::Patches;
using ffmpeg::SoundFormat;
using ffmpeg::TestPort;
using ffmpeg::VideoFormat;

namespace {

constexpr int frames = 12;
constexpr int keyEvery = 5;                                // number of different frames
constexpr int samples = 1024;                              // for each frame
const QByteArray header = QByteArray::fromHex("1a45dfa3"); // begins the container

/// The encoding and the packets of a device.
struct Sending
{
    QByteArray encoder = "libx264";
    QByteArray options;
    QByteArray sound; ///< its encoder; empty for none
    int soundRate = 8000;
    int width = 128;
    int height = 96;

    /// A stream without its first frame, which the frames up to the next key frame depend on.
    [[nodiscard]] RtpSource source() const
    {
        VideoFormat format;
        format.encoder = encoder.constData();
        format.options = options.constData();
        format.keyEvery = keyEvery;
        format.width = width;
        format.height = height;
        if (encoder == "mjpeg")
            format.pixels = AV_PIX_FMT_YUVJ420P;
        const SoundFormat soundFormat{sound.constData(), soundRate};
        const std::unique_ptr<LiveStream> stream = sound.isEmpty()
                                                       ? std::make_unique<LiveStream>(format)
                                                       : std::make_unique<LiveStream>(format, soundFormat);
        QByteArray container = stream->head();
        for (int number = 0; number < frames; ++number) {
            const QByteArray frame = stream->frame(Patches::numbered(number));
            container += number == 0 ? QByteArray() : frame;
            container += sound.isEmpty() ? QByteArray() : stream->tone(samples);
        }
        return RtpSource::of(container);
    }
};

RtspOrder orderOf(const RtspServer &server)
{
    RtspOrder order;
    order.url = server.url();
    return order;
}

/// The numbers in the delivered frames, below the period of Patches; -1 for an unknown frame.
QString numbersOf(const QList<ffmpeg::Delivered> &delivered)
{
    constexpr double noticeable = 12;
    QStringList numbers;
    for (const ffmpeg::Delivered &frame : delivered) {
        int number = keyEvery - 1;
        while (number >= 0 && distance(frame, Patches::numbered(number)) > noticeable)
            --number;
        numbers.append(QString::number(number));
    }
    return numbers.join(' ');
}

} // namespace

class TestRtspStream : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void videoAndSoundArrive_data();
    void videoAndSoundArrive();
    void anotherFrameSizeStartsANewHeader();
    void restartsOnRequest();
};

void TestRtspStream::videoAndSoundArrive_data()
{
    const auto row = dataTable<QByteArray, QByteArray, QByteArray, int, QByteArray, bool, QString, QString>(
        {"encoder", "options", "sound", "soundRate", "leftOut", "datagrams", "codecs", "numbers"});
    const QString fromKey = QStringLiteral("0 1 2 3 4 0 1");
    const QString h264 = QStringLiteral("H.264 ");
    row("H.264 and G.711A", "libx264", "", "pcm_alaw", 8000, "", false, h264 + "G.711A", fromKey);
    row("H.264 in slices", "libx264", "slices=4", "", 0, "", false, h264, fromKey);
    row("parameters among the frames", "libx264", "x264-params=repeat-headers=1", "", 0, "fmtp:96", false,
        h264, fromKey);
    row("reordered frames", "libx264", "bf=2", "", 0, "", false, h264, "0 1 2 3 4 0 1 2");
    row("H.265 and AAC", "libx265", "", "aac", 16000, "", false, "H.265 AAC", fromKey);
    row("MJPEG and G.711Mu", "mjpeg", "huffman=default", "pcm_mulaw", 8000, "", false, "MJPEG G.711Mu",
        "1 2 3 4 " + fromKey);
    row("PCM", "libx264", "", "pcm_s16be", 16000, "", false, h264 + "PCM", fromKey);
    row("AAC without its parameters", "libx264", "", "aac", 16000, "fmtp:97", false, h264, fromKey);
    row("datagrams", "libx264", "", "pcm_alaw", 8000, "", true, h264 + "G.711A", fromKey);
}

void TestRtspStream::videoAndSoundArrive()
{
    QFETCH(const QByteArray, encoder);
    QFETCH(const QByteArray, options);
    QFETCH(const QByteArray, sound);
    QFETCH(const int, soundRate);
    QFETCH(const QByteArray, leftOut);
    QFETCH(const bool, datagrams);
    QFETCH(const QString, codecs);
    QFETCH(const QString, numbers);
    const RtpSource source = Sending{encoder, options, sound, soundRate}.source();
    RtspScript script;
    script.description = leftOut.isEmpty() ? source.description : source.descriptionWithout(leftOut);
    script.packets = source.packets;
    script.onlyDatagrams = datagrams;
    const RtspServer server(script);
    TestPort port;
    StreamWatcher watcher(orderOf(server), [&port](const QByteArray &bytes) { port.push(bytes); });
    const bool plays = !watcher.stream().waitForResponse();
    QTRY_COMPARE(watcher.end() + watcher.endText(), QString());
    QVERIFY(plays);
    QTRY_COMPARE(numbersOf(port.receiver.frames()), numbers);
    QCOMPARE(port.videoCodec() + ' ' + port.audioCodec(), codecs);
    QTRY_VERIFY(codecs.endsWith(' ') || port.receiver.sampleCount() >= samples);
    QCOMPARE(watcher.end(), QString());
    watcher.stream().stop();
    QCOMPARE(watcher.end(), QStringLiteral("stopped"));
    QTRY_COMPARE(server.requestsOf("TEARDOWN"), 1);
}

/// Some devices change the size of a stream without ending its session.
void TestRtspStream::anotherFrameSizeStartsANewHeader()
{
    const QByteArray repeated = "x264-params=repeat-headers=1";
    const RtpSource small = Sending{"libx264", repeated, "", 0}.source();
    const RtpSource large = Sending{"libx264", repeated, "", 0, 192, 128}.source();
    RtspScript script;
    script.description = small.description;
    script.packets = small.packets + large.packets;
    const RtspServer server(script);
    TestPort port;
    const StreamWatcher watcher(orderOf(server), [&port](const QByteArray &bytes) { port.push(bytes); });
    const auto widths = [&port] {
        QStringList texts;
        for (const ffmpeg::Delivered &frame : port.receiver.frames())
            texts.append(QString::number(frame.information.width));
        texts.removeDuplicates();
        return texts.join(' ');
    };
    QTRY_COMPARE(widths(), QStringLiteral("128 192"));
    QTRY_VERIFY(numbersOf(port.receiver.frames()).endsWith(QStringLiteral("0 1 2 3 4 0 1")));
    QCOMPARE(port.status().damages, 0U);
    QCOMPARE(watcher.bytes().count(header), 2);
}

/// The restart is requested at the first frame, so the next key frame has a header.
void TestRtspStream::restartsOnRequest()
{
    RtspScript script;
    const RtpSource source = Sending().source();
    script.description = source.description;
    script.packets = source.packets;
    const RtspServer server(script);
    std::atomic<RtspStream *> stream = nullptr;
    std::atomic<bool> isFirst = true;
    StreamWatcher watcher(orderOf(server), [&](const QByteArray &) {
        if (isFirst.exchange(false)) {
            stream.wait(nullptr);
            stream.load()->restart();
        }
    });
    stream = &watcher.stream();
    stream.notify_all();
    QTRY_COMPARE(watcher.bytes().count(header), 2);
}

} // namespace sdk::onvif

QTEST_GUILESS_MAIN(sdk::onvif::TestRtspStream)
#include "tst_rtspstream.moc"
