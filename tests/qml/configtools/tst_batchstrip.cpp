// The batch bar of a page: its text and buttons while a batch runs, while it is paused and after its end, and
// the file of results.
#include "device/batch/batches.h"
#include "device/models/accountlist.h"
#include "device/models/devicetablemodel.h"
#include "device/models/treemodel.h"
#include "sheets/qexcel.h"
#include "tests/datatable.h"
#include "tests/device/rowsbackend.h"
#include "tests/files/filecontents.h"
#include "tests/files/filesizelimit.h"
#include "tests/qml/configtools/qmlscene.h"

#include <QDir>
#include <QJSValue>
#include <QSemaphore>
#include <QTemporaryDir>

namespace {

const char *const scene = "    width: 1280; height: 720; visible: true\n"
                          "    OVFootBar {\n"
                          "        objectName: 'foot'; width: 1248; text: 'Ticked'; batches: works\n"
                          "        onTickRequested: identities => {\n"
                          "            deviceTable.setCheckedDevices(identities);\n"
                          "            deviceTree.setCheckedDevices(identities);\n"
                          "        }\n"
                          "    }\n"
                          "    QtObject { id: store; function keepNew(devices, keeping) { return ''; } }\n"
                          "    OVFailedOperation { y: 100; devices: deviceTable }\n"
                          "    AccountKeeper { id: keeper; objectName: 'keeper'; batches: works }\n"
                          "    AccountsDialog { id: dialog; accounts: deviceAccounts }\n"
                          "    function chooseOther(devices) { dialog.chooseOther(devices, 'admin'); }\n"
                          "    Component.onCompleted: LoginMemory.accounts = store\n"
                          "    function keepAccounts() { LoginMemory.accounts = deviceAccounts; }\n"
                          "    function keepNew() {\n"
                          "        keeper.follow(works.current, AccountList.ForDevices);\n"
                          "    }\n";

constexpr int wrongPassword = 2;
constexpr int networkFailure = 5;
const QString header = QStringLiteral("设备,MAC,名称,步骤,结果,时间");

using Results = QList<int>;

} // namespace

/// A replacement of the file dialog that returns the test's path immediately.
class ChosenFile : public QObject
{
    Q_OBJECT
public:
    QString path;

    Q_INVOKABLE void chooseNewFile(const QString & /*title*/, const QStringList & /*nameFilters*/,
                                   const QString & /*name*/, const QJSValue &chosen) const
    {
        chosen.call({path});
    }
};

class TestBatchStrip : public QObject
{
    Q_OBJECT
private:
    std::unique_ptr<BatchEngine> m_threads;
    std::unique_ptr<RowsFactory> m_site;
    std::unique_ptr<Batches> m_batches;
    std::unique_ptr<AccountList> m_accounts;
    std::unique_ptr<DeviceTableModel> m_table;
    std::unique_ptr<OVTreeModel> m_tree;
    std::unique_ptr<QQmlEngine> m_engine;
    std::unique_ptr<QQuickWindow> m_window;
    ChosenFile m_file;
    int m_resultAgain = 0;
    DeviceAccount m_account; ///< of the devices; empty: the plan has no account
    QSemaphore m_gate;       ///< lets one step end for each of its resources

    [[nodiscard]] QQuickItem *find(const QByteArray &name) const
    {
        return findBelow(m_window->contentItem(), QString::fromLatin1(name), Sight::Visible);
    }
    [[nodiscard]] QString text(const QByteArray &name) const
    {
        const QQuickItem *item = find(name);
        return item ? item->property("text").toString() : QString();
    }
    void press(const QByteArray &button) const
    {
        QVERIFY2(find(button) && find(button)->isEnabled(), button.constData());
        QVERIFY(QMetaObject::invokeMethod(find(button), "clicked"));
    }
    /// The visible controls that depend on the batch.
    [[nodiscard]] QStringList shown() const
    {
        QStringList names = {"continueButton",     "stopButton",        "retryFailedButton",
                             "selectFailedButton", "saveResultsButton", "batchPanelButton"};
        names.removeIf([this](const QString &name) { return !find(name.toLatin1()); });
        return names;
    }

