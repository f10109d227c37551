#include "media/audiooutput.h"
#include "media/videoitem.h"
#include "tests/datatable.h"
#include "tests/media/fakelibraries.h"

#include <QSignalSpy>

#include <thread>

namespace {

const QString overflow =
    "Error RealplayManager::pushToAudioBuffer m_audioBufferCurSize + size >= MAX_AUDIO_BUFFER_SIZE";

} // namespace

/// Sound without an output device. tst_sound checks the played sound.
class TestAudioOutput : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase()
    {
        qputenv("PULSE_SERVER", "unix:/nonexistent/no-sound");
        CDeviceFactory::registerBackEnd("dh", [] { return std::make_shared<SessionBackEnd>(); });
    }

    void cleanupTestCase() { CDeviceFactory::deleteInstance(); }

    void dropsDataThatDoesNotFit_data()
    {
        const auto row = dataTable<QList<int>, int, int>({"pieces", "fill", "drops"});
        row("one byte below the limit", QList<int>{102399}, 102399, 0);
        row("exactly the limit", QList<int>{102400}, 0, 1);
        row("reaches the limit exactly", QList<int>{102000, 400}, 102000, 1);
        row("a smaller chunk after a dropped one", QList<int>{102000, 400, 399}, 102399, 1);
        row("beyond 32 bits", QList<int>{1000, 0x7fffffff}, 1000, 1);
        row("negative", QList<int>{1000, -1000}, 1000, 1);
    }

    void dropsDataThatDoesNotFit()
    {
        QFETCH(QList<int>, pieces);
        QFETCH(int, drops);
        QObject owner;
        AudioOutput audio(&owner, [] {});
        const std::vector<std::uint8_t> sound(AudioOutput::bufferSize);
        MessageLog log;
        int pushed = 0;
        for (const int size : pieces)
            audio.push(sound.data(), size, [&] { ++pushed; });
        QTEST(audio.fill(), "fill");
        QCOMPARE(pushed, pieces.size());
        QCOMPARE(log.take().count(overflow), drops);
        audio.drain(); // without an output the buffered data is discarded
        QCOMPARE(audio.fill(), 0);
    }

    void onlyAViewWithSoundReceivesData()
    {
        FakeLibraries fake;
        VideoItem::registerLibraries(fake.libraries());
        VideoItem item;
        QSignalSpy rates(&item, &VideoItem::sigSampleRateChanged);
        QSignalSpy sounds(&item, &VideoItem::sigAudioDataChanged);
        QVERIFY(item.start());
        const auto deliver = [&](int rate) {
            std::thread([&] {
                fake.decoder->deliver(std::vector<std::uint8_t>(320), {.width = 0,
                                                                       .height = 0,
                                                                       .reserved = 0,
                                                                       .type = sdk::DecodedFrameType::Sound,
                                                                       .rate = rate,
                                                                       .colour = {}});
            }).join();
        };
        deliver(8000);
        QCOMPARE(rates.size(), 0);
        QCOMPARE(sounds.size(), 0);
        item.setIsAudioOutput(true);
        deliver(8000);
        deliver(8000);
        QCOMPARE(rates.size(), 1);
        QCOMPARE(sounds.size(), 2);
        deliver(16000); // in mid-stream
        QCOMPARE(rates.size(), 2);
        item.setIsAudioOutput(false);
        deliver(8000);
        QCOMPARE(rates.size(), 2);
        QCOMPARE(sounds.size(), 3);
        VideoItem::registerLibraries({});
    }
};

QTEST_MAIN(TestAudioOutput)
#include "tst_audiooutput.moc"
