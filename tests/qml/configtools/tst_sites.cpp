// Files dragged into the window, passwords in exported lists, groups and marks in the table of the main page.
#include "device/models/devicetablemodel.h"
#include "device/sites/knowndevices.h"
#include "device/sites/sitefile.h"
#include "device/store/devicestore.h"
#include "sdk/clock.h"
#include "tests/datatable.h"
#include "tests/device/rowsbackend.h"
#include "tests/files/filecontents.h"
#include "tests/qml/configtools/qmlscene.h"

#include <QDropEvent>
#include <QMimeData>
#include <QTemporaryDir>

namespace {

const char *const scene =
    "    width: 1280; height: 720; visible: true\n"
    "    FileDrop { anchors.fill: parent; property string taken; property var leave: null\n"
    "        property bool hasEdits: false\n"
    "        function discardEdits() { leave(); }\n"
    "        leavePage: action => { if (hasEdits) leave = action; else action(); }\n"
    "        onListDropped: path => taken = 'list ' + path\n"
    "        onSiteDropped: path => taken = 'site ' + path\n"
    "        onNotify: (message, severity) => taken = message\n"
    "    }\n"
    "    ModifyIPFiles {\n"
    "        objectName: 'files'; batches: null; shown: true\n"
    "        busyState: busy\n"
    "        deviceTable: QtObject {\n"
    "            property int checkedCount: 1\n"
    "            function checkedMacs() { return ['m1']; }\n"
    "        }\n"
    "        fileDialogs: QtObject {\n"
    "            property bool hasFile: false; objectName: 'fileDialogs'\n"
    "            function exists(path) { return hasFile; }\n"
    "            function chooseFolder(title, chosen) { chosen('/folder'); }\n"
    "        }\n"
    "        addingBatches: QtObject {\n"
    "            objectName: 'adding'; property bool reading: false; property var read: []\n"
    "            signal importBegan(var batch)\n"
    "            signal importRefused(string reason, bool mayAskAgain)\n"
    "            function importList(title, path, passphrase) { read = read.concat([path, passphrase]); }\n"
    "        }\n"
    "        deviceFactory: QtObject {\n"
    "            objectName: 'factory'; property var written: []\n"
    "            function exportFaults(family) { return []; }\n"
    "            function exportDevice(family, folder, macs, name) { written = [folder, name]; return true; "
    "}\n"
    "            function exportProtected(family, folder, macs, name, leavesOut, passphrase) {\n"
    "                written = [folder, name, leavesOut, passphrase]; return true;\n"
    "            }\n"
    "        }\n"
    "    }\n"
    "    GroupDialog { knownDevices: known }\n"
    "    ModifyIPTable {\n"
    "        y: 100; width: 1200; height: 400; objectName: 'table'; ipv6: false; model: rows; deviceFactory: "
    "null\n"
    "    }\n";

} // namespace

class TestSites : public QObject
{
    Q_OBJECT
private:
    QTemporaryDir m_folder;
    RowsFactory m_site;
    std::shared_ptr<DeviceStore> m_store =
        std::make_shared<DeviceStore>(std::make_shared<sdk::SystemClock>());
    KnownDevices m_known{m_store, {.folder = m_folder.path(), .prefix = "site"}};
    DeviceTableModel m_rows;
    QQmlEngine m_engine;
    std::unique_ptr<QQuickWindow> m_window;

    void drop(const QList<QUrl> &urls) const
    {
        QMimeData data;
        data.setUrls(urls);
        const QPoint position(600, 300);
        QDragEnterEvent enter(position, Qt::CopyAction, &data, Qt::LeftButton, {});
        QCoreApplication::sendEvent(m_window.get(), &enter);
        QDropEvent drop(position, Qt::CopyAction, &data, Qt::LeftButton, {});
        QCoreApplication::sendEvent(m_window.get(), &drop);
    }

    [[nodiscard]] QObject *object(const QString &name) const { return m_window->findChild<QObject *>(name); }

    /// An item of an open dialog.
    [[nodiscard]] QQuickItem *item(const QString &name) const
    {
        return findBelow(m_window->contentItem()->parentItem() ? m_window->contentItem()->parentItem()
                                                               : m_window->contentItem(),
                         name, Sight::Visible);
    }

    void click(const QString &name) const
    {
        QTRY_VERIFY(item(name));
        const QQuickItem *target = item(name);
        QTest::mouseClick(m_window.get(), Qt::LeftButton, {},
                          target->mapToScene({target->width() / 2, target->height() / 2}).toPoint());
    }