    /// A device for each result, one after another. Each has m_resultAgain in another try.
    Batch *start(const Results &results)
    {
        BatchPlan plan{
            .family = "dh", .title = "Work", .policy = {.maximumParallel = 1, .wrongPasswordsInARow = 2}};
        for (qsizetype index = 0; index < results.size(); ++index) {
            const QString ipport = QStringLiteral("10.0.0.%1:37777").arg(index + 1);
            plan.devices.append({.name = ipport,
                                 .identity = QStringLiteral("m%1").arg(index + 1),
                                 .ipport = ipport,
                                 .title = QStringLiteral("=门,\"%1\"").arg(index + 1)});
        }
        if (!m_account.account.isEmpty())
            plan.accountOf = [this](const BatchDevice &) {
                return m_account;
            };
        plan.stepOf = [this, results](const BatchDevice &device) {
            const int index = QStringView(device.identity).mid(1).toInt() - 1;
            const int result = m_batches->kept().isEmpty() ? results.at(index) : m_resultAgain;
            return [this, result](const StepControl & /*control*/) {
                m_gate.acquire();
                return StepOutcome{.result = result, .text = {}};
            };
        };
        return m_batches->start(std::move(plan));
    }
    Batch *run(const Results &results)
    {
        m_gate.release(static_cast<int>(results.size()));
        Batch *batch = start(results);
        [batch] {
            QTRY_VERIFY(batch && !batch->isRunning());
        }();
        return batch;
    }

private Q_SLOTS:
    void init()
    {
        m_threads = std::make_unique<BatchEngine>(nullptr);
        m_site = std::make_unique<RowsFactory>();
        m_site->rows->add({.address = "10.0.0.1", .mac = "m1", .type = "IPC"});
        m_site->rows->add({.address = "10.0.0.2", .mac = "m2", .type = "IPC"});
        m_site->rows->add({.address = "10.0.0.3", .mac = "m3", .type = "IPC"});
        m_batches = std::make_unique<Batches>(m_site->factory, *m_threads, [] { return 1; });
        m_accounts = std::make_unique<AccountList>(m_site->factory, std::make_shared<AccountStore>(QString()),
                                                   AccountList::Defaults{.read = [this] { return m_account; },
                                                                         .write =
                                                                             [](const DeviceAccount &) {
                                                                             }});
        m_account = {};
        m_table = std::make_unique<DeviceTableModel>();
        m_table->setDeviceFactory(&m_site->factory);
        m_tree = std::make_unique<OVTreeModel>();
        m_tree->setDeviceFactory(&m_site->factory);
        m_tree->resetItems("removeuninit", "");
        m_engine = std::make_unique<QQmlEngine>();
        m_window = openScene(*m_engine, scene,
                             {{"works", m_batches.get()},
                              {"FileDialogsApi", &m_file},
                              {"CDeviceFactoryApi", &m_site->factory},
                              {"deviceTable", m_table.get()},
                              {"deviceAccounts", m_accounts.get()},
                              {"deviceTree", m_tree.get()}});
        QVERIFY(m_window && QTest::qWaitForWindowExposed(m_window.get()));
        QVERIFY(shown().isEmpty());
    }

    void cleanup()
    {
        m_gate.release(100);
        m_threads->end();
        m_window.reset();
        m_engine.reset();
        m_tree.reset();
        m_table.reset();
        m_accounts.reset();
        m_batches.reset();
        m_site.reset();
        m_threads.reset();
        m_gate.acquire(m_gate.available());
    }

    void aPausedBatchAsksTheUser_data()
    {
        const auto row = dataTable<QByteArray, QString>({"button", "outcome"});
        row("go on", QByteArray("continueButton"), QStringLiteral("Work：1 台设备成功，2 台设备失败"));
        row("stop", QByteArray("stopButton"), QStringLiteral("Work：2 台设备失败，1 台设备未执行"));
    }
    void aPausedBatchAsksTheUser()
    {
        QFETCH(QByteArray, button);
        QFETCH(QString, outcome);
        m_gate.release(3);
        start({wrongPassword, wrongPassword, 0});
        QTRY_VERIFY(find("continueButton"));
        QVERIFY(text("runningText").contains(QStringLiteral("连续 2 台设备密码错误")));
        QCOMPARE(m_batches->failedMarks()->count(), 2);
        QCOMPARE(shown(), (QStringList{"continueButton", "stopButton", "batchPanelButton"}));
        QTRY_VERIFY(find("stopButton")->hasFocus()); // no other control has the keyboard
        press(button);
        QTRY_COMPARE(text("footWarning"), outcome);
    }

