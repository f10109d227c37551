// The command field with its suggestions, sending the command of a row, and the tool tip with the response.
#include "device/models/devicetablemodel.h"
#include "tests/cgi/commandsite.h"
#include "tests/datatable.h"
#include "tests/qml/configtools/qmlscene.h"

namespace {

const char *const scene =
    "    width: 1000; height: 400; visible: true\n"
    "    CgiCommands { id: known; cgiManager: program }\n"
    "    DeviceTableModel { id: devices; deviceFactory: factory; Component.onCompleted: refresh() }\n"
    "    CgiSender {\n"
    "        objectName: 'sender'; commands: known; batches: batchList\n"
    "        cgiBatches: works; deviceFactory: factory; deviceTable: devices\n"
    "    }\n"
    "    CgiCommandField { objectName: 'command'; x: 500; commands: known }\n"
    "    Item {\n"
    "        objectName: 'response'; x: 300; y: 200; width: 100; height: 34\n"
    "        property string content\n"
    "        OVToolTip {\n"
    "            shown: parent.content !== ''; text: parent.content; footnote: 'footnote'\n"
    "            widest: Theme.responseTipWidth\n"
    "        }\n"
    "    }\n";

const char *const page = "    width: 1280; height: 720; visible: true\n"
                         "    PageCGIConfig {\n"
                         "        objectName: 'page'; anchors.fill: parent\n"
                         "        batches: batchList; libraryInstalled: true\n"
                         "    }\n";

} // namespace

/// A replacement of the command history.
class Program : public QObject
{
    Q_OBJECT
public:
    Q_INVOKABLE [[nodiscard]] static QStringList recentCommands()
    {
        QStringList commands;
        for (int number = 0; number < 20; ++number)
            commands.append(QStringLiteral("/cgi-bin/%1").arg(number));
        return commands;
    }
    Q_INVOKABLE [[nodiscard]] static QStringList favouriteCommands() { return {}; }
    Q_INVOKABLE static void rememberCommand(const QString &) {}
};

class TestCommands : public QObject
{
    Q_OBJECT
    std::unique_ptr<Program> m_program;
    std::unique_ptr<CommandSite> m_site;
    std::unique_ptr<QQmlEngine> m_engine;
    std::unique_ptr<QQuickWindow> m_window;

    void open(const char *source)
    {
        m_window.reset();
        m_engine = std::make_unique<QQmlEngine>();
        m_window = openScene(*m_engine, source,
                             {{"program", m_program.get()},
                              {"factory", &m_site->factory},
                              {"works", &m_site->commands},
                              {"batchList", &m_site->batches},
                              {"CDeviceFactoryApi", &m_site->factory},
                              {"CGIConfigManageApi", m_program.get()},
                              {"CgiBatchesApi", &m_site->commands},
                              {"FileDialogsApi", m_program.get()},
                              {"LocalConfigApi", m_program.get()},
                              {"WebPagesApi", m_program.get()}});
        QVERIFY(m_window);
        m_window->requestActivate();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    }

    [[nodiscard]] QQuickItem *find(const QString &name) const
    {
        return findBelow(m_window->contentItem(), name, Sight::Visible);
    }

    [[nodiscard]] QRectF areaOf(const QString &name) const
    {
        const QQuickItem *item = find(name);
        return item ? item->mapRectToScene(item->boundingRect()) : QRectF();
    }

    [[nodiscard]] bool isInWindow(const QString &name) const
    {
        return QRectF(QPointF(), m_window->size()).contains(areaOf(name)) && !areaOf(name).isEmpty();
    }

private Q_SLOTS:
    void init()
    {
        m_program = std::make_unique<Program>();
        m_site = std::make_unique<CommandSite>(1);
        for (const char *name : {"a", "b", "c"})
            m_site->devices->add(name, QStringLiteral("10.0.0.%1:1").arg(name), 8080);
        open(scene);
    }

    void cleanup()
    {
        m_window.reset();
        m_engine.reset();
        m_site.reset();
    }

    /// The suggestions are at the correct position after scrolling.
    void suggestionsAreNextToTheField_data()
    {
        const auto row = dataTable<QList<int>>({"positions"});
        row("scrolled to the foot", QList<int>{10, 360});
        row("scrolled to the head", QList<int>{360, 10});
    }

    void suggestionsAreNextToTheField()
    {
        QFETCH(QList<int>, positions);
        for (const int y : positions) {
            find("command")->setY(y);
            find("cgiCommandText")->forceActiveFocus();
            QTest::keyClick(m_window.get(), Qt::Key_Slash);
            QTRY_VERIFY(isInWindow("cgiSuggestion0") && isInWindow("cgiSuggestion7"));
            const QRectF offers = areaOf("cgiSuggestion0").united(areaOf("cgiSuggestion7"));
            QVERIFY(!offers.intersects(areaOf("cgiCommandText")));
            QTest::keyClick(m_window.get(), Qt::Key_Escape);
            QTRY_VERIFY(!find("cgiSuggestion0"));
            QTest::keyClick(m_window.get(), Qt::Key_Backspace); // any change shows suggestions again
            QTest::keyClick(m_window.get(), Qt::Key_Escape);
            QTRY_VERIFY(!find("cgiSuggestion0"));
        }
    }

    void theCommandOfARowIsSent_data()
    {
        // url: empty: nothing is sent
        const auto row =
            dataTable<QString, QByteArray, QString, QString>({"command", "response", "url", "notice"});
        row("failure", "/cgi-bin/a", "Error:", "http://10.0.0.a:8080/cgi-bin/a", "");
        row("no text", "/cgi-bin/a", "", "http://10.0.0.a:8080/cgi-bin/a", "命令已执行，没有可显示的结果。");
        row("no command", "  ", "OK", "", "请填写CGI命令的具体内容。");
        row("no slash", "cgi-bin/a", "OK", "", "URL格式错误。");
    }

