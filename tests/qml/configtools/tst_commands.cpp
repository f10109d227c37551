// The field of a command with what it offers, the sending of a row's command, and the bubble that shows an
// answer, and the window that shows a long one.
#include "cgi/cgiconfigmanage.h"
#include "tests/datatable.h"
#include "tests/qml/configtools/qmlscene.h"

#include <QClipboard>
#include <QGuiApplication>
namespace {

const char *const scene =
    "    width: 1000; height: 400; visible: true\n"
    "    onClosing: close => close.accepted = false\n"
    "    CgiCommands { id: known; cgiManager: program }\n"
    "    CgiSender {\n"
    "        objectName: 'sender'; commands: known; cgiManager: program; stopper: foot.stopButton\n"
    "        deviceFactory: program; deviceTable: program; localConfig: program\n"
    "    }\n"
    "    OVFootBar { id: foot; y: 360; width: 400; text: ''; running: true; stoppable: true }\n"
    "    CgiAnswerWindow {\n"
    "        objectName: 'whole'; cgiManager: program; fileDialogs: null\n"
    "    }\n"
    "    CgiCommandField { objectName: 'command'; x: 500; commands: known }\n"
    "    Item {\n"
    "        objectName: 'answer'; x: 300; y: 200; width: 100; height: 34\n"
    "        property string words\n"
    "        OVToolTip {\n"
    "            shown: parent.words !== ''; text: parent.words; footnote: 'footnote'\n"
    "            widest: Theme.answerTipWidth\n"
    "        }\n"
    "    }\n";

} // namespace

/// Stands for what the page works with: a list of one device, and the object that sends commands and
/// remembers them.
class Program : public QObject
{
    Q_OBJECT
public:
    QVariantMap device;
    int tunnelPort = 0;
    QString answer;
    QStringList sent;
    QString copied;
    QStringList asked;
    std::function<void()> whileSending = [] {
    };
    QHash<QString, QString> answers; ///< by address, instead of `answer`

    Q_INVOKABLE [[nodiscard]] static QStringList recentCommands()
    {
        QStringList commands;
        for (int number = 0; number < 20; ++number)
            commands.append(QStringLiteral("/cgi-bin/%1").arg(number));
        return commands;
    }
    Q_INVOKABLE [[nodiscard]] static QStringList favouriteCommands() { return {}; }
    Q_INVOKABLE static void rememberCommand(const QString &) {}
    Q_INVOKABLE QString singleCGIConfig(const QString &url, const QString &user, const QString &password,
                                        const QString &ipport)
    {
        sent = QStringList{url, user, password, ipport};
        whileSending();
        return answers.value(ipport, answer);
    }
    Q_INVOKABLE QVariantList sortList(const QVariantList &list, const QString &key, Qt::SortOrder order)
    {
        return m_manager.sortList(list, key, order);
    }
    Q_INVOKABLE [[nodiscard]] QStringList linesOf(const QString &text) const
    {
        return m_manager.linesOf(text);
    }
    Q_INVOKABLE void stop() { asked.append("stop"); }
    Q_INVOKABLE void copyText(const QString &text) { copied = text; }
    Q_INVOKABLE [[nodiscard]] static QString getSearchConfigUsrename() { return "admin"; }
    Q_INVOKABLE [[nodiscard]] static QString getSearchConfigPass() { return "secret1"; }
    Q_INVOKABLE [[nodiscard]] QVariantMap get(int) const { return device; }
    Q_INVOKABLE [[nodiscard]] QVariantMap getDeviceInfo(const QString &, const QString &) const
    {
        return device;
    }
    Q_INVOKABLE [[nodiscard]] int getP2PWebPort(int) const { return tunnelPort; }
    Q_INVOKABLE void updataDeviceInfo(const QString &, const QString &key, const QVariant &value,
                                      const QString &, const QString &)
    {
        device.insert(key, value);
    }
    Q_INVOKABLE static void refreshDevice(const QString &) {}

private:
    CGIConfigManage m_manager{CgiSurroundings{}};
};

class TestCommands : public QObject
{
    Q_OBJECT
    std::unique_ptr<Program> m_program;
    std::unique_ptr<QQmlEngine> m_engine;
    std::unique_ptr<QQuickWindow> m_window;

    [[nodiscard]] QQuickItem *find(const QString &name) const
    {
        return findBelow(m_window->contentItem(), name, Sight::Visible);
    }

    [[nodiscard]] QRectF place(const QString &name) const
    {
        const QQuickItem *item = find(name);
        return item ? item->mapRectToScene(item->boundingRect()) : QRectF();
    }