    /// The user selects another account for the devices with the refused one. The remaining devices use it.
    void aPausedBatchContinuesWithAnotherAccount()
    {
        m_account = {.account = "admin", .password = "old"};
        QMetaObject::invokeMethod(m_window.get(), "keepAccounts");
        m_gate.release(5);
        start({wrongPassword, wrongPassword, 0});
        QTRY_VERIFY(find("continueButton"));
        press("selectAccountButton");
        QTRY_VERIFY(find("accountsTable"));
        QCOMPARE(text("okButton"), QStringLiteral("用于 3 台设备并重试"));
        QVERIFY(!find("okButton")->isEnabled()); // no account is preselected
        find("accountsTable")->setProperty("currentIndex", 0);
        press("okButton"); // the refused default account
        QVERIFY(find("dialogNotice"));
        QCOMPARE(m_accounts->put("", "Hall", "root", "new"), QString());
        find("accountsTable")->setProperty("currentIndex", 1);
        m_account = {.account = "root", .password = "new"};
        QSignalSpy notices(find("foot"), SIGNAL(notify(QString, int)));
        connect(m_batches.get(), &Batches::runningChanged, &notices, [this, shown = &notices] {
            if (m_batches->isRunning())
                shown->clear(); // the start of a batch removes notices
        });
        press("okButton");
        QTRY_COMPARE(text("selectedCount"), QStringLiteral("Ticked  ·  Work：3 台设备成功"));
        QCOMPARE(m_batches->kept().size(), 2);
        QCOMPARE(notices.size(), 1);
        QVERIFY(notices.first().first().toString().contains(QStringLiteral("3 台设备使用账号“Hall”")));
    }

    void noRefusedAccountIsSelectedAgain()
    {
        m_site->rows->add({.address = "10.0.0.4", .mac = numberedMac(4), .type = "IPC"});
        const QString other = "10.0.0.4:37777";
        QCOMPARE(m_accounts->put("", "Hall", "root", "new"), QString());
        QCOMPARE(m_accounts->select({other}, "Hall"), QString());
        const QVariantList refusing = {"10.0.0.1:37777", other};
        QVERIFY(QMetaObject::invokeMethod(m_window.get(), "chooseOther", Q_ARG(QVariant, refusing)));
        QTRY_VERIFY(find("accountsTable"));
        find("accountsTable")->setProperty("currentIndex", 1); // the account of the second device
        press("okButton");
        QVERIFY(find("dialogNotice"));
        QCOMPARE(m_accounts->rowOfDevice("10.0.0.1:37777"), 0);
    }

    /// The choice of an operation follows the model when operations come and go.
    void aChosenOperationStaysChosen()
    {
        FailedMarks &marks = *m_batches->failedMarks();
        m_table->setFailedMarks(&marks);
        QQuickItem *box = find("failedOperationBox");
        QVERIFY(box);
        const auto note = [&](const QString &work, int result) {
            marks.note(work, work, {{.identity = "m1", .result = result, .message = work}});
        };
        note("Names", networkFailure);
        note("Passwords", networkFailure);
        m_table->setOnlyFailed(true);
        QVERIFY(QMetaObject::invokeMethod(box, "activated", Q_ARG(int, 2)));
        QCOMPARE(m_table->failedOperation(), "Passwords");
        QCOMPARE(box->property("displayText").toString(), "Passwords");
        for (const QString work : {"Zone", "Clock"}) { // the last and the first in alphabetical order
            note(work, networkFailure);
            QCOMPARE(box->property("displayText").toString(), "Passwords");
        }
        note("Passwords", 0);
        QCOMPARE(m_table->failedOperation(), QString());
        QCOMPARE(box->property("displayText").toString(), QStringLiteral("全部操作"));
    }

    void theEndOffersFurtherActions_data()
    {
        const auto row = dataTable<Results, QStringList>({"results", "offered"});
        const QStringList always = {"saveResultsButton", "batchPanelButton"};
        row("all well", Results{0, 0, 0}, always);
        row("password", Results{0, wrongPassword, 0}, QStringList("selectFailedButton") + always);
        row("network", Results{0, networkFailure, 0},
            QStringList{"retryFailedButton", "selectFailedButton"} + always);
        row("next step to come", Results{-1, networkFailure, 0}, QStringList("selectFailedButton") + always);
    }
    void theEndOffersFurtherActions()
    {
        QFETCH(Results, results);
        QFETCH(QStringList, offered);
        run(results);
        QTRY_COMPARE(shown(), offered);
    }

