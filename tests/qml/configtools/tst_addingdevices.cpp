#include "device/batch/addingbatches.h"
#include "device/models/favouritelistmodel.h"
#include "device/registry/devicefactory.h"
#include "favourites/author.h"
#include "tests/datatable.h"
#include "tests/qml/configtools/qmlscene.h"

#include <QSemaphore>
#include <QTemporaryDir>
#include <QThreadPool>

namespace {

const char *const scene =
    "    width: 1280; height: 720; visible: true\n"
    "    ModifyIPAdding {\n"
    "        objectName: 'adding'; addingBatches: addings; batches: works; busyState: busy\n"
    "        deviceFactory: site\n"
    "    }\n";

QStringList argumentsOf(const QSignalSpy &spy)
{
    QStringList texts;
    for (const QList<QVariant> &arguments : spy) {
        QStringList values;
        for (const QVariant &argument : arguments)
            values.append(argument.toString());
        texts.append(values.join('/'));
    }
    return texts;
}

/// A back end whose devices are added when the test opens the gate.
class GatedDevices : public CDeviceBase
{
public:
    GatedDevices() : CDeviceBase(nullptr) {}

    QStringList asked; ///< "address password"
    DeviceToAdd last;
    StepOutcome outcome; ///< result unless the password is "wrong"
    QSemaphore gate;     ///< each resource lets one device be added
    QThreadPool threads;

    QVariant getConfigData(const QString &, const QVariant &) override
    {
        return QVariantMap{{"defaultPort", 37777}};
    }

    DeviceStep addingStep(const DeviceToAdd &device) override
    {
        asked.append(device.address + ' ' + device.password);
        last = device;
        return [this, isWrong = device.password == QLatin1String("wrong")](const StepControl &) {
            gate.acquire();
            return isWrong ? StepOutcome{.result = 2, .text = {}} : outcome;
        };
    }

    void runForPage(const PageStep &step, const std::stop_token &,
                    const std::function<void(const PageOutcome &outcome)> &ended) override
    {
        threads.start([this, step, ended] {
            const PageOutcome of = step(StepControl());
            QMetaObject::invokeMethod(
                this, [ended, of] { ended(of); }, Qt::QueuedConnection);
        });
    }
};

} // namespace
Q_DECLARE_METATYPE(StepOutcome)

