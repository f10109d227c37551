#include "device/models/accountlist.h"
#include "sdk/demo/demosite.h"
#include "tests/datatable.h"
#include "tests/device/dh/configsite.h"
#include "tests/qml/configtools/qmlscene.h"

#include <algorithm>

namespace {

const char *const scene = "    visible: true; width: 900; height: 600\n"
                          "    ConfigSession {\n"
                          "        id: session; objectName: 'session'; deviceFactory: factory\n"
                          "        Component.onCompleted: LoginMemory.accounts = deviceAccounts\n"
                          "        function choose(ipport) { work.afterWriting(() => open(ipport)); }\n"
                          "        function readNames() { names.load(); }\n"
                          "        function changeNames() {\n"
                          "            names.form.set(0, 'west');\n"
                          "            names.form.set(1, 'east');\n"
                          "        }\n"
                          "        function saveNames() { changeNames(); names.save(); }\n"
                          "        function stopNames() { names.stop(); }\n"
                          "        function saveEncoding() { encoding.save(); }\n"
                          "        function setImage() { image.set('curChannelName', [['', 'west']]); }\n"
                          "    }\n"
                          "    ChannelNamesPanel {\n"
                          "        objectName: 'namesPanel'; width: 900; height: 400; work: session.names\n"
                          "        property int nextDevices: 0\n"
                          "        onNextDeviceRequested: ++nextDevices\n"
                          "    }\n"
                          "    DeviceDetailDialog { objectName: 'details'; deviceFactory: factory }\n";

const char *const heldScene = "    visible: true; width: 400; height: 100\n"
                              "    Item {\n"
                              "        width: 200; height: 100\n"
                              "        TextInput { objectName: 'inner'; width: 200; height: 100 }\n"
                              "        OVPanelBlocker { active: false }\n"
                              "    }\n"
                              "    TextInput { objectName: 'outer'; x: 200; width: 200; height: 100 }\n";

} // namespace

/// The login of the configuration page while other pages log in as well.
class TestConfigSession : public QObject
{
    Q_OBJECT
private:
    const sdk::demo::SceneDevice m_recorder = configDevice(1, "NVR", 2);
    const sdk::demo::SceneDevice m_other = configDevice(2, "NVR", 2);
    std::unique_ptr<ConfigSite> m_site;
    std::shared_ptr<AccountStore> m_accounts;
    std::unique_ptr<AccountList> m_accountList;
    std::unique_ptr<QQmlEngine> m_engine;
    std::unique_ptr<QQuickWindow> m_window;
    QObject *m_session = nullptr;