    void failedDevicesAreTickedAndRetried()
    {
        m_table->setAllChecked(true);
        m_tree->setCheckedDevices({"m1", "m3"});
        m_tree->resetItems("search", "10.0.0.1"); // hides the other devices
        Batch *batch = run({0, networkFailure, 0});
        QVERIFY(m_batches->failedMarks()->contains("m2") && m_batches->failedMarks()->count() == 1);
        press("selectFailedButton");
        QCOMPARE(m_table->checkedMacs(), QStringList("m2"));
        QCOMPARE(m_tree->checkedCount(), 0);
        m_tree->resetItems("removeuninit", "");
        QCOMPARE(m_tree->checkedDevices(), QStringList("10.0.0.2:37777"));

        const QSignalSpy retried(m_batches.get(), &Batches::retried);
        m_gate.release();
        press("retryFailedButton");
        QTRY_COMPARE(text("selectedCount"), QStringLiteral("Ticked  ·  Work：1 台设备成功"));
        QVERIFY(!find("footWarning") && m_batches->failedMarks()->count() == 0);
        QCOMPARE(retried.first().first().value<Batch *>(), batch);
    }

    void aRetryThatStoresNoAccountReportsNone()
    {
        const QObject *keeper = m_window->findChild<QObject *>("keeper");
        const Batch *batch = start({0, networkFailure});
        QVERIFY(QMetaObject::invokeMethod(m_window.get(), "keepNew"));
        m_gate.release(2);
        QTRY_VERIFY(!batch->isRunning());
        QCOMPARE(keeper->property("keptCount").toInt(), 1);
        QVERIFY(!keeper->property("message").toString().isEmpty());

        const QSignalSpy retried(m_batches.get(), &Batches::retried);
        m_resultAgain = networkFailure;
        m_gate.release();
        press("retryFailedButton");
        QTRY_VERIFY(!retried.isEmpty() && !m_batches->isRunning());
        QCOMPARE(keeper->property("message").toString(), QString());
        m_resultAgain = 0;
    }

    void resultsAreSaved_data()
    {
        const auto row = dataTable<QString>({"file"});
        row("workbook", "results.xlsx");
        row("text", "results.csv");
    }
    void resultsAreSaved()
    {
        QFETCH(QString, file);
        const QTemporaryDir folder;
        m_file.path = folder.filePath(file);
        Batch *batch = run({0, networkFailure, 0});
        QSignalSpy notices(find("foot"), SIGNAL(notify(QString, int)));
        press("saveResultsButton");
        QTRY_COMPARE(notices.size(), 1);
        QVERIFY(notices.takeFirst().first().toString().contains(m_file.path));
        const QString time = batch->entries().at(1).time.toString("yyyy-MM-dd HH:mm:ss");
        const QStringList line = {"10.0.0.2:37777",           "m2", "=门,\"2\"", "Work",
                                  resultName(networkFailure), time};
        if (file.endsWith(".csv")) {
            const QStringList lines = QString::fromUtf8(fileContents(m_file.path)).split("\r\n");
            QCOMPARE(lines.size(), 5);
            QCOMPARE(lines.at(0), "\"" + header.split(',').join("\",\"") + "\"");
            // A name is not interpreted as a formula.
            QCOMPARE(lines.at(2),
                     QStringLiteral("\"10.0.0.2:37777\",\"m2\",\"'=门,\"\"2\"\"\",\"Work\",\"%1\",\"%2\"")
                         .arg(line.at(4), time));
        } else {
            QExcel workbook;
            QVERIFY(workbook.open(m_file.path));
            for (int column = 1; column <= line.size(); ++column) {
                QCOMPARE(workbook.cellText(1, column), header.split(',').at(column - 1));
                QCOMPARE(workbook.cellText(3, column), line.at(column - 1));
            }
            QCOMPARE(workbook.usedRowCount(), 4);
        }

        // On a full disk the file is not changed, and the user gets the reason.
        const QByteArray before = fileContents(m_file.path);
        {
            const FileSizeLimit limit(16);
            press("saveResultsButton");
            QTRY_COMPARE(notices.size(), 1);
        }
        QCOMPARE(notices.takeFirst().at(1).toInt(), 2);
        QCOMPARE(fileContents(m_file.path), before);
        QCOMPARE(QDir(folder.path()).entryList(QDir::Files).size(), 1);
    }
};

QTEST_MAIN(TestBatchStrip)
#include "tst_batchstrip.moc"
