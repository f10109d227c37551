// Commands as batches: to listed devices, and from a workbook.
#include "cgi/cgistep.h"
#include "cgi/internal/longresponses.h"
#include "cgi/internal/responsepaths.h"
#include "tests/cgi/commandsite.h"
#include "tests/cgi/commandworkbooks.h"
#include "tests/datatable.h"

#include <QFile>
#include <QSignalSpy>

namespace {

constexpr int notDone = 15;

} // namespace

class TestCgiBatches : public QObject
{
    Q_OBJECT
    std::unique_ptr<CommandSite> m_site;

    [[nodiscard]] QString path() const { return m_site->folder.filePath("commands.xlsx"); }

    Batch *send(const QString &command, const QStringList &identities) const
    {
        return m_site->commands.send("Title", identities, command);
    }

    /// Runs the lines of a workbook except those that start with `leftOut`.
    Batch *runWorkbook(const QString &file, const QString &leftOut = "none") const
    {
        QSignalSpy wasRead(m_site->commands.workbooks(), &CgiWorkbooks::wasRead);
        m_site->commands.workbooks()->read(file);
        if (!QTest::qWaitFor([&] { return !wasRead.isEmpty(); }))
            return nullptr;
        QStringList lines;
        for (const QVariant &line : wasRead.first().first().toList())
            lines.append(line.toMap().value("name").toString());
        lines.removeIf([&](const QString &line) { return line.startsWith(leftOut); });
        return m_site->commands.workbooks()->run("Title", lines);
    }

    /// Three devices; `maximumParallel` of them are processed at the same time.
    void makeSite(int maximumParallel)
    {
        m_site = std::make_unique<CommandSite>(maximumParallel);
        for (const char *name : {"a", "b", "c"})
            m_site->devices->add(name, QStringLiteral("10.0.0.%1:37777").arg(name), 80);
    }

private Q_SLOTS:
    void init() { makeSite(8); }
    void cleanup() { m_site.reset(); }

    void aRowGetsItsResponse_data()
    {
        // url: empty: nothing is sent
        // mark: what the mark of the device says, empty for none
        const auto row = dataTable<QString, int, QString, QByteArray, QString, QString, QString>(
            {"ipport", "webPort", "password", "response", "url", "result", "mark"});
        const char *away = "Error:没有通往设备网页端口的隧道。";
        row("web port", "10.0.0.1:1", 8080, "s", "OK", "http://10.0.0.1:8080/cgi-bin/a", "OK", "");
        row("none reported", "10.0.0.1:1", 0, "s", "OK", "http://10.0.0.1:80/cgi-bin/a", "OK", "");
        row("tunnel", "127.0.0.1:5000", 80, "s", "OK", "http://127.0.0.1:5001/cgi-bin/a", "OK", "");
        row("no tunnel", "127.0.0.1:6000", 80, "s", "OK", "", away,
            "Title：网络异常：Error:没有通往设备网页端口的隧道。");
        row("failed", "10.0.0.1:1", 80, "s", "Error:x", "http://10.0.0.1:80/cgi-bin/a", "Error:x",
            "Title：命令失败：Error:x");
        row("password", "10.0.0.1:1", 80, "wrong", "OK", "", "Error:账号或密码错误。", "Title：密码错误");
    }

    void aRowGetsItsResponse()
    {
        QFETCH(QString, ipport);
        QFETCH(int, webPort);
        QFETCH(QString, password);
        QFETCH(QByteArray, response);
        QFETCH(QString, url);
        QFETCH(QString, mark);
        m_site->devices->add("d", ipport, webPort);
        m_site->factory.addP2PPort(5000, 5001);
        m_site->devices->accounts.insert("d", {{"account", "admin"}, {"password", password}});
        m_site->transport->response = [response](const QByteArray &) {
            return response;
        };
        Batch *batch = send("/cgi-bin/a", {"d"});
        QVERIFY(batch);
        QCOMPARE(m_site->devices->rows.value("d").value("url").toString(), "/cgi-bin/a");
        QTRY_VERIFY(!batch->isRunning());
        QTEST(m_site->result("d"), "result");
        QCOMPARE(m_site->transport->urls, url.isEmpty() ? QStringList() : QStringList(url));
        QCOMPARE(m_site->batches.failedMarks()->messagesOf("d"), mark);
    }

