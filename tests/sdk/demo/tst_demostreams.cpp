// What simulated channels stream, as a decoder sees it, and how streams end.
#include "tests/datatable.h"
#include "tests/sdk/demo/streamreader.h"
#include "tests/sdk/demo/streamsite.h"

#include <atomic>
#include <future>
#include <thread>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace sdk;
using namespace sdk::demo;

namespace {

/// How often samples cross zero upwards, in a second.
double pitchOf(const DecodedStream &stream)
{
    int crossings = 0;
    for (qsizetype place = 1; place < stream.samples.size(); ++place)
        crossings += stream.samples[place - 1] < 0 && stream.samples[place] >= 0 ? 1 : 0;
    return crossings * static_cast<double>(stream.samplingFrequency) /
           static_cast<double>(stream.samples.size());
}

/// Says whether a handler ran that had been promised not to run.
struct PromiseWatcher
{
    static void handle(std::int64_t, std::uint32_t, const std::uint8_t *, std::uint32_t, std::int64_t,
                       void *user)
    {
        auto *watcher = static_cast<PromiseWatcher *>(user);
        if (!watcher->mayRun)
            watcher->wasBroken = true;
        ++watcher->calls;
        watcher->calls.notify_all();
        std::this_thread::yield();
        if (!watcher->mayRun)
            watcher->wasBroken = true;
    }

    std::atomic<bool> mayRun = false;
    std::atomic<bool> wasBroken = false;
    std::atomic<int> calls = 0;
};

} // namespace

class StreamsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aStreamIsAsItIsSet_data()
    {
        const auto row =
            dataTable<int, QSize, int, int, int>({"compression", "size", "codec", "colours", "range"});
        const QSize small(352, 288);
        const QSize large(1280, 720);
        row("H.264", 7, small, int(AV_CODEC_ID_H264), int(AVCOL_SPC_SMPTE170M), int(AVCOL_RANGE_MPEG));
        row("H.264, large", 7, large, int(AV_CODEC_ID_H264), int(AVCOL_SPC_BT709), int(AVCOL_RANGE_MPEG));
        row("H.265", 8, small, int(AV_CODEC_ID_HEVC), int(AVCOL_SPC_SMPTE170M), int(AVCOL_RANGE_MPEG));
        row("H.265, large", 8, large, int(AV_CODEC_ID_HEVC), int(AVCOL_SPC_BT709), int(AVCOL_RANGE_MPEG));
        row("MJPEG", 5, large, int(AV_CODEC_ID_MJPEG), int(AVCOL_SPC_BT470BG), int(AVCOL_RANGE_JPEG));
        row("a codec of old devices", 0, small, int(AV_CODEC_ID_H264), int(AVCOL_SPC_SMPTE170M),
            int(AVCOL_RANGE_MPEG));
    }

    void aStreamIsAsItIsSet()
    {
        QFETCH(int, compression);
        QFETCH(QSize, size);
        QFETCH(int, codec);
        QFETCH(int, colours);
        QFETCH(int, range);
        const StreamSite site(smallCamera(1));
        site.change<VideoFormatItem>(EncodeItem::VideoFormat, [&](VideoFormatItem &item) {
            item.compression = compression;
            item.width = size.width();
            item.height = size.height();
            item.bitRate = 1024;
            item.frameRate = 25;
        });
        Watcher watcher;
        const std::int64_t handle = site.watch(watcher);
        QVERIFY(handle != 0);
        constexpr int pictures = 60;
        site.step(pictures);
        QVERIFY(site.net->NetStopRealStream(handle));
        QVERIFY(watcher.isPlain());
        QCOMPARE(watcher.handles(), QSet<std::int64_t>{handle});
        QVERIFY(watcher.largestPiece() <= 16384);

        const QList<DecodedStream> streams = decodedStreams(watcher.bytes());
        QCOMPARE(streams.size(), 1);
        const DecodedStream &stream = streams.first();
        QCOMPARE(int(stream.pictureCodec), codec);
        QCOMPARE(int(stream.colours), colours);
        QCOMPARE(int(stream.range), range);
        QCOMPARE(stream.pictures.size(), pictures + 1); // the first one came without a step
        QVERIFY(stream.pictures.first().isKey);
        QVERIFY(stream.pictures.at(50).isKey);
        for (qsizetype place = 0; place < stream.pictures.size(); ++place) {
            QCOMPARE(stream.pictures.at(place).size, size);
            QCOMPARE(stream.pictures.at(place).time, place * pictureTime.count());
            if (place > 0)
                QVERIFY(stream.pictures.at(place).luma != stream.pictures.at(place - 1).luma);
        }
        const double limit =
            codec == AV_CODEC_ID_MJPEG ? 12000 : 1200; // JPEG cannot get below a certain size
        const double kilobits = stream.pictureBytes * 8.0 / pictures * 25 / 1000;
        QVERIFY2(kilobits < limit, qPrintable(QString::number(kilobits)));
        QVERIFY(difference(stream.pictures.first().luma, stream.pictures.last().luma) < 20);
        constexpr int greys = 11; // in a row below the bars of colours
        for (int grey = 0; grey < greys; ++grey) {
            const int x = size.width() * (150 + 700 * (2 * grey + 1) / (2 * greys)) / 1000;
            const int y = size.height() * 285 / 1000;
            const double value = 255.0 * grey / (greys - 1);
            const double level = range == AVCOL_RANGE_JPEG ? value : 16 + value * 219 / 255;
            const auto shown =
                static_cast<std::uint8_t>(stream.pictures.last().luma.at(y * size.width() + x));
            QVERIFY2(std::abs(shown - level) < 6, qPrintable(QStringLiteral("%1: %2").arg(level).arg(shown)));
        }
    }

    void soundIsAsItIsSet_data()
    {
        // format: as configurations number it; 0 for none
        const auto row = dataTable<int, int, int>({"format", "frequency", "codec"});
        row("G.711A", 1, 8000, int(AV_CODEC_ID_PCM_ALAW));
        row("PCM", 2, 8000, int(AV_CODEC_ID_PCM_S16LE));
        row("G.711Mu", 3, 16000, int(AV_CODEC_ID_PCM_MULAW));
        row("AAC", 5, 16000, int(AV_CODEC_ID_AAC));
        row("AAC, slow", 5, 8000, int(AV_CODEC_ID_AAC));
        row("off", 0, 8000, int(AV_CODEC_ID_NONE));
    }

    void soundIsAsItIsSet()
    {
        QFETCH(int, format);
        QFETCH(int, frequency);
        QFETCH(int, codec);
        const StreamSite site(smallCamera(2));
        site.change<AudioCompressionItem>(EncodeItem::AudioCompression, [&](AudioCompressionItem &item) {
            item.audioEnable = format > 0 ? 1 : 0;
            item.format = format > 0 ? format : item.format;
        });
        site.change<AudioFormatItem>(EncodeItem::AudioFormat,
                                     [&](AudioFormatItem &item) { item.samplingFrequency = frequency; });
        Watcher watcher;
        Watcher neighbour;
        QVERIFY(site.watch(watcher) != 0 && site.watch(neighbour, 1) != 0);
        constexpr int pictures = 50;
        site.step(pictures, 2);
        const DecodedStream stream = decodedStreams(watcher.bytes()).value(0);
        QCOMPARE(int(stream.soundCodec), codec);
        QCOMPARE(stream.pictures.size(), pictures + 1);
        if (codec == AV_CODEC_ID_NONE)
            return;
        QCOMPARE(stream.samplingFrequency, frequency);
        const qsizetype missing = frequency * 2 - stream.samples.size();
        QVERIFY2(missing >= 0 && missing < 3 * 1024, qPrintable(QString::number(missing)));
        const double loudest = *std::max_element(stream.samples.begin(), stream.samples.end());
        QVERIFY2(loudest > 0.03 && loudest < 0.3, qPrintable(QString::number(loudest)));
        QVERIFY2(std::abs(pitchOf(stream) - 220) < 10, qPrintable(QString::number(pitchOf(stream))));
        QVERIFY(pitchOf(decodedStreams(neighbour.bytes()).value(0)) > 235);
    }

    void aChangeOfSettingsChangesTheRunningStream()
    {
        const StreamSite site(smallCamera(1));
        Watcher watcher;
        QVERIFY(site.watch(watcher) != 0);
        site.step(9);
        site.change<VideoFormatItem>(EncodeItem::VideoFormat, [](VideoFormatItem &item) {
            item.compression = 8;
            item.width = 640;
            item.height = 480;
            item.frameRate = 12.5F;
        });
        site.step(10); // five pictures of the new rate
        const QList<DecodedStream> streams = decodedStreams(watcher.bytes());
        QCOMPARE(streams.size(), 2);
        QCOMPARE(streams[0].pictures.size(), 10);
        QCOMPARE(streams[0].pictures.last().size, QSize(352, 288));
        QCOMPARE(streams[1].pictureCodec, AV_CODEC_ID_HEVC);
        QCOMPARE(streams[1].pictures.size(), 5);
        QCOMPARE(streams[1].pictures.first().size, QSize(640, 480));
        QVERIFY(streams[1].pictures.first().isKey);
        QCOMPARE(streams[1].pictures.last().time, 4 * 80);
    }

    void streamsEndWithWhatTheyComeFrom_data()
    {
        using End = std::function<void(const StreamSite &)>;
        const auto row = dataTable<End, bool>({"end", "handleStays"});
        const QString mac = smallCamera(3).mac;
        const auto faultRow = [&](const char *title, const FaultSetting &fault) {
            row(
                title, [mac, fault](const StreamSite &site) { site.site->setFault(mac, fault); }, true);
        };
        faultRow("no answer", {Fault::NoAnswer});
        faultRow("not initialised", {Fault::NotInitialised});
        faultRow("dropped", {Fault::DropsStreamAfter, 2});
        row(
            "removal", [mac](const StreamSite &site) { site.site->removeDevice(mac); }, true);
        row(
            "logout", [](const StreamSite &site) { site.net->NetLogout(site.login.handle); }, false);
        row(
            "reboot", [](const StreamSite &site) { site.net->NetRebootDevice(site.login.handle, 1s); }, true);
        const auto reset = [](const StreamSite &site) {
            const ResetSystemInput input = {sizeof(input)};
            ResetSystemOutput output = {sizeof(output)};
            site.net->NetResetSystem(site.login.handle, input, output, 1s);
        };
        row("reset", reset, true);
        const auto unplug = [mac](const StreamSite &site) {
            site.site->changeDevice(mac,
                                    [](auto &device, const auto &) { device.channels[0].connected = false; });
        };
        row("unplugged", unplug, true);
    }

    void streamsEndWithWhatTheyComeFrom()
    {
        QFETCH(std::function<void(const StreamSite &)>, end);
        QFETCH(bool, handleStays);
        const StreamSite site(smallCamera(3));
        Watcher watcher;
        const std::int64_t handle = site.watch(watcher);
        site.step(1);
        const QByteArray before = watcher.bytes();
        QCOMPARE(decodedStreams(before).value(0).pictures.size(), 2);
        end(site);
        site.clock->advance(30s);                       // beyond a reboot as well
        QVERIFY(!site.clock->waitForWaiters(1, 100ms)); // nothing runs any more
        QCOMPARE(watcher.bytes(), before);
        QCOMPARE(site.net->NetStopRealStream(handle), handleStays);
        QVERIFY(!site.net->NetStopRealStream(handle));
        QCOMPARE(lastError(*site.net), DemoError::UnknownHandle);
    }

    void handlersRunNoMoreAfterTheirEnd()
    {
        Scene scene;
        scene.devices = {smallCamera(3)};
        const auto site = DemoSite::create(scene, std::make_shared<SystemClock>());
        const std::shared_ptr<NetLibrary> net = site->libraries().net;
        net->NetInit();
        const Login login(*net, smallCamera(3).address, 8800);
        // Two threads, each starting and stopping on its own; they share the source.
        const auto startAndStop = [&](int rounds) {
            PromiseWatcher watcher;
            for (int round = 0; round < rounds; ++round) {
                const std::int64_t handle = net->NetStartRealStream(login.handle, 0, 0, LiveStreamKind::Main);
                watcher.mayRun = true;
                const int before = watcher.calls;
                net->NetSetRealDataCallback(handle, &PromiseWatcher::handle, &watcher, 1);
                if (round % 3 != 0)
                    watcher.calls.wait(before);
                if (round % 2 == 0)
                    net->NetSetRealDataCallback(handle, nullptr, nullptr, 1);
                else
                    net->NetStopRealStream(handle);
                watcher.mayRun = false;
                net->NetStopRealStream(handle);
            }
            return !watcher.wasBroken && watcher.calls > 0;
        };
        constexpr int rounds = 25;
        auto other = std::async(std::launch::async, startAndStop, rounds);
        QVERIFY(startAndStop(rounds));
        QVERIFY(other.get());
        QCOMPARE(site->requests().of(u"NetStartRealStream"_s).size(), 2 * rounds);

        PromiseWatcher last;
        last.mayRun = true;
        const std::int64_t handle = net->NetStartRealStream(login.handle, 1, 0, LiveStreamKind::Sub);
        QVERIFY(net->NetSetRealDataCallback(handle, &PromiseWatcher::handle, &last, 1));
        last.calls.wait(0);
        net->NetCleanup();
        last.mayRun = false;
        QVERIFY(!net->NetStopRealStream(handle));
        QCOMPARE(net->NetStartRealStream(login.handle, 0, 0, LiveStreamKind::Main), 0);
        QVERIFY(!last.wasBroken);
    }
};

QTEST_GUILESS_MAIN(StreamsTest)
#include "tst_demostreams.moc"
