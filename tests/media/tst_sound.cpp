#include "media/audiooutput.h"
#include "media/videoitem.h"
#include "tests/media/fakelibraries.h"
#include "tests/media/soundserver.h"

#include <QAudioDevice>
#include <QMediaDevices>
#include <QTest>

#include <cmath>
#include <numbers>
#include <stop_token>
#include <thread>

using namespace std::chrono_literals;

namespace {

/// The loudness of a tone in the last half second, 0 to 1; 0 if less was recorded.
double loudness(const QByteArray &heard, double frequency)
{
    constexpr int count = SoundServer::rate / 2;
    const int available = int(heard.size() / 2);
    if (available < count)
        return 0;
    const auto *samples = reinterpret_cast<const std::int16_t *>(heard.constData()) + (available - count);
    double sine = 0;
    double cosine = 0;
    for (int index = 0; index < count; ++index) {
        const double angle = 2 * std::numbers::pi * frequency * index / SoundServer::rate;
        sine += samples[index] * std::sin(angle);
        cosine += samples[index] * std::cos(angle);
    }
    return 2 * std::hypot(sine, cosine) / count / 32768;
}

/// A decoder's thread that delivers a continuous tone in chunks of 20 ms.
class Tone
{
public:
    Tone(FakeDecoder &decoder, int rate, double frequency)
        : m_thread([&decoder, rate, frequency](const std::stop_token &stop) {
              const int count = rate / 50;
              std::int64_t sample = 0;
              auto next = std::chrono::steady_clock::now();
              while (!stop.stop_requested()) {
                  std::vector<std::uint8_t> bytes(std::size_t(count) * 2);
                  auto *samples = reinterpret_cast<std::int16_t *>(bytes.data());
                  for (int index = 0; index < count; ++index, ++sample) {
                      const double angle = 2 * std::numbers::pi * frequency * double(sample) / rate;
                      samples[index] = std::int16_t(16000 * std::sin(angle));
                  }
                  decoder.deliver(bytes, {.width = 0,
                                          .height = 0,
                                          .reserved = 0,
                                          .type = sdk::DecodedFrameType::Sound,
                                          .rate = rate,
                                          .colour = {}});
                  next += 20ms;
                  std::this_thread::sleep_until(next); // the rate of the sound
              }
          })
    {
    }

private:
    std::jthread m_thread;
};

} // namespace

/// The played sound of a live view, on a private sound server.
class TestSound : public QObject
{
    Q_OBJECT
private:
    SoundServer m_server;
    std::unique_ptr<FakeLibraries> m_fake;
    std::unique_ptr<VideoItem> m_item;

    bool hears(double frequency)
    {
        return m_server.listen() &&
               QTest::qWaitFor([&] { return loudness(m_server.heard(), frequency) > 0.3; }, 15000);
    }

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_server.start());
        CDeviceFactory::registerBackEnd("dh", [] { return std::make_shared<SessionBackEnd>(); });
    }

    void init()
    {
        cleanup(); // not called by Qt if this function fails
        m_fake = std::make_unique<FakeLibraries>();
        VideoItem::registerLibraries(m_fake->libraries());
        m_item = std::make_unique<VideoItem>();
        QVERIFY(m_item->start());
        QTRY_VERIFY(!QMediaDevices::defaultAudioOutput().isNull());
    }

    void cleanup()
    {
        m_item.reset();
        VideoItem::registerLibraries({});
        m_fake.reset();
    }

    void cleanupTestCase()
    {
        CDeviceFactory::deleteInstance();
        AudioOutput::awaitRelease();
    }

    void aToneIsPlayed_data()
    {
        QTest::addColumn<int>("rate");
        QTest::newRow("8 kHz") << 8000;
        QTest::newRow("48 kHz") << 48000;
    }

    void aToneIsPlayed()
    {
        QFETCH(int, rate);
        m_item->setIsAudioOutput(true);
        const Tone tone(*m_fake->decoder, rate, 440);
        QVERIFY(hears(440));
        QVERIFY(loudness(m_server.heard(), 880) < 0.1); // no other
        m_item->setIsAudioOutput(false);
        QTRY_VERIFY_WITH_TIMEOUT(loudness(m_server.heard(), 440) < 0.01, 10000);
    }

    void aNewSampleRateKeepsThePitch()
    {
        m_item->setIsAudioOutput(true);
        {
            const Tone tone(*m_fake->decoder, 8000, 440);
            QVERIFY(hears(440));
        }
        const Tone tone(*m_fake->decoder, 16000, 600);
        QVERIFY(hears(600));
    }

    void continuesWhenTheOutputReturns()
    {
        m_item->setIsAudioOutput(true);
        const Tone tone(*m_fake->decoder, 8000, 440);
        QVERIFY(hears(440));
        QVERIFY(m_server.unplug());
        QTRY_VERIFY(QMediaDevices::defaultAudioOutput().isNull());
        QVERIFY(m_server.plug());
        QTRY_VERIFY(!QMediaDevices::defaultAudioOutput().isNull());
        QVERIFY(hears(440));
    }
};

QTEST_MAIN(TestSound)
#include "tst_sound.moc"
