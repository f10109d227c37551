#include "device/batch/batches.h"
#include "device/batch/batchpreview.h"
#include "device/models/accountlist.h"
#include "device/models/treemodel.h"
#include "sdk/demo/demosite.h"
#include "tests/datatable.h"
#include "tests/device/dh/configsite.h"
#include "tests/qml/configtools/qmlscene.h"

namespace {

const char *const scene = "    width: 1280; height: 720; visible: true\n"
                          "    PageSystemConfig {\n"
                          "        objectName: 'page'; anchors.fill: parent\n"
                          "        batches: works; libraryInstalled: true\n"
                          "        Component.onCompleted: LoginMemory.accounts = deviceAccounts\n"
                          "    }\n";

constexpr int notDone = 15;

using Results = QList<int>;

} // namespace

/// The new password of many devices: the result of each, and the time limit.
class TestSystemPassword : public QObject
{
    Q_OBJECT
private:
    std::unique_ptr<BatchEngine> m_threads;
    std::unique_ptr<ConfigSite> m_site;
    std::unique_ptr<Batches> m_batches;
    std::shared_ptr<AccountStore> m_accounts;
    std::unique_ptr<AccountList> m_accountList;
    DeviceAccount m_default;
    std::unique_ptr<QQmlEngine> m_engine;
    std::unique_ptr<QQuickWindow> m_window;
    QQuickItem *m_page = nullptr;
    OVTreeModel *m_tree = nullptr;
    QObject *m_time = nullptr;

    [[nodiscard]] QQuickItem *item(const char *name) const
    {
        return findBelow(m_window->contentItem(), QString::fromLatin1(name), Sight::Any);
    }
    [[nodiscard]] QString text(const char *name) const { return item(name)->property("text").toString(); }
    void type(const char *field, const char *text) const { item(field)->setProperty("text", text); }
    void press(const char *button) const
    {
        QVERIFY(item(button)->isEnabled());
        QVERIFY(QMetaObject::invokeMethod(item(button), "clicked"));
    }
    [[nodiscard]] Results results() const
    {
        Results results;
        const QModelIndex group = m_tree->index(0, 0);
        for (int row = 0; row < m_tree->rowCount(group); ++row)
            results.append(m_tree->index(row, 0, group).data(OVTreeModel::CopyRetRole).toInt());
        return results;
    }
    [[nodiscard]] bool isRunning() const { return m_site->factory->busyState()->areRowsInUse(); }

    void checkOldPassword() const
    {
        type("oldPasswordField", "secret1");
        press("loginCheckButton");
        QTRY_VERIFY(item("newPasswordField")->isEnabled() && !isRunning());
        QCOMPARE(results(), Results(4, OVTreeModel::WaitsForPassword));
        m_site->site->requests().clear();
    }
    void sendNewPassword() const
    {
        type("newPasswordField", "Better-2025");
        type("confirmPasswordField", "Better-2025");
        press("modifyPasswordButton");
        press("okButton"); // of the preview
        QVERIFY(isRunning());
    }
    void leave() const
    {
        QVERIFY(QMetaObject::invokeMethod(m_page, "disablePasswordEditor"));
        m_page->setVisible(false);
    }

    void cancelLogins() const
    {
        m_site->factory->systemConfig("dh", "cancelLogin", {}, {});
        QTRY_COMPARE(m_site->asked("NetLogout").size(), 4);
    }

private Q_SLOTS:
    void init()
    {
        QList<sdk::demo::SceneDevice> devices;
        for (int number = 1; number <= 4; ++number)
            devices.append(configDevice(number, "IPC", 1));
        m_threads = std::make_unique<BatchEngine>(nullptr);
        m_site = std::make_unique<ConfigSite>(devices);
        m_batches = std::make_unique<Batches>(*m_site->factory, *m_threads, [] { return 1; });
        const QSignalSpy found(m_site->factory.get(), &CDeviceFactory::signalSearchDone);
        m_site->factory->startSearch("dh");
        QTRY_VERIFY_WITH_TIMEOUT(!found.isEmpty(), 30000);
        m_default = {};
        m_accounts = std::make_shared<AccountStore>(QString());
        m_accountList =
            std::make_unique<AccountList>(*m_site->factory, m_accounts,
                                          AccountList::Defaults{.read = [this] { return m_default; },
                                                                .write =
                                                                    [this](const DeviceAccount &account) {
                                                                        m_default = account;
                                                                    }});
        m_engine = std::make_unique<QQmlEngine>();
        m_engine->rootContext()->setContextProperty("systemTimeZone", QStringLiteral("UTC+08:00"));
        m_window = openScene(*m_engine, scene,
                             {{"CDeviceFactoryApi", m_site->factory.get()},
                              {"works", m_batches.get()},
                              {"deviceAccounts", m_accountList.get()},
                              {"FileDialogsApi", m_batches.get()}, // not used by this test
                              {"LocalConfigApi", m_batches.get()},
                              {"WebPagesApi", m_batches.get()}});
        QVERIFY(m_window);
        m_page = item("page");
        m_tree = m_page->findChild<OVTreeModel *>();
        m_time = m_page->findChild<QObject *>("passwordTime");
        QTRY_COMPARE(m_tree->rowCount(), 1);
        m_tree->setAllChecked(true);
        QCOMPARE(results(), Results(4, OVTreeModel::NoResult));
        checkOldPassword();
    }