    void type(const QString &name, const QString &text) const
    {
        QTRY_VERIFY(item(name));
        item(name)->setProperty("text", text);
    }

private Q_SLOTS:
    void initTestCase()
    {
        m_site.rows->add({.address = "192.168.1.1", .mac = "m1", .name = "listed"});
        m_rows.setDeviceFactory(&m_site.factory);
        m_rows.setKnownDevices(&m_known);
        m_window = openScene(m_engine, scene,
                             {{"busy", m_site.factory.busyState()}, {"known", &m_known}, {"rows", &m_rows}});
        QVERIFY(m_window);
        QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    }

    void aDroppedFileIsOpened_data()
    {
        // %: path of the file
        const auto row = dataTable<QStringList, QString>({"names", "taken"});
        for (const char *name : {"a.xlsx", "a.CSV", "a.xml", "a.devlist"})
            row(name, {name}, "list %");
        row("site", {"a.site"}, "site %");
        row("another kind", {"a.pdf"}, "不支持的文件：a.pdf");
        row("several files", {"a.csv", "b.csv"}, "一次只能拖入一个文件");
        row("missing file", {"missing/a.csv"}, "拖入的不是本机上的文件");
        row("folder", {""}, "拖入的不是本机上的文件");
    }

    void aDroppedFileIsOpened()
    {
        QFETCH(const QStringList, names);
        QFETCH(QString, taken);
        QList<QUrl> urls;
        for (const QString &name : names) {
            if (!name.contains('/') && !name.isEmpty())
                QVERIFY(writeFile(m_folder.filePath(name), "x"));
            urls.append(QUrl::fromLocalFile(m_folder.filePath(name)));
        }
        object("fileDrop")->setProperty("taken", "");
        drop(urls);
        const QString result = object("fileDrop")->property("taken").toString();
        QVERIFY2(result.startsWith(taken.replace("%", m_folder.filePath(names.constFirst()))),
                 qPrintable(result));
    }

    /// The page has unsaved settings: the list is imported when the user has discarded them.
    void aListWaitsForTheConsentToLeaveThePage()
    {
        QVERIFY(writeFile(m_folder.filePath("a.csv"), "x"));
        object("fileDrop")->setProperty("taken", "");
        object("fileDrop")->setProperty("hasEdits", true);
        drop({QUrl::fromLocalFile(m_folder.filePath("a.csv"))});
        QCOMPARE(object("fileDrop")->property("taken").toString(), "");
        QMetaObject::invokeMethod(object("fileDrop"), "discardEdits");
        QVERIFY(object("fileDrop")->property("taken").toString().startsWith("list "));
        object("fileDrop")->setProperty("hasEdits", false);
    }

    void aFileOnTheWebIsRefused()
    {
        drop({QUrl("https://192.0.2.1/a.csv")});
        QVERIFY(object("fileDrop")->property("taken").toString().startsWith("拖入的不是本机上的文件"));
    }

    void anOpenDialogRefusesFiles()
    {
        QVERIFY(writeFile(m_folder.filePath("a.csv"), "x"));
        QMetaObject::invokeMethod(object("files"), "startExport");
        QTRY_VERIFY(object("exportDialog")->property("opened").toBool());
        QWindow files; // as a drag begins: the window of the file manager is active
        files.show();
        files.requestActivate();
        QTRY_VERIFY(!m_window->isActive());
        drop({QUrl::fromLocalFile(m_folder.filePath("a.csv"))});
        QVERIFY(object("fileDrop")->property("taken").toString().contains("请先关闭对话框"));
        files.close();
        m_window->requestActivate();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
        QTest::keyClick(m_window.get(), Qt::Key_Escape);
        QTRY_VERIFY(!object("exportDialog")->property("visible").toBool());
    }

    void anExportStatesAndKeepsTheChoice_data()
    {
        const auto row = dataTable<int, QString, QVariantList>({"choice", "hint", "written"});
        row("complete", 0, "明文", {"/folder", "device.xlsx"});
        row("without passwords", 1, "不含密码", {"/folder", "device.xlsx", true, ""});
        row("encrypted", 2, "加密", {"/folder", "device.devlist", false, "long enough"});
    }

    void anExportStatesAndKeepsTheChoice()
    {
        QFETCH(const int, choice);
        QFETCH(const QString, hint);
        QFETCH(const QVariantList, written);
        QMetaObject::invokeMethod(object("files"), "startExport");
        QTRY_VERIFY(object("exportDialog")->property("opened").toBool());
        click(QStringLiteral("passwords%1").arg(choice));
        QTRY_VERIFY(item("exportHint")->property("text").toString().contains(hint));
        if (choice == 2) {
            QVERIFY(!object("exportDialog")->property("okEnabled").toBool());
            type("newPassphrase", "long enough");
            type("repeatedPassphrase", "long enough?");
            QVERIFY(!object("exportDialog")->property("okEnabled").toBool());
            type("repeatedPassphrase", "long enough");
        }
        QMetaObject::invokeMethod(object("exportDialog"), "accept");
        QTRY_COMPARE(object("factory")->property("written").toList(), written);
    }