    [[nodiscard]] bool isInWindow(const QString &name) const
    {
        return QRectF(QPointF(), m_window->size()).contains(place(name)) && !place(name).isEmpty();
    }

private Q_SLOTS:
    void init()
    {
        m_program = std::make_unique<Program>();
        m_engine = std::make_unique<QQmlEngine>();
        m_window = openScene(*m_engine, scene, {{"program", m_program.get()}});
        QVERIFY(m_window);
        m_window->requestActivate();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    }

    void cleanup()
    {
        m_window.reset();
        m_engine.reset();
    }

    /// The field of a row that is scrolled is offered something in one place and then in another.
    void offersStandBesideTheField_data()
    {
        const auto row = dataTable<QList<int>>({"places"});
        row("at the head", QList<int>{10});
        row("at the foot", QList<int>{360});
        row("scrolled to the foot", QList<int>{10, 360});
        row("scrolled to the head", QList<int>{360, 10});
    }

    void offersStandBesideTheField()
    {
        QFETCH(QList<int>, places);
        for (const int y : places) {
            find("command")->setY(y);
            find("cgiCommandText")->forceActiveFocus();
            QTest::keyClick(m_window.get(), Qt::Key_Slash);
            QTRY_VERIFY(isInWindow("cgiOffer0") && isInWindow("cgiOffer7"));
            const QRectF offers = place("cgiOffer0").united(place("cgiOffer7"));
            QVERIFY(!offers.intersects(place("cgiCommandText")));
            QTest::keyClick(m_window.get(), Qt::Key_Escape);
            QTRY_VERIFY(!find("cgiOffer0"));
            QTest::keyClick(m_window.get(), Qt::Key_Backspace); // offers again, as for any change
            QTest::keyClick(m_window.get(), Qt::Key_Escape);
            QTRY_VERIFY(!find("cgiOffer0"));
        }
    }

