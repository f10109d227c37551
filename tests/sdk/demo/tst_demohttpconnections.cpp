// Connections to the web service of the simulated site: odd clients, many of them, faults, and the end.
#include "sdk/demo/internal/httpport.h"
#include "tests/sdk/demo/httpclient.h"

#include <QElapsedTimer>

#include <atomic>
#include <thread>
#include <vector>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace sdk;
using namespace sdk::demo;

namespace {

constexpr char nameCommand[] = "/cgi-bin/device?get=name";
constexpr char nameLine[] = "name=大门\n";
constexpr char start[] = "GET http://192.168.1.1/ HTTP/1.1\r\n"; // answered by 401

} // namespace

class HttpConnectionsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void servesManyClientsBesideIdleOnes()
    {
        const HttpSite test;
        std::vector<std::unique_ptr<HttpClient>> idle;
        for (int place = 0; place < 50; ++place) {
            idle.push_back(std::make_unique<HttpClient>(test.port));
            idle.back()->send(QByteArray(start).left(place)); // begun, and left there
        }
        std::vector<std::jthread> threads;
        std::atomic<int> answered = 0;
        for (int client = 0; client < 50; ++client) {
            threads.emplace_back([&test, &answered, client] {
                const HttpAnswer answer = test.ask(nameCommand, client % 3 + 1);
                answered += answer.body == QByteArray(nameLine) ? 1 : 0;
            });
        }
        threads.clear();
        QCOMPARE(answered.load(), 50);
        idle.back()->send(QByteArray(start).mid(49) + "\r\n");
        QCOMPARE(idle.back()->answer().status, 401); // HTTP/1.1 was cut in two
    }

    void slowAndLateAnswers()
    {
        const HttpSite test;
        test.site->setFault(camera(1, 0ms).mac, {Fault::HttpLate, 700});
        test.site->setFault(camera(1, 0ms).mac, {Fault::HttpSlow, 2});
        HttpClient client(test.port);
        test.sendAuthorized(client, nameCommand);
        QVERIFY(test.clock->waitForWaiters(1));
        test.clock->advance(699ms);
        QVERIFY(test.clock->waitForWaiters(1)); // still late
        test.clock->advance(1ms);
        QByteArray received;
        while (!received.endsWith("\r\n\r\n"))
            received += client.read(1);
        QVERIFY(received.startsWith("HTTP/1.1 200 OK\r\n"));
        QCOMPARE(client.read(1), QByteArray("n"));
        QVERIFY(test.clock->waitForWaiters(1)); // no further byte within a second
        test.clock->advance(1s);
        QCOMPARE(client.read(1), QByteArray("a"));
        QVERIFY(test.clock->waitForWaiters(1));
        test.clock->advance(1s);
        QCOMPARE(client.read(10), QByteArray(nameLine).mid(2));
    }

    void brokenAnswers()
    {
        const HttpSite test;
        test.site->setFault(camera(1, 0ms).mac, {Fault::HttpBroken});
        HttpClient broken(test.port);
        test.sendAuthorized(broken, "/cgi-bin/recording?seconds=1");
        const HttpAnswer half = broken.answer();
        QCOMPARE(half.status, 200);
        QCOMPARE(half.body.size(), half.field("Content-Length").toLongLong() / 2);
        QCOMPARE(broken.readToEnd(), QByteArray());

        test.site->clearFault(camera(1, 0ms).mac, Fault::HttpBroken);
        test.site->setFault(camera(1, 0ms).mac, {Fault::HttpNoStatusLine});
        HttpClient headless(test.port);
        test.sendAuthorized(headless, nameCommand);
        QCOMPARE(headless.readToEnd(), QByteArray(nameLine));
    }

    void hugeAndRedirectingAnswers()
    {
        const HttpSite test;
        test.site->setFault(camera(2, 0ms).mac, {Fault::HttpRedirects});
        QCOMPARE(test.ask(nameCommand, 2).status, 302);
        QCOMPARE(test.ask(nameCommand, 2).field("Location"), QByteArray("/cgi-bin/elsewhere"));
        test.site->setFault(camera(1, 0ms).mac, {Fault::HttpHuge, 3});
        const HttpAnswer answer = test.ask(nameCommand);
        QCOMPARE(answer.body.size(), qsizetype{3} * 1024 * 1024);
        QVERIFY(answer.field("Content-Type").startsWith("text/plain"));
    }

    void endsInTheMiddleOfAnswers()
    {
        auto test = std::make_unique<HttpSite>();
        test->site->setFault(camera(1, 0ms).mac, {Fault::HttpHuge, 1024});
        test->site->setFault(camera(2, 0ms).mac, {Fault::HttpSlow, 1000});
        const int port = test->port;
        HttpClient huge(port);
        HttpClient slow(port);
        HttpClient dead(port);
        HttpClient begun(port);
        test->sendAuthorized(huge, nameCommand);
        QCOMPARE(huge.read(12), QByteArray("HTTP/1.1 200"));
        test->sendAuthorized(slow, nameCommand, 2);
        dead.send(request("http://192.168.1.99/"));
        begun.send("GET ");
        QVERIFY(test->clock->waitForWaiters(2));

        QElapsedTimer timer;
        timer.start();
        test->net->NetCleanup();
        test.reset();
        QVERIFY2(timer.elapsed() < 1000, qPrintable(QString::number(timer.elapsed())));
        QVERIFY(huge.readToEnd().size() < 64 * 1024 * 1024);
        QCOMPARE(dead.readToEnd(), QByteArray());
        QVERIFY(!HttpClient(port).isConnected());
    }
};

QTEST_GUILESS_MAIN(HttpConnectionsTest)
#include "tst_demohttpconnections.moc"