    void cleanup()
    {
        m_window.reset();
        m_engine.reset();
        m_accountList.reset();
        m_site->net->passwordGate.reset();
        m_threads->end();
        m_batches.reset();
        m_site.reset();
        m_threads.reset();
    }

    void theNewPasswordIsStored_data()
    {
        const auto row = dataTable<QByteArray, int, QString>({"choice", "devices", "byDefault"});
        row("for the devices", "keepForDevices", 3, "");
        row("as the default", "keepAsDefault", 0, "Better-2025");
        row("not", "keepNot", 0, "");
    }

    /// The password is stored for the devices that have accepted it.
    void theNewPasswordIsStored()
    {
        QFETCH(QByteArray, choice);
        QFETCH(int, devices);
        press(choice.constData());
        const QModelIndex refusing = m_tree->index(0, 0, m_tree->index(0, 0));
        m_site->site->setFault(refusing.data(OVTreeModel::IdentityRole).toString(),
                               {.fault = sdk::demo::Fault::RefusesPasswordChange});
        const QSignalSpy notices(m_page, SIGNAL(notify(QString, int)));
        sendNewPassword();
        QTRY_VERIFY(!isRunning());
        QCOMPARE(m_site->site->requests().of("NetModifyPassword").size(), 4);
        constexpr int error = 2;
        QCOMPARE(notices.last(), (QVariantList{"1 台设备的密码没有修改（设备拒绝了此操作），已标记", error}));
        QCOMPARE(m_accounts->deviceCounts().value("admin"), devices);
        QTEST(m_default.password, "byDefault");
        const std::optional<StoredAccount> kept = m_accounts->account("admin");
        QCOMPARE(kept ? kept->password : QString(), devices > 0 ? QString("Better-2025") : QString());
    }

    /// The accounts of an earlier password change stay as the user has chosen them.
    void aRefusedStartStoresNothing()
    {
        press("keepNot");
        const QModelIndex group = m_tree->index(0, 0);
        QStringList refusing;
        for (int row = 0; row < 2; ++row) {
            refusing.append(m_tree->index(row, 0, group).data(OVTreeModel::IdentityRole).toString());
            m_site->site->setFault(refusing.last(), {.fault = sdk::demo::Fault::RefusesPasswordChange});
        }
        sendNewPassword();
        QTRY_VERIFY(!isRunning());

        press("keepForDevices");
        press("modifyPasswordButton");
        m_site->site->setFault(refusing.first(),
                               {.fault = sdk::demo::Fault::SlowAnswers, .number = 500, .text = {}});
        m_site->stopTime();
        const QStringList waiting = m_time->property("devices").toStringList();
        QCOMPARE(waiting.size(), 2);
        QVERIFY(m_batches->configureSystem("dh", "readTime", "other work", {}, waiting));
        press("okButton"); // of the preview
        m_site->letTimePass();
        QTRY_VERIFY(!isRunning());
        QCOMPARE(m_site->site->requests().of("NetModifyPassword").size(), 4);
        QCOMPARE(m_time->property("devices").toStringList(), waiting);
        m_window.reset();
        QCOMPARE(m_accounts->deviceCounts().value("admin"), 0);
    }

    void unselectingADeviceKeepsTheTimeLimit()
    {
        type("newPasswordField", "Better-2025");
        type("confirmPasswordField", "Better-2025");
        press("modifyPasswordButton");
        item("previewTable")->property("preview").value<BatchPreview *>()->setRangeChecked(3, 3, false);
        press("okButton");
        QTRY_VERIFY(!isRunning());
        QCOMPARE(m_site->site->requests().of("NetModifyPassword").size(), 3);
        QVERIFY(item("newPasswordField")->isEnabled());
        QCOMPARE(m_time->property("devices").toStringList().size(), 1);
    }