class TestAddingDevices : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_engine = std::make_unique<QQmlEngine>();
        m_devices = std::make_shared<GatedDevices>();
        m_site = std::make_unique<CDeviceFactory>(CDeviceFactory::BackEndCreators{{"dh", [this] {
                                                                                       return m_devices;
                                                                                   }}});
        m_threads = std::make_unique<BatchEngine>(nullptr);
        m_batches = std::make_unique<Batches>(*m_site, *m_threads, [] { return 1; });
        m_addings = std::make_unique<AddingBatches>(*m_site, *m_batches);
        m_window = openScene(*m_engine, scene,
                             {{"site", m_site.get()},
                              {"busy", m_site->busyState()},
                              {"works", m_batches.get()},
                              {"addings", m_addings.get()}});
        QVERIFY(m_window);
        QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
        m_adding = m_window->findChild<QObject *>("adding");
        m_adding->setProperty("favouritesFolder", favouritesFolder());
        m_notices = std::make_unique<QSignalSpy>(m_adding, SIGNAL(notify(QString, int)));
        m_added = std::make_unique<QSignalSpy>(m_adding, SIGNAL(added()));
    }

    void cleanup()
    {
        m_devices->gate.release(100);
        m_devices->threads.waitForDone();
        m_threads->end();
        m_notices.reset();
        m_added.reset();
        m_window.reset();
        m_engine.reset();
        m_addings.reset();
        m_batches.reset();
        m_site.reset();
        m_threads.reset();
    }

    void missingInputIsRefused_data()
    {
        // fields: name, text, name, text, ...
        const auto row = dataTable<QString, QStringList, QString>({"opener", "fields", "message"});
        const QStringList nothing = {"accountField", "", "portField", ""};
        row("no ID", "openP2p", nothing, "请输入P2P ID");
        row("no address", "openIp", nothing, "请输入正确的IP");
        row("no account", "openP2p", QStringList{"p2pIdField", "OV7"} + nothing, "请输入账号");
        row("no password", "openIp", {"addressField", "10.0.0.1", "portField", ""}, "请输入密码");
        row("no port", "openP2p", {"p2pIdField", "OV7", "devicePasswordField", "p", "portField", ""},
            "请输入端口");
        row("port 65536", "openP2p", {"p2pIdField", "OV7", "devicePasswordField", "p", "portField", "65536"},
            "端口范围为1到65535");
    }

    void missingInputIsRefused()
    {
        QFETCH(QString, opener);
        QFETCH(QStringList, fields);
        QFETCH(QString, message);
        open(opener, fields);
        press("accept");
        // The message is shown once, at the field that gets the focus.
        QQuickItem *messageItem = findBelow(m_window->contentItem(), "fieldMessage", Sight::Visible);
        QVERIFY(messageItem);
        QCOMPARE(messageItem->property("text").toString(), message);
        QVERIFY(messageItem->parentItem()->hasActiveFocus());
        QVERIFY(m_notices->isEmpty() && !item("dialogNotice")->isVisible());
        QVERIFY(dialog()->property("visible").toBool());
        QCOMPARE(m_devices->asked, QStringList());
    }

    void aDeviceIsAddedByHand_data()
    {
        // fieldMessage: shown in the dialog, which remains open
        const auto row = dataTable<QString, StepOutcome, QString, QString>(
            {"opener", "outcome", "notice", "fieldMessage"});
        row("address", "openIp", {}, "设备已添加/1", "");
        row("listed already", "openIp", {.result = 13, .text = {}}, "", "设备已存在");
        row("wrong password", "openIp", {.result = 2, .text = {}}, "", "密码错误");
        row("ID", "openP2p", {}, "设备已添加/1", "");
        row("ID, no port", "openP2p", {.result = 5, .text = "no port"}, "", "");
    }

    void aDeviceIsAddedByHand()
    {
        QFETCH(QString, opener);
        QFETCH(QString, notice);
        QFETCH(StepOutcome, outcome);
        m_devices->outcome = outcome;
        open(opener, filled());
        press("accept");
        press("accept"); // further clicks have no effect
        const QSignalSpy painted(m_window.get(), &QQuickWindow::frameSwapped);
        for (qsizetype frames = 0; frames < 5; ++frames) { // the window still handles events
            m_window->update();
            QTRY_VERIFY(painted.size() > frames);
        }
        QVERIFY(dialog()->property("busy").toBool() && m_site->busyState()->areRowsInUse());
        m_devices->gate.release();
        QTRY_VERIFY(!dialog()->property("busy").toBool());
        QCOMPARE(m_devices->asked, QStringList(opener == "openIp" ? "10.0.0.1 secret" : "OV7 secret"));
        QCOMPARE(m_devices->last.p2p, opener == "openP2p");
        QCOMPARE(m_devices->last.port, 37777);
        QCOMPARE(m_devices->last.account, "admin");
        QCOMPARE(argumentsOf(*m_notices).join(','), notice);
        const QQuickItem *messageItem = findBelow(m_window->contentItem(), "fieldMessage", Sight::Visible);
        QTEST(messageItem ? messageItem->property("text").toString() : QString(), "fieldMessage");
        const bool done = notice.startsWith("设备已添加");
        QCOMPARE(m_added->count(), done ? 1 : 0);
        QTRY_COMPARE(dialog()->property("visible").toBool(), !done);
        QCOMPARE(CAuthor().readJsonFilesFromFolder(favouritesFolder()), QVariantMap());
    }

    void addingIsCancelled()
    {
        open("openIp", filled());
        press("accept");
        QTRY_COMPARE(m_devices->asked.size(), 1);
        press("reject");
        QTRY_VERIFY(!dialog()->property("visible").toBool());
        QVERIFY(!m_site->busyState()->areRowsInUse());
        m_devices->gate.release();
        m_devices->threads.waitForDone();
        QCoreApplication::processEvents();
        QVERIFY(m_notices->isEmpty() && m_added->isEmpty());
        open("openIp", filled()); // another device can be added
        press("accept");
        m_devices->gate.release();
        QTRY_COMPARE(argumentsOf(*m_notices), QStringList("设备已添加/1"));
    }

    void favouritesAreSaved_data()
    {
        const auto row = dataTable<bool, QString>({"writable", "notice"});
        row("saved", true, "设备已添加，并保存到收藏夹/1");
        row("cannot be saved", false, "设备已添加，但无法保存到收藏夹，请检查程序所在文件夹的写入权限/2");
    }

    void favouritesAreSaved()
    {
        QFETCH(bool, writable);
        if (!writable) {
            QFile inTheWay(m_folder->filePath("fav"));
            QVERIFY(inTheWay.open(QIODevice::WriteOnly));
        }
        open("openIp", filled() + QStringList{"noteField", QString(60, 'n')});
        item("favouriteBox")->setProperty("checked", true);
        press("accept");
        m_devices->gate.release();
        QTRY_COMPARE(m_notices->count(), 1);
        QTEST(argumentsOf(*m_notices).first(), "notice");
        if (!writable)
            return;
        const CAuthor author;
        const QStringList values =
            author.readJsonFilesFromFolder(favouritesFolder()).value("10.0.0.1_37777.json").toStringList();
        QCOMPARE(values, (QStringList{"0", "10.0.0.1", "37777", "admin", author.AesEncrypt("secret"),
                                      QString(50, 'n')}));
    }

    /// Adding continues after the window is closed. The window shows the results when it is opened again.
    void favouritesAreAdded()
    {
        const CAuthor author;
        for (const auto &[id, password] : {std::pair("OV1", "wrong"), {"OV2", "p"}, {"OV3", "p"}})
            author.saveTextAsJson(favouritesFolder(), "1", id, "8800", "admin", author.AesEncrypt(password),
                                  "");
        QMetaObject::invokeMethod(m_adding, "openFavourites");
        auto *model = item("favouriteTable")->property("model").value<FavouriteListModel *>();
        const auto messages = [model] {
            QStringList texts;
            for (int row = 0; row < model->rowCount(); ++row)
                texts.append(model->get(row).value("message").toString());
            return texts;
        };
        model->setAllChecked(true);
        QObject *window = m_window->findChild<QObject *>("favouritesWindow");
        QMetaObject::invokeMethod(window, "accept");
        QCOMPARE(m_devices->asked, QStringList({"OV1 wrong", "OV2 p", "OV3 p"}));
        const QString running = "正在添加…";
        QCOMPARE(messages(), QStringList({running, running, running}));

        m_devices->gate.release();
        QTRY_COMPARE(messages(), QStringList({"密码错误", running, running}));
        QMetaObject::invokeMethod(window, "reject");
        QTRY_VERIFY(!window->property("visible").toBool());
        // A device added by hand would interrupt them.
        open("openIp", filled());
        press("accept");
        QVERIFY(findBelow(m_window->contentItem(), "dialogNotice", Sight::Visible)
                    ->property("text")
                    .toString()
                    .contains("添加收藏设备"));
        QCOMPARE(m_devices->asked.size(), 3);
        press("reject");

        QMetaObject::invokeMethod(m_adding, "openFavourites");
        QCOMPARE(messages().first(), "密码错误");
        QTRY_VERIFY(item("stopButton")->isVisible());
        QMetaObject::invokeMethod(item("stopButton"), "clicked");
        m_devices->gate.release();
        QTRY_COMPARE(messages(), QStringList({"密码错误", "已添加", "未执行"}));
        QVERIFY(!m_site->busyState()->areRowsInUse());
    }

    /// The secret service has its password, but cannot be read. No login with an empty password is sent,
    /// since the device would count it.
    void aFavouriteWithoutAPasswordAsksForIt()
    {
        const CAuthor author;
        author.saveTextAsJson(favouritesFolder(), "1", "OV1", "8800", "root", "", "gate");
        author.saveTextAsJson(favouritesFolder(), "1", "OV2", "8800", "admin", author.AesEncrypt("p"), "");
        QMetaObject::invokeMethod(m_adding, "openFavourites");
        auto *model = item("favouriteTable")->property("model").value<FavouriteListModel *>();
        model->setAllChecked(true);
        QMetaObject::invokeMethod(m_window->findChild<QObject *>("favouritesWindow"), "accept");
        m_devices->gate.release();
        QTRY_COMPARE(model->get(1).value("message").toString(), "已添加");
        QCOMPARE(model->get(0).value("message").toString(), "密码无法读取，双击该行输入密码");
        QCOMPARE(m_devices->asked, QStringList("OV2 p"));

        QTRY_VERIFY(!m_window->findChild<QObject *>("favouritesWindow")->property("running").toBool());
        QMetaObject::invokeMethod(item("favouriteTable"), "rowActivated", Q_ARG(int, 0));
        QTRY_VERIFY(item("devicePasswordField")->hasActiveFocus());
        item("devicePasswordField")->setProperty("text", "p1");
        press("accept");
        QCOMPARE(m_devices->asked.last(), "OV1 p1");
        QCOMPARE(m_devices->last.account, "root");
        m_devices->gate.release();
        QTRY_COMPARE(argumentsOf(*m_notices), QStringList("设备已添加，并保存到收藏夹/1"));
        const QVariantMap favourites = author.readJsonFilesFromFolder(favouritesFolder());
        QCOMPARE(favourites.value("OV1_8800.json").toStringList(),
                 (QStringList{"1", "OV1", "8800", "root", author.AesEncrypt("p1"), "gate"}));
    }

    /// Typed notes are limited in length; notes from other sources are not.
    void aLongNoteIsNotTruncated()
    {
        const CAuthor author;
        const QString note = QString(300, 'n');
        author.saveTextAsJson(favouritesFolder(), "0", "10.0.0.1", "80", "admin", "", note);
        const auto stored = [&] {
            return author.readJsonFilesFromFolder(favouritesFolder()).first().toStringList().last();
        };
        QMetaObject::invokeMethod(m_adding, "openFavourites");
        QTRY_VERIFY(item("editNote0"));
        QMetaObject::invokeMethod(item("editNote0"), "clicked");
        QTRY_VERIFY(item("noteEditor")->hasActiveFocus());
        item("favouriteFilter")->forceActiveFocus();
        QTRY_VERIFY(!item("noteEditor")->isVisible());
        QCOMPARE(stored(), note);

        QMetaObject::invokeMethod(item("editNote0"), "clicked");
        QTRY_VERIFY(item("noteEditor")->hasActiveFocus());
        QTest::keyClick(m_window.get(), Qt::Key_End);
        QTest::keyClick(m_window.get(), Qt::Key_Backspace);
        item("favouriteFilter")->forceActiveFocus();
        QTRY_COMPARE(stored(), note.chopped(1));
    }

