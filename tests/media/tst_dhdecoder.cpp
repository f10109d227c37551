#include "media/dhdecoder.h"
#include "media/videodataobserver.h"
#include "tests/media/fakelibraries.h"

#include <QTest>

#include <atomic>
#include <thread>

using namespace std::chrono_literals;

namespace {

class CountingObserver : public VideoDataObserver
{
public:
    void onDecodedFrame(const std::uint8_t *, std::int32_t, std::int32_t, std::int32_t, sdk::DecodedFrameType,
                        std::int32_t, std::int32_t) override
    {
        ++count;
    }

    int count = 0; ///< written on the decoder's thread, read by others after Stop()
};

const std::uint8_t *bytesOf(const char *text)
{
    return reinterpret_cast<const std::uint8_t *>(text);
}

} // namespace

class TestDHDecoder : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void countsTheLastSecond()
    {
        FakeLibraries fake;
        CountingObserver observer;
        CDHDecoder decoder(&observer, fake.decoder, fake.clock);
        QVERIFY(decoder.Start());
        const QByteArray piece(1000, 'x');
        const PlainFrame frame(4, 2, 16, 128, 128);
        for (int framesShown = 0; framesShown < 60; ++framesShown) { // 20 per second for three seconds
            decoder.inputData(bytesOf(piece.constData()), 1000);
            fake.decoder->deliver(frame.bytes, frame.information);
            fake.clock->advance(50ms);
        }
        StreamFigures figures = decoder.figures();
        QCOMPARE(figures.framesPerSecond, 20.0);
        QCOMPARE(figures.kilobitsPerSecond, 160.0);
        QCOMPARE(figures.videoCodec, QString("H.265"));
        QCOMPARE(figures.audioCodec, QString("AAC"));
        QCOMPARE(figures.waitingBytes, 1200U);
        QCOMPARE(figures.damages, 2U);
        QCOMPARE(figures.skippedFrames, 3U);

        fake.clock->advance(500ms); // no data arrives any more
        QCOMPARE(decoder.figures().framesPerSecond, 10.0);
        fake.clock->advance(5000ms);
        QCOMPARE(decoder.figures().framesPerSecond, 0.0);
        decoder.Stop();
        QCOMPARE(decoder.figures().videoCodec, QString());
    }

    /// Two threads deliver data and frames while a third one starts and stops the decoder.
    void aStoppedDecoderCallsNoHandler()
    {
        FakeLibraries fake;
        CountingObserver observer;
        CDHDecoder decoder(&observer, fake.decoder, fake.clock);
        std::atomic<bool> ends = false;
        std::atomic<int> delivered = 0;
        std::thread network([&] {
            while (!ends)
                decoder.inputData(bytesOf("x"), 1);
        });
        std::thread decoding([&] {
            const PlainFrame frame(4, 2, 16, 128, 128);
            while (!ends) {
                if (fake.decoder->deliver(frame.bytes, frame.information))
                    ++delivered;
            }
        });
        for (int round = 0; round < 50; ++round) {
            const int before = delivered;
            QVERIFY(decoder.Start());
            while (delivered == before)
                std::this_thread::yield();
            decoder.Stop();
            const int count = observer.count;
            std::this_thread::yield();
            QCOMPARE(observer.count, count);
        }
        ends = true;
        network.join();
        decoding.join();
    }
};

QTEST_GUILESS_MAIN(TestDHDecoder)
#include "tst_dhdecoder.moc"
