#include "device/batch/batches.h"
#include "media/videoitem.h"
#include "tests/datatable.h"
#include "tests/device/rowsbackend.h"
#include "tests/media/fakelibraries.h"
#include "tests/qml/configtools/qmlscene.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace {

const char *const scene =
    "    visible: false\n"
    "    property alias devices: table\n"
    "    DeviceTableModel { id: table; objectName: 'table'; deviceFactory: factory }\n"
    "    LiveWindow {\n"
    "        batches: allBatches; busyState: busy; deviceFactory: factory\n"
    "        localConfig: ({cursorPos: () => Qt.point(0, 0), getSearchConfigUsrename: () => 'admin',\n"
    "                       getSearchConfigPass: () => 'secret1'})\n"
    "    }\n";

QString ipportOf(int number)
{
    return QStringLiteral("192.168.1.%1:37777").arg(number);
}

} // namespace

/// Devices with the login results of a test. A session's handle is the number of its device; that of the
/// current session is 1000.
class LiveBackEnd : public RowsBackEnd
{
    Q_OBJECT
public:
    class Session final : public OwnSession
    {
    public:
        Session(int number, std::shared_ptr<QStringList> open) : m_number(number), m_open(std::move(open))
        {
            m_open->append(ipportOf(number));
        }
        ~Session() override { m_open->removeOne(ipportOf(m_number)); }
        [[nodiscard]] qint64 handle() const override { return m_number; }
        [[nodiscard]] int channelCount() const override { return 1; }
        [[nodiscard]] OwnImage takeImage(int channel, const QString &folder,
                                         const StepControl &) const override
        {
            return {.message = QStringLiteral("%1 of %2 for %3").arg(channel).arg(m_number).arg(folder)};
        }

    private:
        const int m_number;
        const std::shared_ptr<QStringList> m_open;
    };

    void openSession(const QString &ipport, const QString &, const QString &, bool, bool) override
    {
        current = ipport;
        Q_EMIT signalCDeviceSessionOpened(ipport, 0, channelsOf(numberOf(ipport)));
    }
    QVariant getConfigData(const QString &key, const QVariant &) override
    {
        return key == QLatin1String("loginHandle") ? QVariant(1000) : QVariant(current);
    }
    QVariantMap getDeviceInfo(const QString &ipport) override
    {
        const int number = numberOf(ipport);
        return {{"name", names.value(number, QStringLiteral("D%1").arg(number))},
                {"mac", QString::fromStdString(numberedMac(numberOf(ipport)).c_str())},
                {"ipport", ipport}};
    }
    QVariantMap accountOf(const QString &) override { return {{"account", "admin"}, {"password", "p"}}; }
    OwnSessionStep ownSessionStep(const OwnSessionOrder &order) override
    {
        const int number = numberOf(order.ipport);
        return [this, number](const StepControl &) {
            asked.append(ipportOf(number));
            OwnSessionOffer offer = {.result = results.value(number), .channels = channelsOf(number)};
            if (offer.result == 0)
                offer.session = std::make_shared<Session>(number, open);
            return offer;
        };
    }

    QList<DeviceStep> snapshotSteps(const QString &folder) override
    {
        QList<DeviceStep> steps;
        for (int channel = 0; channel < channels.value(numberOf(current), 1); ++channel) {
            steps.append([this, channel, folder](const StepControl &) {
                Q_EMIT signalSnapPictureToFile(channel, {},
                                               QStringLiteral("%1 of 1000 for %2").arg(channel).arg(folder));
                return StepOutcome{.result = snapshotFailed, .text = {}};
            });
        }
        return steps;
    }
    void runForPage(const PageStep &step, const std::stop_token &stop,
                    const std::function<void(const PageOutcome &outcome)> &ended) override
    {
        if (!holds)
            ended(step(StepControl()));
        else
            held = [step, stop, ended] {
                if (!stop.stop_requested())
                    ended(step(StepControl()));
            };
    }