private:
    [[nodiscard]] QString favouritesFolder() const { return m_folder->path() + "/fav/"; }
    [[nodiscard]] QObject *dialog() const { return m_window->findChild<QObject *>("addDeviceDialog"); }
    [[nodiscard]] QQuickItem *item(const QString &name) const
    {
        return findBelow(m_window->contentItem(), name, Sight::Any);
    }
    static QStringList filled()
    {
        return {"addressField", "10.0.0.1", "p2pIdField", "OV7", "devicePasswordField", "secret"};
    }
    void open(const QString &opener, const QStringList &fields) const
    {
        QMetaObject::invokeMethod(m_adding, opener.toLatin1().constData());
        for (qsizetype index = 0; index + 1 < fields.size(); index += 2)
            item(fields.at(index))->setProperty("text", fields.at(index + 1));
    }
    void press(const char *button) const { QMetaObject::invokeMethod(dialog(), button); }

    std::shared_ptr<GatedDevices> m_devices;
    std::unique_ptr<CDeviceFactory> m_site;
    std::unique_ptr<BatchEngine> m_threads;
    std::unique_ptr<Batches> m_batches;
    std::unique_ptr<AddingBatches> m_addings;
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<QQmlEngine> m_engine;
    std::unique_ptr<QQuickWindow> m_window;
    QObject *m_adding = nullptr;
    std::unique_ptr<QSignalSpy> m_notices;
    std::unique_ptr<QSignalSpy> m_added;
};

QTEST_MAIN(TestAddingDevices)
#include "tst_addingdevices.moc"
