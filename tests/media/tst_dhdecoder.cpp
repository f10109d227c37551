#include "media/dhdecoder.h"
#include "media/videodataobserver.h"
#include "tests/datatable.h"
#include "tests/media/fakelibraries.h"

#include <atomic>
#include <thread>

using namespace std::chrono_literals;

namespace {

class RecordingObserver : public VideoDataObserver
{
public:
    void onDecodedFrame(const std::uint8_t *data, std::int32_t size, std::int32_t width, std::int32_t height,
                        sdk::DecodedFrameType type, std::int32_t rate, std::int32_t reserved) override
    {
        last = QString("%1 %2 %3 %4 %5 %6 %7");
        last = last.arg(data[0]).arg(size).arg(width).arg(height).arg(int(type)).arg(rate).arg(reserved);
        if (decoder)
            colour = decoder->pictureColour();
        ++count;
    }

    QString last;
    int count = 0; ///< the decoder's thread writes it, others read it after Stop()
    const CDHDecoder *decoder = nullptr;
    sdk::PictureColour colour = sdk::PictureColour::Bt601Limited;
};

const QStringList opened = {"DecoderAllocPort()", "DecoderSetStreamMode(3, 0)",
                            "DecoderOpenStream(3, null, 0, 8388608)"};
const QStringList played = opened + QStringList{"DecoderSetDecodeCallback(3, handler)", "DecoderPlay(3, 0)"};
const QStringList stopped = {"DecoderSetDecodeCallback(3, null)", "DecoderStop(3)", "DecoderCloseStream(3)",
                             "DecoderFreePort(3)"};

const std::uint8_t *bytesOf(const char *text)
{
    return reinterpret_cast<const std::uint8_t *>(text);
}

} // namespace

class TestDHDecoder : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void startsStepByStep_data()
    {
        const auto row = dataTable<QString, QStringList>({"failing", "calls"});
        row("all well", "", played);
        row("no port", "DecoderAllocPort", opened.mid(0, 1));
        row("stream mode refused", "DecoderSetStreamMode", played);
        row("not opened", "DecoderOpenStream", opened + QStringList{"DecoderFreePort(3)"});
        row("handler refused", "DecoderSetDecodeCallback", played);
        row("not played", "DecoderPlay", played + QStringList{"DecoderCloseStream(3)", "DecoderFreePort(3)"});
    }

    void startsStepByStep()
    {
        QFETCH(QString, failing);
        QFETCH(QStringList, calls);
        FakeLibraries fake;
        RecordingObserver observer;
        fake.calls.failOnly(failing);
        MessageLog log;
        CDHDecoder decoder(&observer, fake.decoder, fake.clock);
        const bool starts = calls == played;
        QCOMPARE(decoder.Start(), starts);
        QCOMPARE(fake.calls.take(), calls);
        QCOMPARE(log.take(), starts ? QStringList{"CDHDecoder::Start(): 3"} : QStringList());
        QCOMPARE(decoder.inputData(bytesOf("x"), 1), starts);

        fake.calls.take();
        QVERIFY(decoder.Stop());
        QCOMPARE(fake.calls.take(), starts ? stopped : QStringList());
        QCOMPARE(log.take(), starts ? QStringList{"CDHDecoder::Stop(): 3"} : QStringList());
        QVERIFY(decoder.Stop());
        QVERIFY(!decoder.inputData(bytesOf("x"), 1));
        QCOMPARE(fake.calls.take(), QStringList());
    }

    void countsTheLastSecond()
    {
        FakeLibraries fake;
        RecordingObserver observer;
        CDHDecoder decoder(&observer, fake.decoder, fake.clock);
        QVERIFY(decoder.Start());
        const QByteArray piece(1000, 'x');
        const PlainPicture picture(4, 2, 16, 128, 128);
        for (int picturesShown = 0; picturesShown < 60; ++picturesShown) { // 20 a second for three seconds
            decoder.inputData(bytesOf(piece.constData()), 1000);
            fake.decoder->deliver(picture.bytes, picture.information);
            fake.clock->advance(50ms);
        }
        StreamFigures figures = decoder.figures();
        QCOMPARE(figures.picturesASecond, 20.0);
        QCOMPARE(figures.kilobitsASecond, 160.0);
        QCOMPARE(figures.videoCodec, QString("H.265"));
        QCOMPARE(figures.audioCodec, QString("AAC"));
        QCOMPARE(figures.waitingBytes, 1200U);
        QCOMPARE(figures.damages, 2U);
        QCOMPARE(figures.skippedPictures, 3U);

        fake.clock->advance(500ms); // nothing comes any more
        QCOMPARE(decoder.figures().picturesASecond, 10.0);
        fake.clock->advance(5000ms);
        QCOMPARE(decoder.figures().picturesASecond, 0.0);
        decoder.Stop();
        QCOMPARE(decoder.figures().videoCodec, QString());
    }

    /// Data and pictures come from two threads while a third one starts and stops.
    void aStoppedDecoderCallsNobody()
    {
        FakeLibraries fake;
        RecordingObserver observer;
        CDHDecoder decoder(&observer, fake.decoder, fake.clock);
        std::atomic<bool> ends = false;
        std::atomic<int> delivered = 0;
        std::thread network([&] {
            while (!ends)
                decoder.inputData(bytesOf("x"), 1);
        });
        std::thread decoding([&] {
            const PlainPicture picture(4, 2, 16, 128, 128);
            while (!ends) {
                if (fake.decoder->deliver(picture.bytes, picture.information))
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