    bool holds = false;         ///< the next step runs only when the test calls `held`
    std::function<void()> held; ///< null for none
    QString current;            ///< address of the current session's device
    QHash<int, int> results;    ///< of separate sessions, by number; 0 for others
    QHash<int, int> channels;   ///< channel counts by number; 1 for others
    QHash<int, QString> names;  ///< by number; "D20" and so on for others
    QStringList asked;          ///< requested separate sessions
    std::shared_ptr<QStringList> open = std::make_shared<QStringList>(); ///< open separate sessions

private:
    static int numberOf(const QString &ipport) { return ipport.section(u':', 0, 0).section(u'.', 3).toInt(); }
    [[nodiscard]] QVariantList channelsOf(int number) const
    {
        QVariantList list;
        for (int channel = 0; channel < channels.value(number, 1); ++channel)
            list.append(QVariantMap{
                {"channel", channel}, {"name", QStringLiteral("C%1").arg(channel)}, {"connected", true}});
        return list;
    }
};

/// The live window and the device list: navigation to the next device, and several devices at the same time.
class TestLiveWindow : public QObject
{
    Q_OBJECT
private:
    std::unique_ptr<FakeLibraries> m_fake;
    std::shared_ptr<LiveBackEnd> m_devices;
    std::unique_ptr<BatchEngine> m_batchEngine;
    std::unique_ptr<Batches> m_batches;
    std::unique_ptr<QQmlEngine> m_engine;
    std::unique_ptr<QQuickWindow> m_scene;
    QQuickWindow *m_window = nullptr;
    QObject *m_table = nullptr;
    QStringList m_streams;

    [[nodiscard]] QQuickItem *find(const QString &name) const
    {
        return findBelow(m_window->contentItem(), name, Sight::Visible);
    }
    [[nodiscard]] QString text(const QString &name) const
    {
        const QQuickItem *item = find(name);
        return item ? item->property("text").toString() : QString();
    }
    [[nodiscard]] QString textIn(int index, const QString &name) const
    {
        QQuickItem *player = find(QStringLiteral("liveCell%1").arg(index));
        const QQuickItem *item = player ? findBelow(player, name, Sight::Visible) : nullptr;
        return item ? item->property("text").toString() : QString();
    }
    /// All visible items of the window.
    [[nodiscard]] QList<QQuickItem *> visibleItems() const
    {
        QList<QQuickItem *> items = {m_window->contentItem()};
        for (qsizetype next = 0; next < items.size(); ++next) {
            const QList<QQuickItem *> children = items.at(next)->childItems();
            std::copy_if(children.cbegin(), children.cend(), std::back_inserter(items),
                         [](const QQuickItem *child) { return child->isVisible(); });
        }
        return items;
    }
    /// "name: message" of each snapshot, line by line.
    [[nodiscard]] QStringList snapshots() const
    {
        QMap<std::pair<qreal, qreal>, QString> texts;
        const QList<QQuickItem *> items = visibleItems();
        for (const QQuickItem *item : items) {
            if (item->objectName() != "snapshotName")
                continue;
            const QQuickItem *message = findBelow(item->parentItem(), "snapshotMessage", Sight::Visible);
            const QPointF position = item->mapToScene({});
            texts.insert({position.y(), position.x()},
                         item->property("text").toString() + ": " +
                             (message ? message->property("text").toString() : QString()));
        }
        return texts.values();
    }
    void click(const QString &name) const
    {
        QQuickItem *item = find(name);
        QVERIFY2(item, qPrintable(name));
        QTRY_VERIFY(item->width() > 0);
        const QPointF middle = item->mapToScene(QPointF(item->width() / 2, item->height() / 2));
        QTest::mouseClick(m_window, Qt::LeftButton, Qt::NoModifier, middle.toPoint());
    }
    void tick(const QList<int> &rows) const
    {
        for (const int row : rows)
            QVERIFY(QMetaObject::invokeMethod(m_table, "setChecked", Q_ARG(int, row), Q_ARG(bool, true)));
    }
    void openLive(int number, const QVariantList &chosen = {}) const
    {
        QVERIFY(QMetaObject::invokeMethod(m_window, "open", Q_ARG(QVariant, ipportOf(number)),
                                          Q_ARG(QVariant, 0), Q_ARG(QVariant, QVariant::fromValue(m_table)),
                                          Q_ARG(QVariant, chosen)));
        QVERIFY(QTest::qWaitForWindowActive(m_window));
        QTRY_VERIFY(find("liveCell0"));
    }
    /// "login of channel" of the requested streams, sorted, because several threads request them.
    QStringList startedStreams()
    {
        for (const QString &call : m_fake->calls.take()) {
            if (call.startsWith("NetStartRealStream("))
                m_streams.append(call.section('(', 1).section(", ", 0, 1).replace(", ", " of "));
        }
        m_streams.sort();
        return m_streams;
    }

private Q_SLOTS:
    void init()
    {
        m_streams.clear();
        m_fake = std::make_unique<FakeLibraries>();
        VideoItem::registerLibraries(m_fake->libraries());
        m_devices = std::make_shared<LiveBackEnd>();
        for (int number = 20; number < 25; ++number)
            m_devices->add({.address = QStringLiteral("192.168.1.%1").arg(number).toStdString(),
                            .mac = numberedMac(number),
                            .name = QStringLiteral("D%1").arg(number).toStdString(),
                            .state = number == 22 ? sdk::InitialisationBits::Uninitialised
                                                  : sdk::InitialisationBits::Initialised});
        CDeviceFactory::registerBackEnd("dh", [this] { return m_devices; });
        CDeviceFactory *factory = CDeviceFactory::getinstance();
        m_batchEngine = std::make_unique<BatchEngine>(nullptr);
        m_batches = std::make_unique<Batches>(*factory, *m_batchEngine, [] { return 2; });
        m_engine = std::make_unique<QQmlEngine>();
        m_scene = openScene(
            *m_engine, scene,
            {{"factory", factory}, {"allBatches", m_batches.get()}, {"busy", factory->busyState()}});
        QVERIFY(m_scene);
        m_window = m_scene->findChild<QQuickWindow *>("liveWindow");
        m_table = m_scene->findChild<QObject *>("table");
        QVERIFY(m_window && m_table);
        QVERIFY(QMetaObject::invokeMethod(m_table, "refresh"));
    }
    void cleanup()
    {
        delete m_window; // QML does not own it
        m_scene.reset();
        m_engine.reset();
        m_batches.reset();
        m_batchEngine.reset();
        CDeviceFactory::deleteInstance();
        m_devices.reset();
        VideoItem::registerLibraries({});
        m_fake.reset();
    }