    void call(const char *function) const { QVERIFY(QMetaObject::invokeMethod(m_session, function)); }
    [[nodiscard]] bool isBusy() const { return m_session->property("busy").toBool(); }
    [[nodiscard]] qsizetype writesTo(const sdk::demo::SceneDevice &device) const
    {
        const QList<sdk::demo::RecordedRequest> requests = m_site->site->requests().all();
        return std::ranges::count_if(requests, [&device](const sdk::demo::RecordedRequest &request) {
            return request.mac == device.mac && request.operation.startsWith("NetSet");
        });
    }
    [[nodiscard]] QQuickItem *dialogItem(const char *name) const
    {
        return findBelow(m_window->contentItem(), name, Sight::Visible);
    }
    /// The message at a field of the login dialog.
    [[nodiscard]] QString choiceInDialog() const
    {
        [this] {
            QTRY_VERIFY(dialogItem("fieldMessage"));
        }();
        return dialogItem("fieldMessage")->property("text").toString();
    }
    void choose(const sdk::demo::SceneDevice &device) const
    {
        QVERIFY(QMetaObject::invokeMethod(m_session, "choose", Q_ARG(QVariant, ipportOf(device))));
    }
    /// A search lists the devices. The row of the recorder has a wrong password.
    void listWithWrongPassword() const
    {
        const QSignalSpy found(m_site->factory.get(), &CDeviceFactory::signalSearchDone);
        m_site->factory->startSearch("dh");
        QTRY_VERIFY_WITH_TIMEOUT(!found.isEmpty(), 30000);
        QVERIFY(m_site->factory->updataDeviceInfo("dh", "password", "wrong", m_recorder.mac,
                                                  ipportOf(m_recorder)));
    }
    /// Enters text in the login dialog.
    void enter(const char *password, bool isForAll) const
    {
        dialogItem("followingBox")->setProperty("checked", isForAll);
        dialogItem("devicePasswordField")->setProperty("text", password);
        QMetaObject::invokeMethod(m_window->findChild<QObject *>("reloginDialog"), "accept");
    }
    [[nodiscard]] QString passwordOf(const sdk::demo::SceneDevice &device) const
    {
        return m_site->factory->getDeviceInfo("dh", ipportOf(device)).value("password").toString();
    }
    /// Opens the details of a device.
    [[nodiscard]] QObject *detailsOf(const sdk::demo::SceneDevice &device) const
    {
        auto *details = m_window->findChild<QObject *>("details");
        QMetaObject::invokeMethod(details, "load",
                                  Q_ARG(QVariant, m_site->factory->getDeviceDetail("dh", device.mac)));
        QMetaObject::invokeMethod(details, "open");
        return details;
    }

private Q_SLOTS:
    void init()
    {
        m_site = std::make_unique<ConfigSite>(QList<sdk::demo::SceneDevice>{m_recorder, m_other});
        m_site->factory->setDefaultAccount("dh", "admin", "secret1");
        m_accounts = std::make_shared<AccountStore>(QString());
        m_accountList = std::make_unique<AccountList>(
            *m_site->factory, m_accounts,
            AccountList::Defaults{.read = [] { return DeviceAccount(); }, .write = {}});
        m_engine = std::make_unique<QQmlEngine>();
        m_window = openScene(*m_engine, scene,
                             {{"factory", m_site->factory.get()}, {"deviceAccounts", m_accountList.get()}});
        QVERIFY(m_window);
        m_session = m_window->findChild<QObject *>("session");
        QVERIFY(QMetaObject::invokeMethod(m_session, "open", Q_ARG(QVariant, ipportOf(m_recorder))));
        QTRY_VERIFY(m_session->property("loggedIn").toBool() && !isBusy());
    }

    void cleanup()
    {
        m_window.reset();
        m_engine.reset();
        m_accountList.reset();
        m_site.reset();
    }

    void aWriteDoesNotReachAnotherDevice_data()
    {
        const auto row = dataTable<QByteArray>({"save"});
        row("names", QByteArray("saveNames"));
        row("encoding", QByteArray("saveEncoding"));
        row("image", QByteArray("setImage"));
    }

    /// A live view logs in during an operation.
    void aWriteDoesNotReachAnotherDevice()
    {
        QFETCH(QByteArray, save);
        call("readNames");
        QTRY_VERIFY(!isBusy());
        m_site->site->requests().clear();
        const QSignalSpy notices(m_session, SIGNAL(notify(QString, int, int)));
        m_site->site->setFault(m_recorder.mac,
                               {.fault = sdk::demo::Fault::SlowAnswers, .number = 500, .text = {}});
        m_site->stopTime();
        call(save.constData());
        QTRY_COMPARE(m_site->clock().waiters(), 1);
        const qsizetype before = writesTo(m_recorder);
        QCOMPARE(m_site->factory->findAndLoginDevice("dh", ipportOf(m_other), "admin", "secret1"), 0);
        QVERIFY(m_session->property("taken").toBool());
        QVERIFY(!isBusy() && !m_session->property("loggedIn").toBool());
        QTRY_COMPARE(m_site->clock().waiters(), 0); // the logout in the background has ended the write
        m_site->letTimePass();
        QTRY_VERIFY(!notices.isEmpty());
        QCOMPARE(writesTo(m_other), 0);
        QCOMPARE(writesTo(m_recorder), before); // the session has ended
        QCOMPARE(notices.last().at(0).toString(), QStringLiteral("设备已重新登录，尚未保存的修改已丢失"));
    }