    void everyDeviceIsReported_data()
    {
        // event: during the request to the second device
        const auto row = dataTable<QString, Results, QString>({"event", "expected", "footText"});
        row("nothing", "", Results{0, 0, 0, 0}, "修改密码：4 台设备成功");
        row("another tab", "leave", Results{0, 0, 0, 0}, "修改密码：4 台设备成功");
        row("time over", "time", Results{0, 0, 0, 0}, "修改密码：4 台设备成功");
        row("stopped", "stop", Results{0, 0, notDone, notDone}, "修改密码：2 台设备成功，2 台设备未执行");
        row("without logins", "cancel", Results{0, 999, notDone, notDone},
            "修改密码：1 台设备成功，1 台设备失败，2 台设备未执行");
        row("refused, on another tab", "refuse", Results{0, 0, 999, 0},
            "修改密码：3 台设备成功，1 台设备失败");
    }

    void everyDeviceIsReported()
    {
        QFETCH(QString, event);
        QFETCH(Results, expected);
        QFETCH(QString, footText);
        const BusyState &busy = *m_site->factory->busyState();
        m_site->net->passwordsAtGate = 0;
        m_site->net->passwordGate = std::make_unique<QSemaphore>(1);
        sendNewPassword();
        QTRY_COMPARE(m_site->net->passwordsAtGate, 2);
        QVERIFY(busy.refusal(BusyState::Search).contains(QStringLiteral("修改密码")));
        if (event == "refuse")
            m_site->site->setFault(
                m_tree->index(2, 0, m_tree->index(0, 0)).data(OVTreeModel::IdentityRole).toString(),
                {.fault = sdk::demo::Fault::RefusesPasswordChange});
        if (event == "leave" || event == "refuse")
            leave();
        else if (event == "stop")
            m_batches->current()->stop();
        else if (event == "cancel")
            cancelLogins();
        else if (event == "time") {
            m_time->setProperty("second", 1);
            m_time->setProperty("secondsLeft", 1);
        }
        m_site->net->passwordGate->release(4);
        QTRY_VERIFY(!isRunning());
        QCOMPARE(results(), expected);
        QVERIFY(QString(text("selectedCount") + text("footWarning")).endsWith(footText));
        const bool isComplete = !expected.contains(notDone) && !expected.contains(999);
        QCOMPARE(text("oldPasswordField").isEmpty(), isComplete);
        const bool keepsLogins = !isComplete && event != "refuse";
        QCOMPARE(item("newPasswordField")->isEnabled(), keepsLogins);
        if (event != "cancel")
            QTRY_COMPARE(m_site->asked("NetLogout").size(), keepsLogins ? 0 : 4);
    }

    void aPartlyTypedPasswordIsKeptAfterTheTimeLimit()
    {
        type("newPasswordField", "Bett");
        m_time->setProperty("secondsLeft", 15);
        QVERIFY(text("countdownText").startsWith(QStringLiteral("只剩 15 秒")));
        const QSignalSpy notices(m_page, SIGNAL(notify(QString, int)));
        m_time->setProperty("second", 1);
        QTRY_VERIFY(!item("newPasswordField")->isEnabled());
        QTRY_COMPARE(m_site->asked("NetLogout").size(), 4);
        QCOMPARE(results(), Results(4, notDone));
        QVERIFY(text("footWarning").endsWith(QStringLiteral("修改密码：4 台设备未执行")));
        QCOMPARE(notices.count(), 1);
        QCOMPARE(notices.first().first().toString(), QStringLiteral("时间已到，4 台设备的密码没有修改"));
        QVERIFY(text("countdownText").startsWith(QStringLiteral("时间已到，4 台设备的密码没有修改。")));
        QCOMPARE(text("newPasswordField"), QString());

        m_time->setProperty("second", 1000);
        checkOldPassword();
        QCOMPARE(text("newPasswordField"), QStringLiteral("Bett"));
        leave();
        QTRY_COMPARE(m_site->asked("NetLogout").size(), 4);
        QCOMPARE(results(), Results(4, notDone));
        m_page->setVisible(true);
        checkOldPassword();
        QCOMPARE(text("newPasswordField"), QString());
    }
};

QTEST_MAIN(TestSystemPassword)
#include "tst_systempassword.moc"