    void navigationFollowsTheList()
    {
        openLive(21);
        QCOMPARE(text("liveDevicePosition"), "2 / 5");
        QTest::keyClick(m_window, Qt::Key_PageDown); // over the one that waits for its first password
        QCOMPARE(text("liveAddress"), ipportOf(23));
        QCOMPARE(text("liveDevicePosition"), "4 / 5");
        click("liveLaterButton");
        QCOMPARE(text("liveTitle"), "D24");
        QVERIFY(!find("liveLaterButton")->isEnabled());
        QTest::keyClick(m_window, Qt::Key_PageDown); // there is no further device
        QCOMPARE(text("liveTitle"), "D24");
        click("liveEarlierButton");
        QTest::keyClick(m_window, Qt::Key_PageUp);
        QTest::keyClick(m_window, Qt::Key_PageUp);
        QCOMPARE(text("liveAddress"), ipportOf(20));
        QVERIFY(!find("liveEarlierButton")->isEnabled() && find("liveLaterButton")->isEnabled());
        QCOMPARE(m_devices->current, ipportOf(20)); // the login has succeeded
    }

    void navigationFollowsTheSelectedDevices()
    {
        openLive(20, {QVariantMap{{"ipport", ipportOf(20)}}, QVariantMap{{"ipport", ipportOf(24)}}});
        QCOMPARE(text("liveDevicePosition"), "1 / 2");
        QTest::keyClick(m_window, Qt::Key_PageDown);
        QCOMPARE(text("liveAddress"), ipportOf(24));
        QVERIFY(!find("liveLaterButton")->isEnabled());
    }