    /// The question about an existing file has the passphrase only until it is answered.
    void theQuestionForgetsThePassphrase()
    {
        object("fileDialogs")->setProperty("hasFile", true);
        const auto ask = [&] {
            QMetaObject::invokeMethod(
                object("files"), "exportTo", Q_ARG(QVariant, "/folder"), Q_ARG(QVariant, "a.devlist"),
                Q_ARG(QVariant, QVariantMap({{"passwords", 2}, {"passphrase", "long enough"}})));
            QTRY_VERIFY(object("overwriteQuestion")->property("opened").toBool());
        };
        for (const char *answer : {"accept", "reject"}) {
            ask();
            QMetaObject::invokeMethod(object("overwriteQuestion"), answer);
            QCOMPARE(object("overwriteQuestion")->property("protection").toMap(), QVariantMap());
            QTRY_VERIFY(!object("overwriteQuestion")->property("visible").toBool());
        }
        QTRY_COMPARE(object("factory")->property("written").toList(),
                     (QVariantList{"/folder", "a.devlist", false, "long enough"}));
        object("fileDialogs")->setProperty("hasFile", false);
    }

    void anEncryptedListAsksForItsPassphrase()
    {
        QMetaObject::invokeMethod(object("files"), "importFile", Q_ARG(QVariant, "/folder/a.devlist"));
        type("passphraseField", "wrong one");
        QMetaObject::invokeMethod(object("passphraseDialog"), "accept");
        QTRY_COMPARE(object("adding")->property("read").toStringList(),
                     QStringList({"/folder/a.devlist", "wrong one"}));
        const auto refuse = [&](const QString &reason, bool mayAskAgain) {
            QMetaObject::invokeMethod(object("adding"), "importRefused", Q_ARG(QString, reason),
                                      Q_ARG(bool, mayAskAgain));
        };
        refuse("密码短语错误", true);
        QTRY_VERIFY(object("passphraseDialog")->property("opened").toBool()); // asks again
        QCOMPARE(object("passphraseDialog")->property("notice").toString(), "密码短语错误");
        type("passphraseField", "second one");
        QMetaObject::invokeMethod(object("passphraseDialog"), "accept");
        const QSignalSpy notices(object("files"), SIGNAL(notify(QString, int)));
        refuse("版本不受支持", false); // no other passphrase would help
        QCOMPARE(notices.size(), 1);
        QTRY_VERIFY(!object("passphraseDialog")->property("visible").toBool());
        QMetaObject::invokeMethod(object("files"), "importFile", Q_ARG(QVariant, "/folder/a.csv"));
        QTRY_COMPARE(object("adding")->property("read").toStringList().mid(4),
                     QStringList({"/folder/a.csv", ""}));
    }

    void rowsAreMarked()
    {
        KnownDevice absent;
        absent.mac = "m9";
        absent.ipport = "192.168.1.9:80";
        absent.name = "absent";
        const Site site = {.name = {}, .devices = {absent}};
        QVERIFY(writeFile(m_folder.filePath("b.site"), SiteFile::text(site)));
        QCOMPARE(m_known.open(m_folder.filePath("b.site")), "");
        m_known.beginSearch();
        QTRY_COMPARE(m_rows.rowCount(), 2);
        QTRY_VERIFY(item("newTag0"));
        QVERIFY(!item("newTag1"));
        QVERIFY(item("check0"));
        QVERIFY(!item("check1"));
        QTRY_VERIFY(item("stateText1"));
        QTRY_COMPARE(item("stateText1")->property("text").toString(), "待确认");
        QVERIFY(!item("missingSign1"));
        QTRY_VERIFY(item("detail1"));
        QVERIFY(item("detail0")->isEnabled());
        QVERIFY(!item("detail1")->isEnabled());
        m_known.endSearch(false);
        QTRY_VERIFY(item("missingSign1"));
        QCOMPARE(item("stateText1")->property("text").toString(), "未找到");
    }

    void aGroupIsEdited()
    {
        QMetaObject::invokeMethod(object("groupDialog"), "edit",
                                  Q_ARG(QVariant, QVariantList({m_rows.get(0), m_rows.get(1)})),
                                  Q_ARG(QVariant, false));
        type("groupField", "yard");
        QMetaObject::invokeMethod(object("groupDialog"), "accept");
        QTRY_VERIFY(!object("groupDialog")->property("visible").toBool());
        QCOMPARE(m_rows.get(0).value("group").toString(), "yard");
        QCOMPARE(m_rows.get(1).value("group").toString(), "yard");
    }
};

QTEST_MAIN(TestSites)
#include "tst_sites.moc"