    /// A login to an offline device blocks neither the window nor another device.
    void anotherDeviceIsSelectedDuringALogin()
    {
        const sdk::demo::FaultSetting noResponse = {
            .fault = sdk::demo::Fault::NoAnswer, .number = 0, .text = {}};
        m_site->site->setFault(m_recorder.mac, noResponse);
        QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
        m_site->stopTime();
        choose(m_recorder);
        QTRY_COMPARE(m_site->clock().waiters(), 1);
        QVERIFY(isBusy());
        const QSignalSpy painted(m_window.get(), &QQuickWindow::frameSwapped);
        for (qsizetype frames = 0; frames < 10; ++frames) {
            m_window->update();
            QTRY_VERIFY(painted.size() > frames);
        }
        choose(m_other);
        QTRY_VERIFY(m_session->property("loggedIn").toBool() &&
                    !isBusy()); // the offline device has not timed out yet
        QCOMPARE(m_site->clock().waiters(), 1);
        m_site->letTimePass();
        QTRY_COMPARE(m_site->clock().waiters(), 0);
        QCoreApplication::processEvents();
        QCOMPARE(m_session->property("device").toString(), ipportOf(m_other));
        QVERIFY(m_session->property("loggedIn").toBool());
    }

    /// A running write is completed.
    void anotherDeviceIsSelectedDuringASave()
    {
        m_site->site->setFault(m_recorder.mac,
                               {.fault = sdk::demo::Fault::SlowAnswers, .number = 500, .text = {}});
        m_site->site->requests().clear();
        m_site->stopTime();
        call("saveEncoding");
        QTRY_COMPARE(m_site->clock().waiters(), 1);
        choose(m_other);
        QCOMPARE(m_session->property("device").toString(), ipportOf(m_recorder));
        m_site->letTimePass();
        QTRY_COMPARE(m_session->property("device").toString(), ipportOf(m_other));
        QTRY_VERIFY(m_session->property("loggedIn").toBool() && !isBusy());
        QCOMPARE(writesTo(m_recorder), 8);
        QCOMPARE(writesTo(m_other), 0);
    }

    /// Enter in the last row saves and opens the next device. A stop of that save does not apply to a later
    /// one.
    void aStoppedSaveOpensNoOtherDevice()
    {
        auto *panel = m_window->findChild<QObject *>("namesPanel");
        const auto confirmLastRow = [panel] {
            QVERIFY(QMetaObject::invokeMethod(panel, "confirm", Q_ARG(QVariant, 1)));
        };
        const auto isSaved = [this](int unsaved) {
            return !m_session->property("writing").toBool() &&
                   m_session->property("unsaved").toInt() == unsaved;
        };
        call("readNames");
        QTRY_VERIFY(!isBusy());
        call("changeNames");
        confirmLastRow();
        call("stopNames");
        QTRY_VERIFY(isSaved(1)); // the name that was being written is saved
        call("saveNames");
        QTRY_VERIFY(isSaved(0));
        QCOMPARE(panel->property("nextDevices").toInt(), 0);
        confirmLastRow();
        QCOMPARE(panel->property("nextDevices").toInt(), 1);
    }

    /// The details ask for another account like the page, and continue counting attempts.
    void theDetailsAskForAnotherAccount()
    {
        listWithWrongPassword();
        QObject *details = detailsOf(m_recorder);
        QVERIFY(QMetaObject::invokeMethod(details, "ask"));
        QCOMPARE(choiceInDialog(), "密码错误，已 1 次");
        enter("another", false);
        QTRY_VERIFY(!details->property("asking").toBool() && dialogItem("devicePasswordField"));
        QCOMPARE(choiceInDialog(), "密码错误，已 2 次");
        enter("secret1", false);
        QTRY_VERIFY(!details->property("asking").toBool());
        QTRY_VERIFY(!dialogItem("devicePasswordField"));
        QCOMPARE(details->property("loginError").toString(), "");
        QCOMPARE(passwordOf(m_recorder), "secret1");
    }