    void devicesAreAddedToTheGrid()
    {
        m_devices->channels = {{21, 2}};
        m_devices->results = {{23, 2}}; // a wrong password
        openLive(20);
        QCOMPARE(textIn(0, "liveChannelName"), "C0");
        QVERIFY(!find("liveAddButton")->isEnabled());
        tick({1, 2, 3});
        QTRY_COMPARE(startedStreams(), QStringList("1000 of 0"));
        click("liveAddButton");
        QTRY_COMPARE(m_devices->asked, (QStringList{ipportOf(21), ipportOf(23)}));
        // The first channels of the devices, each in its own session. The small view shows the sub stream.
        QTRY_COMPARE(startedStreams(), (QStringList{"1000 of 0", "1000 of 0", "21 of 0"}));
        QCOMPARE(textIn(0, "liveChannelName"), "D20 · C0");
        QCOMPARE(textIn(1, "liveChannelName"), "D21 · C0");
        QCOMPARE(textIn(2, "liveStateText"), QStringLiteral("密码错误"));
        QCOMPARE(textIn(2, "liveRetryButton"), QStringLiteral("重新登录"));
        QVERIFY(!textIn(3, "liveStateText").isEmpty());
        QCOMPARE(text("liveHeading1"), "D21");
        QVERIFY(!find("liveRemove0") && find("liveRemove1"));

        tick({4}); // running streams continue
        click("liveAddButton");
        QTRY_COMPARE(startedStreams(), (QStringList{"1000 of 0", "1000 of 0", "21 of 0", "24 of 0"}));
        QCOMPARE(textIn(3, "liveChannelName"), "D24 · C0");

        click("liveChannel2"); // the second channel of D21 replaces D20
        QTRY_COMPARE(startedStreams(),
                     (QStringList{"1000 of 0", "1000 of 0", "21 of 0", "21 of 1", "24 of 0"}));
        QStringList open = *m_devices->open; // several threads open them
        open.sort();
        QCOMPARE(open, (QStringList{ipportOf(21), ipportOf(24)}));
        QCOMPARE(m_devices->asked.size(), 3); // a refused password is not sent again
        click("liveAddButton");               // all devices are shown
        QCOMPARE(m_devices->asked.size(), 3);

        click("liveRemove1");
        QCOMPARE(*m_devices->open, QStringList(ipportOf(24)));
        QCOMPARE(find("liveCell0")->property("channel").toInt(), -1);
        QCOMPARE(textIn(2, "liveChannelName"), "D23");
    }

    void thePageFollowsTheNumberOfCells()
    {
        m_devices->channels = {{20, 9}};
        openLive(20);
        click("liveOneButton");
        for (int page = 1; page < 6; ++page)
            click("liveNextButton");
        QTRY_COMPARE(text("livePage"), "6 / 9");
        tick({1});
        click("liveAddButton"); // two views need four cells
        QTRY_COMPARE(text("livePage"), "2 / 3");
        QCOMPARE(textIn(0, "liveChannelName"), "D20 · C5");
        click("livePreviousButton");
        QCOMPARE(text("livePage"), "1 / 3");
        QCOMPARE(textIn(0, "liveChannelName"), "D20 · C0");
    }

    /// The image is taken in the device's own session. A removed device gets no request.
    void aSnapshotOfAnAddedDeviceIsTaken()
    {
        m_devices->channels = {{21, 2}};
        openLive(20);
        tick({1});
        click("liveAddButton");
        click("liveChannel2"); // its second channel replaces D20
        click("liveSnapButton");
        const QString taken = QStringLiteral("1 of 21 for 192.168.1.21_37777");
        QTRY_COMPARE(text("snapshotMessage"), taken);
        QCOMPARE(text("snapshotName"), "C1");
        QMetaObject::invokeMethod(m_window, "remove", Q_ARG(QVariant, ipportOf(21)));
        click("snapshotAgain1");
        QTRY_VERIFY(find("dialogNotice"));
        QCOMPARE(text("snapshotMessage"), taken);
    }

