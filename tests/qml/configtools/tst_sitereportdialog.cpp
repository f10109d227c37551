// The dialog that starts a site report.
#include "device/batch/batches.h"
#include "report/sitereport.h"
#include "tests/device/rowsbackend.h"
#include "tests/qml/configtools/qmlscene.h"

#include <QTemporaryDir>

/// Stores texts in memory, as a ViewMemory does in a file.
class TextMemory : public QObject
{
    Q_OBJECT
public:
    Q_INVOKABLE [[nodiscard]] QString text(const QString &name) const { return texts.value(name); }
    Q_INVOKABLE void keep(const QString &name, const QString &text) { texts.insert(name, text); }

    QHash<QString, QString> texts;
};

/// Chooses a folder in place of the user.
class FolderChoice : public QObject
{
    Q_OBJECT
public:
    Q_INVOKABLE void chooseFolder(const QString & /*title*/, const QJSValue &chosen)
    {
        chosen.call({folder});
    }

    QString folder;
};

class TestSiteReportDialog : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void invalidInputStartsNothing()
    {
        QTest::failOnWarning(QRegularExpression(".*"));
        RowsFactory site;
        site.rows->add({.address = "192.168.1.20", .mac = numberedMac(20)});
        site.rows->add({.address = "192.168.1.21", .mac = numberedMac(21)});
        BatchEngine batchEngine(nullptr);
        Batches batches(site.factory, batchEngine, [] { return 2; });
        SiteReport report(site.factory, batches, nullptr);
        TextMemory memory;
        const QTemporaryDir folder;
        memory.texts.insert("reportFolder", folder.path());
        QQmlEngine engine;
        const auto window = openScene(engine,
                                      "    width: 1280; height: 720; visible: true\n"
                                      "    SiteReportDialog { objectName: 'dialog'; siteReport: report\n"
                                      "        fileDialogs: null; memory: texts }\n",
                                      {{"report", &report}, {"texts", &memory}});
        QVERIFY(window);
        QVERIFY(QTest::qWaitForWindowExposed(window.get()));
        auto *dialog = window->findChild<QObject *>("dialog");
        QVERIFY(QMetaObject::invokeMethod(
            dialog, "begin", Q_ARG(QVariant, QStringList(QString::fromStdString(numberedMac(21))))));
        QTRY_VERIFY(dialog->property("opened").toBool());
        auto *content = dialog->property("contentItem").value<QQuickItem *>();

        QTest::keyClick(window.get(), Qt::Key_Return); // without the name of the site
        QVERIFY(!batches.current());
        QVERIFY(
            !findBelow(content, "reportSiteField", Sight::Any)->property("errorText").toString().isEmpty());

        findBelow(content, "reportSiteField", Sight::Any)->setProperty("text", "Head office");
        findBelow(content, "reportDocumentBox", Sight::Any)->setProperty("checked", false);
        findBelow(content, "reportWorkbookBox", Sight::Any)->setProperty("checked", false);
        QTest::keyClick(window.get(), Qt::Key_Return); // without a file
        QVERIFY(!batches.current());
        QVERIFY(findBelow(content, "dialogNotice", Sight::Visible));

        findBelow(content, "reportWorkbookBox", Sight::Any)->setProperty("checked", true);
        findBelow(content, "reportFolderField", Sight::Any)->setProperty("text", "/proc");
        QTest::keyClick(window.get(), Qt::Key_Return); // no file can be written
        QVERIFY(!batches.current());
        QVERIFY(findBelow(content, "reportFolderField", Sight::Any)
                    ->property("errorText")
                    .toString()
                    .contains("/proc"));

        findBelow(content, "reportFolderField", Sight::Any)->setProperty("text", folder.path());
        QSignalSpy finished(&report, &SiteReport::finished);
        QTest::keyClick(window.get(), Qt::Key_Return);
        QVERIFY(batches.current());
        QCOMPARE(batches.current()->total(), 1); // the ticked device
        QTRY_VERIFY(!dialog->property("opened").toBool());
        QTRY_COMPARE(finished.size(), 1);
        const QStringList paths = finished.at(0).at(0).toStringList();
        QCOMPARE(paths.size(), 1);
        QVERIFY2(paths.at(0).startsWith(folder.filePath("Head office-")), qPrintable(paths.at(0)));
        QCOMPARE(memory.texts.value("reportSite"), "Head office");
    }

    /// The workbook could not be written: the user chooses another folder for it.
    void aMissingFileIsWrittenToAnotherFolder()
    {
        RowsFactory site;
        site.rows->add({.address = "192.168.1.20", .mac = numberedMac(20)});
        BatchEngine batchEngine(nullptr);
        Batches batches(site.factory, batchEngine, [] { return 2; });
        SiteReport report(site.factory, batches, nullptr);
        const QTemporaryDir folder;
        FolderChoice dialogs;
        QQmlEngine engine;
        const auto window =
            openScene(engine,
                      "    width: 1280; height: 720; visible: true\n"
                      "    SiteReportResult { id: result; siteReport: report; fileDialogs: dialogs }\n"
                      "    Connections { target: report\n"
                      "        function onFinished(paths, reason) { result.show(paths, reason); } }\n",
                      {{"report", &report}, {"dialogs", &dialogs}});
        QVERIFY(window && QTest::qWaitForWindowExposed(window.get()));
        QTest::failOnWarning(QRegularExpression(".*"));
        const auto item = [&](const QString &name) {
            return findBelow(window->contentItem(), name, Sight::Visible);
        };
        const auto click = [&](const QString &name) {
            const QQuickItem *button = item(name);
            QVERIFY2(button, qPrintable(name));
            QTest::mouseClick(window.get(), Qt::LeftButton, {},
                              button->mapToScene(button->boundingRect().center()).toPoint());
        };

        QVERIFY(report.start({.site = "North",
                              .installer = {},
                              .folder = folder.filePath("first"),
                              .identities = report.allDevices()}));
        const QByteArray temporary = qgetenv("TMPDIR");
        qputenv("TMPDIR", "/proc");
        QTRY_VERIFY(item("reportReason"));
        temporary.isEmpty() ? qunsetenv("TMPDIR") : qputenv("TMPDIR", temporary);

        dialogs.folder = "/proc";
        click("otherReportFolder");
        QTRY_VERIFY(item("dialogNotice"));
        dialogs.folder = folder.filePath("second");
        click("otherReportFolder");
        QTRY_VERIFY(item("reportDone"));
        QVERIFY2(item("reportPath0")->property("text").toString().contains("/first/"), "the PDF file");
        QVERIFY2(item("reportPath1")->property("text").toString().contains("/second/"), "the workbook");
        QVERIFY(!item("otherReportFolder"));
    }
};

QTEST_MAIN(TestSiteReportDialog)
#include "tst_sitereportdialog.moc"