    /// The dialog shows the result. An account for all following devices is used only after one device has
    /// accepted it.
    void aWrongPasswordIsCounted()
    {
        listWithWrongPassword();
        m_site->factory->setDefaultAccount("dh", "admin", "wrong");
        choose(m_recorder);
        QCOMPARE(choiceInDialog(), "密码错误，已 1 次");
        enter("another", true);
        QTRY_VERIFY(!isBusy() && dialogItem("devicePasswordField"));
        QCOMPARE(choiceInDialog(), "密码错误，已 2 次");
        enter("secret1", true);
        QTRY_VERIFY(m_session->property("loggedIn").toBool() && !isBusy());

        m_site->site->requests().clear();
        const StepOutcome step =
            m_site->factory->backEnd("dh")->systemStep("readTime", {}, ipportOf(m_other))(StepControl());
        QCOMPARE(step.result, 0); // also used by batches
        m_site->site->requests().clear();
        choose(m_other);
        QTRY_VERIFY(m_session->property("loggedIn").toBool() && !isBusy());
        const QList<sdk::demo::RecordedRequest> requests = m_site->site->requests().all();
        QCOMPARE(std::ranges::count_if(requests,
                                       [](const sdk::demo::RecordedRequest &request) {
                                           return request.operation.startsWith("NetLoginSecure");
                                       }),
                 1);
        // Batches use the account afterwards.
        QCOMPARE(passwordOf(m_other), "secret1");

        // The details use it too. It is stored in the row after the device has accepted it.
        for (const char *key : {"username", "password"})
            m_site->factory->updataDeviceInfo("dh", key, "", m_other.mac, ipportOf(m_other));
        QObject *details = detailsOf(m_other);
        m_site->site->setFault(m_other.mac, {.fault = sdk::demo::Fault::NoAnswer});
        QVERIFY(QMetaObject::invokeMethod(details, "ask"));
        QTRY_VERIFY(!details->property("loginError").toString().isEmpty());
        QCOMPARE(passwordOf(m_other), "");
        m_site->site->clearFault(m_other.mac, sdk::demo::Fault::NoAnswer);
        QVERIFY(QMetaObject::invokeMethod(details, "ask"));
        QTRY_VERIFY(!details->property("asking").toBool());
        QCOMPARE(details->property("loginError").toString(), "");
        QCOMPARE(passwordOf(m_other), "secret1");
    }

    /// The account of the following devices is in the row only during the login.
    void closedDetailsLeaveNoAccount()
    {
        listWithWrongPassword();
        m_site->factory->setFollowingAccount("dh", "admin", "secret1");
        for (const char *key : {"username", "password"})
            m_site->factory->updataDeviceInfo("dh", key, "", m_other.mac, ipportOf(m_other));
        QObject *details = detailsOf(m_other);
        QVERIFY(QMetaObject::invokeMethod(details, "ask"));
        QVERIFY(details->property("asking").toBool());
        QCOMPARE(passwordOf(m_other), "secret1");
        QVERIFY(QMetaObject::invokeMethod(details, "close"));
        QTRY_VERIFY(!details->property("asking").toBool());
        QCOMPARE(passwordOf(m_other), "");
    }

