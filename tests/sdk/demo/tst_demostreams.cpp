// What simulated channels stream, as a decoder sees it.
#include "tests/sdk/demo/streamreader.h"
#include "tests/sdk/demo/streamsite.h"

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

} // namespace

class StreamsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aStreamIsAsItIsSet_data()
    {
        QTest::addColumn<int>("compression");
        QTest::addColumn<QSize>("size");
        QTest::addColumn<int>("codec");
        QTest::addColumn<int>("colours");
        QTest::addColumn<int>("range");
        const QSize small(352, 288);
        const QSize large(1280, 720);
        QTest::newRow("H.264") << 7 << small << int(AV_CODEC_ID_H264) << int(AVCOL_SPC_SMPTE170M)
                               << int(AVCOL_RANGE_MPEG);
        QTest::newRow("H.264, large")
            << 7 << large << int(AV_CODEC_ID_H264) << int(AVCOL_SPC_BT709) << int(AVCOL_RANGE_MPEG);
        QTest::newRow("H.265") << 8 << small << int(AV_CODEC_ID_HEVC) << int(AVCOL_SPC_SMPTE170M)
                               << int(AVCOL_RANGE_MPEG);
        QTest::newRow("H.265, large")
            << 8 << large << int(AV_CODEC_ID_HEVC) << int(AVCOL_SPC_BT709) << int(AVCOL_RANGE_MPEG);
        QTest::newRow("MJPEG") << 5 << large << int(AV_CODEC_ID_MJPEG) << int(AVCOL_SPC_BT470BG)
                               << int(AVCOL_RANGE_JPEG);
        QTest::newRow("a codec of old devices")
            << 0 << small << int(AV_CODEC_ID_H264) << int(AVCOL_SPC_SMPTE170M) << int(AVCOL_RANGE_MPEG);
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
        QTest::addColumn<int>("format"); // as configurations number it; 0 for none
        QTest::addColumn<int>("frequency");
        QTest::addColumn<int>("codec");
        QTest::newRow("G.711A") << 1 << 8000 << int(AV_CODEC_ID_PCM_ALAW);
        QTest::newRow("PCM") << 2 << 8000 << int(AV_CODEC_ID_PCM_S16LE);
        QTest::newRow("G.711Mu") << 3 << 16000 << int(AV_CODEC_ID_PCM_MULAW);
        QTest::newRow("AAC") << 5 << 16000 << int(AV_CODEC_ID_AAC);
        QTest::newRow("AAC, slow") << 5 << 8000 << int(AV_CODEC_ID_AAC);
        QTest::newRow("off") << 0 << 8000 << int(AV_CODEC_ID_NONE);
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

    void channelsCanBeToldApart()
    {
        const StreamSite site(smallCamera(3));
        std::array<Watcher, 3> watchers;
        std::array<DecodedPicture, 3> pictures;
        for (std::size_t channel = 0; channel < watchers.size(); ++channel)
            QVERIFY(site.watch(watchers[channel], static_cast<std::int32_t>(channel)) != 0);
        site.step(1, 3);
        for (std::size_t channel = 0; channel < watchers.size(); ++channel)
            pictures[channel] = decodedStreams(watchers[channel].bytes()).value(0).pictures.value(0);
        for (const auto &[one, other] : {std::pair(0U, 1U), std::pair(1U, 2U), std::pair(0U, 2U)}) {
            const double colours = difference(pictures[one].blue, pictures[other].blue) +
                                   difference(pictures[one].red, pictures[other].red);
            QVERIFY2(colours > 10, qPrintable(QString::number(colours)));
        }
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

    void watchersShareAnEncoder()
    {
        const StreamSite site(smallCamera(1));
        Watcher first;
        Watcher second;
        Watcher sub;
        QVERIFY(site.watch(first) != 0);
        site.step(10);
        const std::int64_t handle = site.watch(second);
        QVERIFY(handle != 0);
        site.step(10);
        QVERIFY(site.watch(sub, 0, LiveStreamKind::Sub) != 0); // has an encoder of its own
        site.step(5, 2);
        QVERIFY(site.net->NetStreamFollowUp(handle, 0, 0));
        site.step(5, 2);
        const DecodedStream all = decodedStreams(first.bytes()).value(0);
        const DecodedStream late = decodedStreams(second.bytes()).value(0);
        QCOMPARE(all.pictures.size(), 31);
        QCOMPARE(late.pictures.size(), 20);
        QCOMPARE(decodedStreams(sub.bytes()).value(0).pictures.size(), 11);
        QList<qsizetype> keys;
        for (qsizetype place = 0; place < all.pictures.size(); ++place) {
            if (all.pictures[place].isKey)
                keys.append(place);
            // Two encoders would not come to the same bytes.
            if (place >= 11)
                QVERIFY(late.pictures[place - 11].luma == all.pictures[place].luma);
        }
        QCOMPARE(keys, QList<qsizetype>({0, 11, 26}));
        QCOMPARE(late.pictures.first().time, 0);
    }
};

QTEST_GUILESS_MAIN(StreamsTest)
#include "tst_demostreams.moc"