    void theCommandOfARowIsSent()
    {
        QFETCH(QString, command);
        QFETCH(QByteArray, response);
        QFETCH(QString, url);
        m_site->devices->rows["a"].insert("url", command);
        m_site->transport->response = [response](const QByteArray &) {
            return response;
        };
        auto *devices = m_window->findChild<DeviceTableModel *>();
        devices->refresh();
        QObject *sender = m_window->findChild<QObject *>("sender");
        const QSignalSpy notices(sender, SIGNAL(notify(QString, int)));
        QVERIFY(QMetaObject::invokeMethod(sender, "send", Q_ARG(QVariant, 0)));
        QTRY_VERIFY(!m_site->batches.isRunning());
        QCOMPARE(m_site->transport->urls, url.isEmpty() ? QStringList() : QStringList(url));
        QTEST(notices.value(0).value(0).toString(), "notice");
        if (!url.isEmpty()) // the table shows the result of the row
            QCOMPARE(devices->get(0).value("result").toString(), QString(response));
    }

    /// The command is sent again with the entered account.
    void aRefusedAccountIsRequestedAgain()
    {
        m_site->devices->rows["a"].insert("url", "/cgi-bin/a");
        m_site->devices->accounts.insert("a", {{"account", "admin"}, {"password", "wrong"}});
        open(page);
        QVERIFY(
            QMetaObject::invokeMethod(find("page"), "actOn", Q_ARG(QVariant, "send"), Q_ARG(QVariant, 0)));
        for (const char *password : {"wrong", "secret1"}) {
            QTRY_VERIFY(find("devicePasswordField") && !m_site->batches.isRunning());
            find("devicePasswordField")->setProperty("text", password);
            QTest::keyClick(m_window.get(), Qt::Key_Return);
        }
        QTRY_COMPARE(m_site->result("a"), "OK");
        QCOMPARE(m_site->devices->logins, QStringList({"admin wrong", "admin wrong", "admin secret1"}));
    }

    /// Devices are grouped by reason.
    void aBatchReportsFailedDevices()
    {
        m_site->transport->response = [](const QByteArray &url) {
            return QByteArray(url.contains("0.a:") ? "Error:b" : url.contains("0.b:") ? "OK" : "Error:a");
        };
        QObject *sender = m_window->findChild<QObject *>("sender");
        QSignalSpy failed(sender, SIGNAL(failed(QVariant)));
        const QSignalSpy notices(sender, SIGNAL(notify(QString, int)));
        QVERIFY(QMetaObject::invokeMethod(sender, "sendToAll", Q_ARG(QVariant, QStringList({"a", "b", "c"})),
                                          Q_ARG(QVariant, "/cgi-bin/a")));
        QVERIFY(failed.count() == 1 || failed.wait());
        QCOMPARE(failed.first().first().toStringList(),
                 QStringList({"10.0.0.c:1  Error:a", "10.0.0.a:1  Error:b"}));
        QCOMPARE(notices.count(), 1);
        QCOMPARE(notices.first().first().toString(), "批量配置CGI命令已完成：成功 1，失败 2");
    }

    /// No window opens over another page.
    void theEndOfAWorkbookWaitsForThePage()
    {
        open(page);
        QQuickItem *item = find("page");
        const QSignalSpy notices(item, SIGNAL(notify(QString, int)));
        item->setVisible(false);
        Q_EMIT m_site->commands.workbooks()->ended("first\nsecond");
        QCOMPARE(notices.value(0).value(0).toString(), "first");
        QVERIFY(!find("messageText"));
        item->setVisible(true);
        QTRY_VERIFY(find("messageText"));
        QCOMPARE(find("messageText")->property("text").toString(), "first\nsecond");
    }

    void aLongResponseFitsTheWindow_data()
    {
        const auto row = dataTable<QString>({"content"});
        row("short", "OK");
        row("many lines", QString("line\n").repeated(2'000));
        row("one line", QString(3'000, 'w'));
        row("line breaks of other kinds", QString("a\u2028b\u000Bc\u000Cd\u0085e\rf").repeated(300));
    }

    void aLongResponseFitsTheWindow()
    {
        QFETCH(QString, content);
        find("response")->setProperty("content", content);
        QTRY_VERIFY(isInWindow("toolTip") && isInWindow("toolTipNote"));
        const int shown = find("toolTip")->property("lineCount").toInt();
        QCOMPARE(shown > 1, content.size() > 2);
        QCOMPARE(find("toolTip")->property("truncated").toBool(), content.size() > 2);
        QTRY_VERIFY(areaOf("toolTip").bottom() <= areaOf("toolTipNote").top());
    }

    void aToolTipIsClosed_data()
    {
        QTest::addColumn<QString>("goesWith");
        for (const char *event : {"key", "click", "page"})
            QTest::newRow(event) << event;
    }

    void aToolTipIsClosed()
    {
        QFETCH(const QString, goesWith);
        find("response")->setProperty("content", "OK");
        QTRY_VERIFY(isInWindow("toolTip"));
        if (goesWith == "key")
            QTest::keyClick(m_window.get(), Qt::Key_Down);
        else if (goesWith == "click")
            QTest::mouseClick(m_window.get(), Qt::LeftButton, Qt::NoModifier,
                              areaOf("toolTip").center().toPoint());
        else
            find("response")->setVisible(false);
        QTRY_VERIFY(!find("toolTip"));
    }
};

QTEST_MAIN(TestCommands)
#include "tst_commands.moc"
