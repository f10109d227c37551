#include "media/videoitem.h"
#include "tests/media/fakelibraries.h"
#include "tests/qml/configtools/qmlscene.h"

namespace {

const char *const scene = "    OV_MediaPlayer {\n"
                          "        objectName: 'player'; active: false; channel: 2; channelName: 'gate'\n"
                          "        connected: true\n"
                          "    }\n";

/// Refuses streams of some types.
class PickyNet : public FakeNet
{
public:
    using FakeNet::FakeNet;

    std::int64_t NetStartRealStream(std::int64_t login, std::int32_t channel, std::uintptr_t window,
                                    sdk::LiveStreamKind kind) override
    {
        const std::int64_t handle = FakeNet::NetStartRealStream(login, channel, window, kind);
        const std::lock_guard lock(m_mutex);
        m_started.append(
            QString("%1 of %2").arg(kind == sdk::LiveStreamKind::Sub ? "sub" : "main").arg(channel));
        return m_refused.contains(kind) ? 0 : handle;
    }

    void refuse(const QList<sdk::LiveStreamKind> &kinds)
    {
        const std::lock_guard lock(m_mutex);
        m_refused = kinds;
    }
    [[nodiscard]] QStringList started() const
    {
        const std::lock_guard lock(m_mutex);
        return m_started;
    }

private:
    mutable std::mutex m_mutex; ///< streams are requested on other threads
    QList<sdk::LiveStreamKind> m_refused;
    QStringList m_started;
};

} // namespace

/// The media player: its reaction to failed and interrupted streams.
class TestMediaPlayer : public QObject
{
    Q_OBJECT
private:
    std::unique_ptr<FakeLibraries> m_fake;
    std::shared_ptr<PickyNet> m_net;
    std::unique_ptr<QQmlEngine> m_engine;
    std::unique_ptr<QQuickWindow> m_window;
    QObject *m_player = nullptr;
    std::unique_ptr<QSignalSpy> m_asked;

    QVariant get(const char *name) const { return m_player->property(name); }
    void set(const char *name, const QVariant &value) const { m_player->setProperty(name, value); }

    /// Waits until the player requests the device's state, and reports it.
    void respond(bool isThere) const
    {
        QTRY_VERIFY(get("checking").toBool());
        respondUnasked(isThere);
    }
    void respondUnasked(bool isThere) const
    {
        QVERIFY(QMetaObject::invokeMethod(m_player, "takeCheckResult", Q_ARG(QVariant, isThere)));
    }
    void deliverFrame() const
    {
        const PlainFrame frame(4, 2, 16, 128, 128);
        const auto *video = m_player->findChild<VideoItem *>();
        QTRY_VERIFY(video->isStreaming());
        QVERIFY(m_fake->decoder->deliver(frame.bytes, frame.information));
        QTRY_VERIFY(get("playing").toBool());
    }

private Q_SLOTS:
    void initTestCase()
    {
        CDeviceFactory::registerBackEnd("dh", [] { return std::make_shared<SessionBackEnd>(); });
    }
    void cleanupTestCase() { CDeviceFactory::deleteInstance(); }

    void init()
    {
        m_fake = std::make_unique<FakeLibraries>();
        m_net = std::make_shared<PickyNet>(m_fake->ownedCalls);
        sdk::SdkLibraries libraries = m_fake->libraries();
        libraries.net = m_net;
        VideoItem::registerLibraries(libraries);
        m_engine = std::make_unique<QQmlEngine>();
        m_window = openScene(*m_engine, scene);
        QVERIFY(m_window);
        m_player = m_window->findChild<QObject *>("player");
        m_asked = std::make_unique<QSignalSpy>(m_player, SIGNAL(checkRequested()));
    }

    void cleanup()
    {
        m_asked.reset();
        m_window.reset();
        m_engine.reset();
        VideoItem::registerLibraries({});
        m_net.reset();
        m_fake.reset();
    }

    void failedStreamsAreRetried()
    {
        set("active", true);
        respond(false); // the device is offline: no stream is requested
        QVERIFY(get("waitingForRetry").toBool() && m_net->started().isEmpty());
        QTRY_COMPARE(m_asked->size(), 2); // by itself
        m_net->refuse({sdk::LiveStreamKind::Main, sdk::LiveStreamKind::Sub});
        respond(true);
        QTRY_COMPARE(m_net->started(), (QStringList{"sub of 2", "main of 2"}));
        QTRY_VERIFY(get("waitingForRetry").toBool() && !get("connecting").toBool());
        m_net->refuse({});
        QVERIFY(QMetaObject::invokeMethod(m_player, "reconnect"));
        respond(true);
        deliverFrame();
        QVERIFY(!get("waitingForRetry").toBool());

        const QSignalSpy failed(m_player, SIGNAL(failed()));
        m_fake->clock->advance(std::chrono::seconds(5)); // no data arrives any more
        QTRY_COMPARE(failed.size(), 1);
        QVERIFY(get("waitingForRetry").toBool() && !get("playing").toBool());
        respond(true);
        deliverFrame();
    }

    void withoutASubStreamTheMainOneIsShown()
    {
        m_net->refuse({sdk::LiveStreamKind::Sub});
        set("active", true);
        respond(true);
        QTRY_COMPARE(m_net->started(), (QStringList{"sub of 2", "main of 2"}));
        deliverFrame();
        set("channel", 3); // may have a sub stream
        respond(true);
        QTRY_COMPARE(m_net->started().mid(2), (QStringList{"sub of 3", "main of 3"}));
    }

    void onlyTheLastRequestCounts()
    {
        set("active", true);
        set("channel", 5);
        set("mainStream", true);
        respond(true);
        QCOMPARE(m_asked->size(), 1);
        QTRY_COMPARE(m_net->started(), QStringList{"main of 5"});

        set("channel", 6);
        QTRY_VERIFY(get("checking").toBool());
        set("active", false); // the window is closed while it asks
        respondUnasked(true);
        QVERIFY(!get("connecting").toBool());
        QTRY_COMPARE(m_net->started().size(), 1);
    }
};

QTEST_MAIN(TestMediaPlayer)
#include "tst_mediaplayer.moc"