    void aLongCommandStaysWhole()
    {
        const QString command = "/cgi-bin/set?" + QString(10'000, 'q');
        QGuiApplication::clipboard()->setText(command);
        find("cgiCommandText")->forceActiveFocus();
        QTest::keyClick(m_window.get(), Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(find("command")->property("text").toString(), command);
        QVERIFY(!find("cgiStarButton")->isEnabled()); // the memory would not keep it
    }

    void sendsTheCommandOfARow_data()
    {
        // url: empty: nothing is sent
        const auto addRow = dataTable<QString, QString, QString, QString, QString, int>(
            {"ipport", "command", "answer", "url", "said", "webPort"});
        const auto row = [&addRow](const char *name, const char *ipport, const char *command,
                                   const char *answer, const char *url, const char *said,
                                   int webPort = 8080) {
            addRow(name, ipport, command, answer, url, said, webPort);
        };
        row("no web port", "10.0.0.1:37777", "/cgi-bin/a", "OK", "http://10.0.0.1:80/cgi-bin/a", "", 0);
        row("web port", "10.0.0.1:37777", " /cgi-bin/a ", "OK", "http://10.0.0.1:8080/cgi-bin/a", "");
        row("tunnel", "127.0.0.1:5000", "/cgi-bin/a", "OK", "http://127.0.0.1:5001/cgi-bin/a", "");
        row("no tunnel", "127.0.0.1:0", "/cgi-bin/a", "Error:没有通往设备网页端口的隧道。", "", "");
        row("failure", "10.0.0.1:37777", "/cgi-bin/a", "Error:", "http://10.0.0.1:8080/cgi-bin/a", "");
        row("no text", "10.0.0.1:37777", "/cgi-bin/a", "", "http://10.0.0.1:8080/cgi-bin/a",
            "命令已执行，没有可显示的结果。");
        row("no command", "10.0.0.1:37777", "  ", "OK", "", "请填写CGI命令的具体内容。");
        row("no slash", "10.0.0.1:37777", "cgi-bin/a", "OK", "", "URL格式错误。");
        row("with a host", "10.0.0.1:37777", "http://10.0.0.1/cgi-bin/a", "OK", "", "URL格式错误。");
    }

    void sendsTheCommandOfARow()
    {
        QFETCH(QString, ipport);
        QFETCH(QString, command);
        QFETCH(QString, answer);
        QFETCH(QString, url);
        QFETCH(int, webPort);
        m_program->device = {
            {"ipport", ipport}, {"identity", "02:00"}, {"httpport", webPort}, {"url", command}};
        m_program->tunnelPort = ipport.endsWith(":0") ? 0 : 5001;
        m_program->answer = answer;
        QObject *sender = m_window->findChild<QObject *>("sender");
        QSignalSpy said(sender, SIGNAL(said(QString, int)));
        QVERIFY(QMetaObject::invokeMethod(sender, "send", Q_ARG(QVariant, 0)));
        QTRY_VERIFY(!sender->property("running").toBool());
        QCOMPARE(m_program->sent,
                 url.isEmpty() ? QStringList() : QStringList({url, "admin", "secret1", ipport}));
        QCOMPARE(m_program->device.value("result").toString(),
                 url.isEmpty() && said.count() > 0 ? QString() : answer);
        QTEST(said.value(0).value(0).toString(), "said");
    }

    /// Those with the same reason stand together.
    void aBatchNamesTheDevicesThatAreNotDone()
    {
        m_program->answers = {{"10.0.0.1:1", "Error:b"}, {"10.0.0.2:1", "OK"}, {"10.0.0.3:1", "Error:a"}};
        QVariantList rows;
        for (const char *ipport : {"10.0.0.1:1", "10.0.0.2:1", "10.0.0.3:1"})
            rows.append(QVariantMap{{"ipport", ipport}, {"identity", ipport}});
        QObject *sender = m_window->findChild<QObject *>("sender");
        QSignalSpy failed(sender, SIGNAL(failed(QVariant)));
        QVERIFY(QMetaObject::invokeMethod(sender, "sendToAll", Q_ARG(QVariant, rows),
                                          Q_ARG(QVariant, "/cgi-bin/a")));
        QVERIFY(failed.count() == 1 || failed.wait());
        QStringList lines;
        const QVariantList devices = failed.first().first().toList();
        for (const QVariant &device : devices)
            lines.append(device.toMap().value("ipport").toString());
        QCOMPARE(lines, QStringList({"10.0.0.3:1", "10.0.0.1:1"}));
    }

    void aRunningCommandCanBeStopped_data()
    {
        // clicked: empty: the window is to close
        const auto row = dataTable<QString>({"clicked"});
        row("by the button", "stopButton");
        row("by closing the window", "");
    }

    void aRunningCommandCanBeStopped()
    {
        QFETCH(QString, clicked);
        m_program->device = {{"ipport", "10.0.0.1:1"}, {"identity", "02:00"}, {"url", "/cgi-bin/a"}};
        QObject *sender = m_window->findChild<QObject *>("sender");
        m_program->whileSending = [&] {
            QTest::mouseClick(m_window.get(), Qt::LeftButton, {}, QPoint(500, 200)); // beside the button
            m_program->asked.append("beside");
            if (clicked.isEmpty())
                m_window->close();
            else
                QTest::mouseClick(m_window.get(), Qt::LeftButton, {}, place(clicked).center().toPoint());
        };
        QVERIFY(QMetaObject::invokeMethod(sender, "send", Q_ARG(QVariant, 0)));
        QTRY_VERIFY(!sender->property("running").toBool());
        QCOMPARE(m_program->asked, QStringList({"beside", "stop"}));
    }

    void aLongAnswerCanBeReadToItsEnd()
    {
        const QString text = QString("line\n").repeated(5'000) + "end";
        QObject *window = m_window->findChild<QObject *>("whole");
        QMetaObject::invokeMethod(window, "show", Q_ARG(QVariant, "10.0.0.1:1"), Q_ARG(QVariant, text));
        QTRY_VERIFY(find("cgiAnswerLines") && find("cgiAnswerLines")->hasActiveFocus());
        QQuickItem *lines = find("cgiAnswerLines");
        QCOMPARE(lines->property("count").toInt(), 5'001);
        QTest::keyClick(m_window.get(), Qt::Key_End);
        QTRY_VERIFY(lines->property("atYEnd").toBool());
        QTest::keyClick(m_window.get(), Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(m_program->copied, "end");
        QMetaObject::invokeMethod(window, "accept");
        QCOMPARE(m_program->copied, text);
    }

    void aLongAnswerEndsInTheWindow_data()
    {
        const auto row = dataTable<QString>({"words"});
        row("short", "OK");
        row("many lines", QString("line\n").repeated(2'000));
        row("one line", QString(3'000, 'w'));
        row("wide letters", QString(3'000, u'东'));
        row("line breaks of other kinds", QString("a\u2028b\u000Bc\u000Cd\u0085e\rf").repeated(300));
    }

    void aLongAnswerEndsInTheWindow()
    {
        QFETCH(QString, words);
        find("answer")->setProperty("words", words);
        QTRY_VERIFY(isInWindow("toolTip") && isInWindow("toolTipNote"));
        const int shown = find("toolTip")->property("lineCount").toInt();
        QCOMPARE(shown > 1, words.size() > 2);
        QCOMPARE(find("toolTip")->property("truncated").toBool(), words.size() > 2);
        QTRY_VERIFY(place("toolTip").bottom() <= place("toolTipNote").top());
    }
};

QTEST_MAIN(TestCommands)
#include "tst_commands.moc"
