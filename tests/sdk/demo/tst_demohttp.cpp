// The web services of simulated devices: how they are reached, and what their commands do.
#include "sdk/camerablocks.h"
#include "sdk/demo/demop2pagentlibrary.h"
#include "tests/datatable.h"
#include "tests/sdk/demo/httpclient.h"

#include <QImage>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace sdk;
using namespace sdk::demo;

namespace {

constexpr char nameCommand[] = "/cgi-bin/device?get=name";

} // namespace

class HttpTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aChangedNameIsFoundBySearches()
    {
        const HttpSite test;
        const HttpAnswer answer = test.ask("/cgi-bin/device?set=name&value=%E9%A3%9F%E5%A0%82%202%26+");
        QCOMPARE(answer.body, QByteArray("name=食堂 2&+\n"));
        QCOMPARE(test.ask(nameCommand).body, answer.body);
        QCOMPARE(textOf(test.found(200ms).value(0).device.deviceName), u"食堂 2&+"_s);
    }

    void letsInByRightCredentialsOnly_data()
    {
        const auto row =
            dataTable<HttpAuthenticationKind, bool, QByteArray, int>({"kind", "isNew", "password", "status"});
        row("digest", HttpAuthenticationKind::Digest, false, "Pass-1", 200);
        row("digest, wrong password", HttpAuthenticationKind::Digest, false, "pass-1", 401);
        row("digest, factory-new", HttpAuthenticationKind::Digest, true, "Pass-1", 401);
        row("basic", HttpAuthenticationKind::Basic, false, "Pass-1", 200);
        row("basic, wrong password", HttpAuthenticationKind::Basic, false, "Pass-1 ", 401);
    }

    void letsInByRightCredentialsOnly()
    {
        QFETCH(HttpAuthenticationKind, kind);
        QFETCH(bool, isNew);
        QFETCH(QByteArray, password);
        SceneDevice device = camera(1, 0ms);
        device.httpAuthentication = kind;
        if (isNew)
            device.initialisation = InitialisationBits::Uninitialised;
        const HttpAnswer answer = HttpSite({device}).ask(nameCommand, password);
        QTEST(answer.status, "status");
        QCOMPARE(answer.body.contains("大门"), answer.status == 200);
    }

    void setsThePicture()
    {
        const HttpSite test;
        QVERIFY(test.ask("/cgi-bin/picture").body.startsWith("brightness=50\ncontrast=50\n"));
        QVERIFY(test.ask("/cgi-bin/picture?channel=1&mode=day&brightness=60&hue=0")
                    .body.startsWith("brightness=60\ncontrast=50\nsaturation=50\nhue=0\n"));
        const Login login(*test.net, u"192.168.1.1"_s, 8800);
        const auto brightness = [&](CameraMode mode) {
            PictureItem item = {};
            item.size = sizeof(item);
            item.mode = static_cast<std::int32_t>(mode);
            const bool isRead = test.net->NetGetItem(
                login.handle, static_cast<std::uint32_t>(CameraItem::Picture), 0, &item, sizeof(item), 10ms);
            return isRead ? item.brightness : -1;
        };
        QCOMPARE(brightness(CameraMode::Day), 60);
        QCOMPARE(brightness(CameraMode::Night), 40); // not asked for
    }

    void sendsAPicture()
    {
        const HttpSite test;
        const HttpAnswer answer = test.ask("/cgi-bin/snapshot?channel=1");
        QCOMPARE(answer.field("Content-Type"), QByteArray("image/jpeg"));
        const QImage usual = QImage::fromData(answer.body, "JPG");
        QCOMPARE(usual.size(), QSize(2688, 1520)); // of its main stream
        QCOMPARE(test.ask("/cgi-bin/picture?brightness=90").status, 200);
        const QImage bright = QImage::fromData(test.ask("/cgi-bin/snapshot").body, "JPG");
        // In the second bar, which is yellow.
        const QPoint place(usual.width() * 28 / 100, usual.height() * 17 / 100);
        QVERIFY(qGreen(usual.pixel(place)) > qBlue(usual.pixel(place)) + 100);
        QVERIFY(qBlue(bright.pixel(place)) > qBlue(usual.pixel(place)) + 30);
    }

    void refusesBadCommands_data()
    {
        const auto addRow = dataTable<QByteArray, int, QByteArray>({"command", "status", "words"});
        const auto row = [&addRow](const char *title, const char *command, const char *words,
                                   int status = 400) {
            addRow(title, QByteArray(command), status, QByteArray(words));
        };
        row("unknown command", "/cgi-bin/format", "help", 404);
        row("unknown parameter", "/cgi-bin/device?get=name&gett=x", "\"gett\"");
        row("parameter twice", "/cgi-bin/device?get=name&get=model", "twice");
        row("long name",
            "/cgi-bin/device?set=name&value=0123456789012345678901234567890123456789012345678901234567890123",
            "1 to 63");
        row("half a percent code", "/cgi-bin/device?set=name&value=%4", "%25");
        row("zero in a name", "/cgi-bin/device?set=name&value=a%00b", "no parameter");
        row("brightness too high", "/cgi-bin/picture?brightness=101", "from 0 to 100");
        row("no time", "/cgi-bin/time?set=2024-02-30%2000:00:00", "2024-05-06");
    }

    void refusesBadCommands()
    {
        QFETCH(QByteArray, command);
        QFETCH(QByteArray, words);
        const HttpSite test;
        const QByteArray before = test.ask("/cgi-bin/device").body + test.ask("/cgi-bin/picture").body;
        const HttpAnswer answer = test.ask(command);
        QTEST(answer.status, "status");
        QVERIFY2(answer.body.contains(words), answer.body.constData());
        QCOMPARE(test.ask("/cgi-bin/device").body + test.ask("/cgi-bin/picture").body, before);
    }

    void tunnelsLeadToTheWebService()
    {
        SceneDevice remote = camera(1, 0ms);
        remote.p2pId = u"OV1"_s;
        remote.inOtherSegment = remote.isRemote = true;
        const HttpSite test({remote});
        const std::shared_ptr<P2PAgentLibrary> agent = test.site->libraries().p2pAgent;
        agent->OAgent_ClientInit({"tunnel.invalid", 7885, "relay.invalid", 443, "s", "d", "r", "m", 8300});
        std::int32_t web = 0;
        std::int32_t service = 0;
        QVERIFY(agent->OAgent_ClientAddPort("OV1", 80, web, 0));
        QVERIFY(agent->OAgent_ClientAddPort("OV1", 8800, service, 0));
        const auto exchange = [](HttpClient &client, const QByteArray &target) {
            client.send(request(target));
            const QByteArray challenge = client.answer().field("WWW-Authenticate");
            client.send(request(target, digest(challenge, nameCommand, "admin", "Pass-1")));
            return client.answer();
        };
        HttpClient direct(web);
        QCOMPARE(exchange(direct, nameCommand).body, QByteArray("name=大门\n"));
        HttpClient byProxy(test.port);
        QCOMPARE(exchange(byProxy, "http://127.0.0.1:" + QByteArray::number(web) + nameCommand).status, 200);
        QCOMPARE(HttpClient(service).readToEnd(), QByteArray()); // speaks something else
        byProxy.send(request("http://192.168.1.1:80/"));
        QVERIFY(test.site->requests().waitFor(u"HTTP"_s, 5)); // out of reach: no answer

        QVERIFY(test.site->portAgent().breakTunnel(web));
        direct.send(request(nameCommand));
        QVERIFY(test.site->requests().waitFor(u"HTTP"_s, 6));
        QVERIFY(agent->OAgent_ClientDelPort(web));
        QCOMPARE(direct.readToEnd(), QByteArray());
        QVERIFY(!HttpClient(web).isConnected());
        agent->OAgent_ClientRelease();
    }
};

QTEST_GUILESS_MAIN(HttpTest)
#include "tst_demohttp.moc"