    /// A stop ends an endless transfer.
    void theRestOfAStoppedBatchIsReported()
    {
        makeSite(1);
        m_site->transport->gate = std::make_unique<QSemaphore>(2); // the first device
        const QSignalSpy responded(&m_site->commands, &CgiBatches::responded);
        Batch *batch = send("/cgi-bin/a", {"a", "b", "c"});
        QTRY_COMPARE(m_site->transport->atGate, 3);
        batch->stop();
        QTRY_VERIFY(!batch->isRunning());
        QCOMPARE(m_site->result("a"), "OK");
        QCOMPARE(m_site->result("b"), "Error:操作已停止。");
        QCOMPARE(m_site->result("c"), "未执行");
        QCOMPARE(batch->report()->devicesWith(notDone), QStringList("10.0.0.c:37777"));
        QCOMPARE(m_site->commands.failuresOf(batch),
                 QStringList({"10.0.0.b:37777  Error:操作已停止。", "10.0.0.c:37777  未执行"}));
        // A retry sends the same command to the stopped and not processed devices, and writes their responses
        // to their rows.
        m_site->transport->gate.reset();
        Batch *again = m_site->batches.retry(batch);
        QVERIFY(again);
        QTRY_VERIFY(!again->isRunning());
        QCOMPARE(m_site->result("b"), "OK");
        QCOMPARE(m_site->result("c"), "OK");
        QStringList identities;
        for (const QList<QVariant> &news : responded)
            identities += news.first().toStringList();
        QCOMPARE(identities, QStringList({"a", "b", "c", "b", "c"}));
    }

    void aRefusedAccountCanBeReplaced()
    {
        const auto give = [this](const char *password) {
            m_site->devices->accounts.insert("a", {{"account", "admin"}, {"password", password}});
        };
        give("wrong");
        Batch *batch = send("/cgi-bin/a", {"a"});
        QTRY_VERIFY(!batch->isRunning());
        QVERIFY(!batch->canRetry("a"));
        give("secret1");
        QVERIFY(batch->canRetry("a"));
        const Batch *again = m_site->batches.retry(batch);
        QTRY_VERIFY(!again->isRunning());
        QCOMPARE(m_site->result("a"), "OK");
    }