    /// The next question would otherwise be taken for the earlier one, and the password would stay in the
    /// field.
    void aClosedLoginDialogForgetsThePassword()
    {
        listWithWrongPassword();
        QObject *details = detailsOf(m_recorder);
        QVERIFY(QMetaObject::invokeMethod(details, "ask"));
        QVERIFY(!choiceInDialog().isEmpty());
        const QQuickItem *field = dialogItem("devicePasswordField");
        dialogItem("devicePasswordField")->setProperty("text", "typed7");
        const auto *dialog = m_window->findChild<QObject *>("reloginDialog");
        QVERIFY(dialog->property("waiting").toBool());
        QVERIFY(QMetaObject::invokeMethod(details, "close"));
        QTRY_VERIFY(!dialog->property("waiting").toBool());
        QCOMPARE(field->property("text").toString(), QString());
    }

    /// An account is stored for its device after the device has accepted it.
    void anAcceptedAccountIsStored()
    {
        const QSignalSpy found(m_site->factory.get(), &CDeviceFactory::signalSearchDone);
        m_site->factory->startSearch("dh");
        QTRY_VERIFY_WITH_TIMEOUT(!found.isEmpty(), 30000);
        m_site->factory->setDefaultAccount("dh", "admin", "wrong");
        choose(m_other);
        for (const char *password : {"another", "secret1"}) {
            QVERIFY(!choiceInDialog().isEmpty());
            QVERIFY(!m_accounts->accountOf({m_other.mac}));
            QVERIFY(!dialogItem("keepBox")->property("checked").toBool());
            dialogItem("keepBox")->setProperty("checked", true);
            dialogItem("devicePasswordField")->setProperty("text", password);
            QMetaObject::invokeMethod(m_window->findChild<QObject *>("reloginDialog"), "accept");
            QTRY_VERIFY(!isBusy());
        }
        QTRY_VERIFY(m_session->property("loggedIn").toBool());
        QCOMPARE(m_accounts->accountOf({m_other.mac})->password, "secret1");
        QVERIFY(!m_accounts->accountOf({m_recorder.mac}));
    }

    /// It would be refused again after the next search.
    void aRefusedStoredAccountIsToBeReplaced()
    {
        const QSignalSpy found(m_site->factory.get(), &CDeviceFactory::signalSearchDone);
        m_site->factory->startSearch("dh");
        QTRY_VERIFY_WITH_TIMEOUT(!found.isEmpty(), 30000);
        m_site->storedAccounts = [](const QStringList &) {
            return DeviceAccount{.account = "admin", .password = "wrong"};
        };
        choose(m_other);
        QVERIFY(!choiceInDialog().isEmpty());
        QVERIFY(dialogItem("keepBox")->property("checked").toBool());
    }

    void inputIsBlockedWhereAnOperationRuns()
    {
        const std::unique_ptr<QQuickWindow> window = openScene(*m_engine, heldScene);
        QVERIFY(window && QTest::qWaitForWindowExposed(window.get()));
        QQuickItem *inner = findBelow(window->contentItem(), "inner", Sight::Any);
        QQuickItem *outer = findBelow(window->contentItem(), "outer", Sight::Any);
        QQuickItem *sheet = findBelow(window->contentItem(), "panelBlocker", Sight::Any);
        inner->forceActiveFocus();
        for (const bool isTakenElsewhere : {false, true}) {
            sheet->setProperty("active", true);
            QTest::keyClick(window.get(), Qt::Key_A);
            inner->forceActiveFocus(); // as when a list closes
            QTRY_COMPARE(window->activeFocusItem(), sheet);
            QTest::keyClick(window.get(), Qt::Key_A);
            QTest::mouseClick(window.get(), Qt::LeftButton, {}, QPoint(100, 50));
            QTest::keyClick(window.get(), Qt::Key_A);
            QCOMPARE(inner->property("text").toString(), "");
            if (isTakenElsewhere)
                QTest::mouseClick(window.get(), Qt::LeftButton, {}, QPoint(300, 50));
            sheet->setProperty("active", false);
            QCOMPARE(window->activeFocusItem(), isTakenElsewhere ? outer : inner);
        }
    }
};

QTEST_MAIN(TestConfigSession)
#include "tst_configsession.moc"