    void allDevicesHaveSnapshots_data()
    {
        const auto row = dataTable<QByteArray, QStringList>({"event", "ends"});
        const QString refused = QStringLiteral("密码错误");
        const QString last = QStringLiteral("0 of 24 for 192.168.1.24_37777");
        const QString taken = QStringLiteral("%1 of 21 for 192.168.1.21_37777");
        const QString notDone = QStringLiteral("未执行");
        const QString removed = QStringLiteral("设备已移出画面");
        row("complete", "", QStringList{taken.arg(0), taken.arg(1), refused, last});
        row("stopped", "stop", QStringList{taken.arg(0), notDone, notDone, notDone});
        row("device removed", "remove", QStringList{removed, removed, refused, last});
    }
    /// The batch of the first device is followed by the channels of the added devices, each in its session.
    /// The event happens during the first snapshot of D21.
    void allDevicesHaveSnapshots()
    {
        QFETCH(QByteArray, event);
        QFETCH(QStringList, ends);
        m_devices->channels = {{20, 2}, {21, 2}};
        m_devices->results = {{23, 2}}; // a wrong password
        openLive(20);
        tick({1, 3, 4});
        click("liveAddButton");
        QTRY_COMPARE(m_devices->open->size(), 2);
        m_devices->holds = !event.isEmpty();
        click("liveSnapAllButton");
        if (!event.isEmpty()) {
            QTRY_VERIFY(m_devices->held);
            m_devices->holds = false;
        }
        if (event == "stop") {
            click("snapshotStopButton");
        } else if (event == "remove") {
            QMetaObject::invokeMethod(m_window, "remove", Q_ARG(QVariant, ipportOf(21)));
        }
        if (m_devices->held)
            m_devices->held();

        QTRY_VERIFY(!find("snapshotStopButton"));
        QCOMPARE(snapshots(),
                 (QStringList{"D20 · C0: 0 of 1000 for 192.168.1.20_37777",
                              "D20 · C1: 1 of 1000 for 192.168.1.20_37777", "D21 · C0: " + ends.at(0),
                              "D21 · C1: " + ends.at(1), QStringLiteral("D23 · 通道 1: ") + ends.at(2),
                              "D24 · C0: " + ends.at(3)}));
        QCOMPARE(text("snapshotSummary"), QStringLiteral("成功 0，失败 6"));
        QVERIFY(find("liveSnapAllButton")->isEnabled()); // no snapshot is awaited
    }

    void renamedDevicesHaveUniqueCaptions()
    {
        openLive(20);
        tick({1, 3});
        click("liveAddButton");
        QTRY_COMPARE(text("liveHeading2"), "D23");
        m_devices->names = {{20, "Gate"}, {21, "NVR"}, {23, "NVR"}};
        Q_EMIT m_devices->signalCDeviceAddSingleDeviceToTable();
        QTRY_COMPARE(text("liveTitle"), "Gate");
        QTRY_COMPARE(text("liveHeading2"), "NVR " + ipportOf(23));
        QCOMPARE(text("liveHeading0"), "Gate");
        QCOMPARE(text("liveHeading1"), "NVR " + ipportOf(21));
        QCOMPARE(textIn(1, "liveChannelName"), "NVR " + ipportOf(21) + " · C0");
    }

    void sessionsEndWhenTheyAreNotNeeded_data()
    {
        QTest::addColumn<bool>("isClosed");
        QTest::newRow("window closed") << true;
        QTest::newRow("another device") << false;
    }
    void sessionsEndWhenTheyAreNotNeeded()
    {
        QFETCH(bool, isClosed);
        openLive(20);
        tick({1, 3});
        QTest::keyClick(m_window, Qt::Key_A);
        QTRY_COMPARE(m_devices->open->size(), 2);
        if (isClosed)
            m_window->close();
        else
            QTest::keyClick(m_window, Qt::Key_PageDown);
        QTRY_VERIFY(m_devices->open->isEmpty());
        if (!isClosed)
            QCOMPARE(textIn(0, "liveChannelName"), "C0"); // of the remaining device
    }
};

QTEST_MAIN(TestLiveWindow)
#include "tst_livewindow.moc"