    void aLongResponseIsKeptCompletely()
    {
        const QString response(10'000, 'x');
        m_site->transport->response = [response](const QByteArray &) {
            return response.toUtf8();
        };
        Batch *batch = send("/cgi-bin/a", {"a"});
        QTRY_VERIFY(!batch->isRunning());
        QVERIFY(m_site->result("a").size() < response.size());
        QCOMPARE(batch->textOf("10.0.0.a:37777"), ""); // it may hold a secret
        QCOMPARE(m_site->commands.responseOf("a", m_site->result("a")), response);
        QCOMPARE(m_site->commands.responseOf("a", "other"), "other");
    }

    void oldLongResponsesAreRemoved()
    {
        LongResponses responses;
        constexpr qsizetype third = LongResponses::maximumLength / 3 + 1;
        for (const char *key : {"a", "b", "a", "c"})
            responses.keep(key, QString(third, key[0]));
        QCOMPARE(responses.complete("b", "b"), "b");
        QCOMPARE(responses.complete("a", "a").size(), third);
        QCOMPARE(responses.complete("c", "c").size(), third);
        responses.keep("a", "short");
        QCOMPARE(responses.complete("a", "a"), "a");
    }

    void imagesOfTheSameSecondHaveSeparateFiles()
    {
        m_site->transport->headers = "Content-Type: image/png\r\n";
        m_site->transport->response = [](const QByteArray &url) {
            return url;
        };
        Batch *batch = send("/cgi-bin/a", {"a", "b", "c"});
        QTRY_VERIFY(!batch->isRunning());
        for (const char *name : {"a", "b", "c"}) {
            QFile file(m_site->result(name));
            QVERIFY(file.open(QIODevice::ReadOnly));
            QCOMPARE(file.readAll(), QStringLiteral("http://10.0.0.%1:80/cgi-bin/a").arg(name).toUtf8());
        }
        QVERIFY(QFile::exists(m_site->folder.filePath("20260309070501.png")));
    }

    /// The clock may be set back between two responses.
    void imagesOfAnEarlierTimeHaveSeparateFiles()
    {
        ResponsePaths paths;
        for (int second = 0; second < 100; ++second)
            QVERIFY(!paths.own(QStringLiteral("/202603090705%1.png").arg(second)).contains('_'));
        QCOMPARE(paths.own("/20260101000000.png"), "/20260101000000.png");
        QCOMPARE(paths.own("/20260101000000.png"), "/20260101000000_2.png");
    }

    void aWorkbookGetsItsResults()
    {
        QVERIFY(writeCommandWorkbook(path(), {{"10.0.0.a", "37777", "admin", "s", "/cgi-bin/1"},
                                              {"10.0.0.a", "37777", "admin", "wrong", "/cgi-bin/2"},
                                              {"10.0.0.b", "37777", "admin", "s", "cgi-bin/3"},
                                              {"10.0.0.a:8080", "37777", "admin", "wrong", "/cgi-bin/4"},
                                              {"10.0.0.a", "37777", "admin", "s", "/cgi-bin/5", "1"}}));
        m_site->transport->response = [](const QByteArray &url) {
            return url.endsWith('5') ? QByteArray(100'000, 'x') : url;
        };
        const QSignalSpy ended(m_site->commands.workbooks(), &CgiWorkbooks::ended);
        Batch *batch = runWorkbook(QUrl::fromLocalFile(path()).toString());
        QVERIFY(batch);
        QTRY_VERIFY(!ended.isEmpty());
        QCOMPARE(ended.first().first().toString(),
                 "执行完成：成功2行，失败3行。\n执行结果已保存到文件：" + QDir::toNativeSeparators(path()));
        const QStringList results = commandResults(path(), 5);
        QCOMPARE(results.first(4), QStringList({"http://10.0.0.a/cgi-bin/1", "Error:账号或密码错误。",
                                                "Error:URL格式错误。", "Error:账号或密码错误。"}));
        QVERIFY(results.last().startsWith("xxx") && results.last().endsWith("…（内容过长，已截断）"));
        // The lines of one device are sent in order. A device that refuses an account gets no further request
        // with it.
        QCOMPARE(m_site->transport->urls,
                 QStringList({"http://10.0.0.a/cgi-bin/1", "https://10.0.0.a/cgi-bin/5"}));
        QCOMPARE(m_site->devices->logins, QStringList({"admin s", "admin wrong", "admin s"}));
        QCOMPARE(m_site->result("a"), QString()); // its row belongs to the page
    }

    void aWorkbookThatIsStoppedKeepsItsResults()
    {
        makeSite(1);
        QVERIFY(writeCommandWorkbook(path(), {{"10.0.0.a", "37777", "admin", "s", "/cgi-bin/1"},
                                              {"10.0.0.b", "37777", "admin", "s", "/cgi-bin/2"},
                                              {"10.0.0.a", "37777", "admin", "s", "/cgi-bin/3"}}));
        m_site->transport->gate = std::make_unique<QSemaphore>(2);
        QSignalSpy ended(m_site->commands.workbooks(), &CgiWorkbooks::ended);
        Batch *batch = runWorkbook(path());
        QTRY_COMPARE(m_site->transport->atGate, 3);
        m_site->commands.workbooks()->read(path());
        QCOMPARE(ended.takeFirst().first().toString(), "正在执行另一个文件中的CGI命令。");
        batch->stop();
        QTRY_VERIFY(!ended.isEmpty());
        QVERIFY(ended.first().first().toString().startsWith("已停止执行：成功1行，失败1行，未执行1行。"));
        QCOMPARE(commandResults(path(), 3).count(""), 1);
        // The file is released.
        QCOMPARE(m_site->batches.retry(batch), nullptr);
        m_site->transport->gate.reset();
        QVERIFY(runWorkbook(path()));
        QTRY_COMPARE(ended.size(), 2);
        QVERIFY(ended.last().first().toString().startsWith("执行完成：成功3行"));
    }

    /// A line that the user has excluded is not sent, and its cell is not changed.
    void onlyTheChosenLinesOfAWorkbookAreSent()
    {
        QVERIFY(writeCommandWorkbook(path(), {{"10.0.0.a", "37777", "admin", "s", "/cgi-bin/1"},
                                              {"10.0.0.b", "37777", "admin", "s", "/cgi-bin/2"}}));
        const QSignalSpy ended(m_site->commands.workbooks(), &CgiWorkbooks::ended);
        QVERIFY(runWorkbook(path(), "第2行"));
        QTRY_COMPARE(ended.size(), 1);
        QCOMPARE(commandResults(path(), 2), QStringList({"", "OK"}));
        QCOMPARE(m_site->transport->urls, QStringList("http://10.0.0.b/cgi-bin/2"));
    }

    /// The results would overwrite a change of the file.
    void aWorkbookChangedSinceReadingIsNotRun()
    {
        QVERIFY(writeCommandWorkbook(path(), {{"10.0.0.a", "37777", "admin", "s", "/cgi-bin/1"}}));
        QSignalSpy wasRead(m_site->commands.workbooks(), &CgiWorkbooks::wasRead);
        const QSignalSpy ended(m_site->commands.workbooks(), &CgiWorkbooks::ended);
        m_site->commands.workbooks()->read(path());
        QTRY_COMPARE(wasRead.size(), 1);
        QFile file(path());
        QVERIFY(file.open(QIODevice::ReadWrite) && file.setFileTime(QDateTime::currentDateTime().addSecs(60),
                                                                    QFileDevice::FileModificationTime));
        file.close();
        QCOMPARE(m_site->commands.workbooks()->run("Title", {"第2行 10.0.0.a:37777"}), nullptr);
        QCOMPARE(ended.size(), 1);
        QVERIFY(m_site->transport->urls.isEmpty());
    }

    /// The lines of the earlier workbook must not be sent while another one replaces it.
    void nothingIsRunWhileAWorkbookIsRead()
    {
        QVERIFY(writeCommandWorkbook(path(), {{"10.0.0.a", "37777", "admin", "s", "/cgi-bin/1"}}));
        CgiWorkbooks *workbooks = m_site->commands.workbooks();
        QSignalSpy wasRead(workbooks, &CgiWorkbooks::wasRead);
        workbooks->read(path());
        QTRY_COMPARE(wasRead.size(), 1);
        workbooks->read(path());
        QCOMPARE(workbooks->run("Title", {"第2行 10.0.0.a:37777"}), nullptr);
        QTRY_COMPARE(wasRead.size(), 2);
        QVERIFY(m_site->transport->urls.isEmpty());
    }

    void anInvalidFileIsRefused()
    {
        const QSignalSpy ended(m_site->commands.workbooks(), &CgiWorkbooks::ended);
        m_site->commands.workbooks()->read(path());
        QTRY_COMPARE(ended.size(), 1);
        QCOMPARE(ended.first().first().toString(), "文件打开失败");
    }
};

QTEST_GUILESS_MAIN(TestCgiBatches)
#include "tst_cgibatches.moc"
