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
    void refusesMalformedRequests_data();
    void refusesMalformedRequests();
    void servesRequestsInARow();
    void endsConnectionsThatAskForIt_data();
    void endsConnectionsThatAskForIt();
    void servesManyClientsBesideIdleOnes();
    void turnsAwayTooManyClients();
    void slowAndLateAnswers();
    void brokenAnswers();
    void hugeAnswers();
    void redirectingAnswers();
    void endsInTheMiddleOfAnswers();
};

void HttpConnectionsTest::refusesMalformedRequests_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<int>("status");
    const auto row = [](const char *title, const QByteArray &bytes, int status) {
        QTest::newRow(title) << bytes << status;
    };
    const QByteArray head = start;
    row("no words", "\x16\x03\x01\x02\n\n", 400);
    row("two words", "GET http://192.168.1.1/\r\n\r\n", 400);
    row("four words", "GET http://192.168.1.1/ x HTTP/1.1\r\n\r\n", 400);
    row("control character in the address", "GET http://192.168.1.1/\x01 HTTP/1.1\r\n\r\n", 400);
    row("letter beyond ASCII in the address", "GET http://192.168.1.1/\xE5\xA4\xA7 HTTP/1.1\r\n\r\n", 400);
    row("not HTTP", "GET http://192.168.1.1/ FTP/1.1\r\n\r\n", 400);
    row("another version", "GET http://192.168.1.1/ HTTP/2.0\r\n\r\n", 505);
    row("header without a name", head + ": x\r\n\r\n", 400);
    row("header without a colon", head + "Host\r\n\r\n", 400);
    row("folded header", head + "Host: x\r\n  y\r\n\r\n", 400);
    row("blank before the colon", head + "Host : x\r\n\r\n", 400);
    row("carriage return in a header", head + "Host: x\ry\r\n\r\n", 400);
    row("zero in a header", head + QByteArray("Host: \0\r\n\r\n", 11), 400);
    row("length that is none", head + "Content-Length: -1\r\n\r\n", 400);
    row("two lengths", head + "Content-Length: 1\r\nContent-Length: 2\r\n\r\nab", 400);
    row("body too long", head + "Content-Length: 65537\r\n\r\n", 413);
    row("length beyond numbers", head + "Content-Length: 99999999999999999999\r\n\r\n", 413);
    row("body in chunks", head + "Transfer-Encoding: chunked\r\n\r\n0\r\n\r\n", 501);
    row("long address", "GET http://192.168.1.1/" + QByteArray(9000, 'a') + " HTTP/1.1\r\n\r\n", 414);
    row("address without an end", QByteArray(200000, 'a'), 414);
    row("long header", head + "X: " + QByteArray(40000, 'a') + "\r\n\r\n", 431);
    row("headers without an end", head + QByteArray("X: a\r\n").repeated(40000), 431);
    row("head that stops", "GET http://192.168.1.1/ HTTP/1.1\r\nHost", 408);
    row("body that stops", head + "Content-Length: 5\r\n\r\nabc", 408);
    row("nothing", "\r\n\r\n", 0);
    row("line feeds alone", "\n\nGET http://192.168.1.1/ HTTP/1.1\nX: a\n\n", 401);
}

void HttpConnectionsTest::refusesMalformedRequests()
{
    QFETCH(QByteArray, bytes);
    const HttpSite test;
    HttpClient client(test.port);
    client.send(bytes);
    client.endSending();
    QTEST(client.answer().status, "status");
    QCOMPARE(client.readToEnd(), QByteArray());
    QCOMPARE(test.ask(nameCommand).body, QByteArray(nameLine)); // for others all is well
}

void HttpConnectionsTest::servesRequestsInARow()
{
    const HttpSite test;
    const QByteArray target = QByteArray("http://192.168.1.1:80") + nameCommand;
    HttpClient client(test.port);
    client.send(request(target));
    const QByteArray challenge = client.answer().field("WWW-Authenticate");
    const QByteArray get = request(target, digest(challenge, nameCommand, "admin", "Pass-1"));
    const QByteArray post = "POST " + target + " HTTP/1.1\r\nAuthorization: " +
                            digest(challenge, nameCommand, "admin", "Pass-1", "POST") +
                            "\r\nContent-Length: 25\r\n\r\nGET /cgi-bin/ HTTP/1.1\r\n\r";
    client.send(get + post + "\r\n" + get + get.left(30));
    for (int answer = 0; answer < 3; ++answer)
        QCOMPARE(client.answer().body, QByteArray(nameLine));
    for (const char byte : get.mid(30))
        client.send(QByteArray(1, byte));
    QCOMPARE(client.answer().status, 200);

    const QByteArray waiting = post.left(post.indexOf("\r\n\r\n"));
    client.send(waiting + "\r\nExpect: 100-continue\r\n\r\n");
    QCOMPARE(client.answer().status, 100);
    client.send(QByteArray(25, 'x'));
    QCOMPARE(client.answer().status, 200);
}

void HttpConnectionsTest::endsConnectionsThatAskForIt_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("close") << QByteArray(start) + "Connection: Close\r\n\r\n";
    QTest::newRow("older version") << QByteArray("GET http://192.168.1.1/ HTTP/1.0\r\n\r\n");
}

void HttpConnectionsTest::endsConnectionsThatAskForIt()
{
    QFETCH(QByteArray, bytes);
    const HttpSite test;
    HttpClient client(test.port);
    client.send(bytes);
    const HttpAnswer answer = client.answer();
    QCOMPARE(answer.status, 401);
    QCOMPARE(answer.field("Connection"), QByteArray("close"));
    QCOMPARE(client.readToEnd(), QByteArray());
}

void HttpConnectionsTest::servesManyClientsBesideIdleOnes()
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

void HttpConnectionsTest::turnsAwayTooManyClients()
{
    const HttpSite test;
    std::vector<std::unique_ptr<HttpClient>> clients;
    for (std::size_t place = 0; place < HttpPort::mostConnections; ++place)
        clients.push_back(std::make_unique<HttpClient>(test.port));
    QCOMPARE(HttpClient(test.port).readToEnd(), QByteArray());
    clients.clear();
    QTRY_COMPARE(test.ask(nameCommand).status, 200); // as soon as their ends have been noticed
}

void HttpConnectionsTest::slowAndLateAnswers()
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

void HttpConnectionsTest::brokenAnswers()
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

void HttpConnectionsTest::hugeAnswers()
{
    const HttpSite test;
    test.site->setFault(camera(1, 0ms).mac, {Fault::HttpHuge, 3});
    const HttpAnswer answer = test.ask(nameCommand);
    QCOMPARE(answer.body.size(), qsizetype{3} * 1024 * 1024);
    QVERIFY(answer.field("Content-Type").startsWith("text/plain"));
}

void HttpConnectionsTest::redirectingAnswers()
{
    const HttpSite test;
    test.site->setFault(camera(1, 0ms).mac, {Fault::HttpRedirects});
    const HttpAnswer answer = test.ask(nameCommand);
    QCOMPARE(answer.status, 302);
    QCOMPARE(answer.field("Location"), QByteArray("/cgi-bin/elsewhere"));
}

void HttpConnectionsTest::endsInTheMiddleOfAnswers()
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

QTEST_GUILESS_MAIN(HttpConnectionsTest)
#include "tst_demohttpconnections.moc"
