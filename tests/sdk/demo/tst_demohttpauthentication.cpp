// Who the web services of simulated devices let in.
#include "sdk/demo/internal/httpauthentication.h"
#include "tests/datatable.h"
#include "tests/sdk/demo/httpclient.h"

#include <QProcess>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace sdk;
using namespace sdk::demo;

namespace {

SceneDevice oldCamera(int number)
{
    SceneDevice device = camera(number, 0ms);
    device.httpAuthentication = HttpAuthenticationKind::Basic;
    return device;
}

SceneDevice newCamera(int number)
{
    SceneDevice device = camera(number, 0ms);
    device.initialisation = InitialisationBits::Uninitialised;
    return device;
}

/// What the `curl` program makes of `url`, asked through the proxy: its output, and the status in a last
/// line.
QByteArray curl(const HttpSite &test, const QStringList &arguments)
{
    QProcess program;
    program.start(u"curl"_s,
                  QStringList{u"--silent"_s, u"--show-error"_s, u"--max-time"_s, u"20"_s, u"--proxy"_s,
                              test.site->httpProxy(), u"--write-out"_s, u"%{http_code}"_s} +
                      arguments);
    program.waitForFinished();
    return program.readAllStandardOutput() + program.readAllStandardError();
}

constexpr char nameCommand[] = "/cgi-bin/device?get=name";

} // namespace

class HttpAuthenticationTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void letsInByRightCredentialsOnly_data()
    {
        // device: 1 asks for Digest, 2 for Basic, 3 waits for its first password
        // authorization: empty for Digest as below
        const auto row = dataTable<int, QByteArray, QByteArray, QByteArray, int>(
            {"device", "authorization", "uri", "password", "status"});
        const auto digestRow = [&row](const char *title, int device, const char *uri, const char *password,
                                      int status) {
            row(title, device, QByteArray(), QByteArray(uri), QByteArray(password), status);
        };
        const auto basicRow = [&row](const char *title, int device, const QByteArray &header, int status) {
            row(title, device, header, QByteArray(), QByteArray(), status);
        };
        digestRow("digest", 1, nameCommand, "Pass-1", 200);
        digestRow("digest in the older form of browsers", 1, "/cgi-bin/device", "Pass-1", 200);
        digestRow("digest of another query", 1, "/cgi-bin/device?get=serial", "Pass-1", 401);
        digestRow("digest of another path", 1, "/cgi-bin/", "Pass-1", 401);
        digestRow("digest with a wrong password", 1, nameCommand, "pass-1", 401);
        digestRow("digest with no password", 1, nameCommand, "", 401);
        digestRow("digest to an old device", 2, nameCommand, "Pass-1", 401);
        digestRow("digest to a factory-new device", 3, nameCommand, "Pass-1", 401);
        basicRow("basic", 2, basic("admin", "Pass-1"), 200);
        basicRow("basic with a wrong password", 2, basic("admin", "Pass-1 "), 401);
        basicRow("basic with an unknown user", 2, basic("Admin", "Pass-1"), 401);
        basicRow("basic without a colon", 2, "Basic " + QByteArray("adminPass-1").toBase64(), 401);
        basicRow("basic that is not base64", 2, "Basic {}", 401);
        basicRow("basic to a device that wants digest", 1, basic("admin", "Pass-1"), 401);
        basicRow("digest of nothing", 1, "Digest ", 401);
        basicRow("digest with an open quotation mark", 1, "Digest username=\"admin\\", 401);
        basicRow("digest of equals signs", 1, "Digest =,=,\"=\"", 401);
        basicRow("another scheme", 1, "Bearer admin", 401);
    }

    void letsInByRightCredentialsOnly()
    {
        QFETCH(int, device);
        QFETCH(QByteArray, authorization);
        QFETCH(QByteArray, uri);
        QFETCH(QByteArray, password);
        const HttpSite test({camera(1, 0ms), oldCamera(2), newCamera(3)});
        const QByteArray target = "http://192.168.1." + QByteArray::number(device) + ":80" + nameCommand;
        HttpClient client(test.port);
        client.send(request(target));
        const QByteArray challenge = client.answer().field("WWW-Authenticate");
        QCOMPARE(challenge.startsWith("Basic "), device == 2);
        client.send(request(target, authorization.isEmpty() ? digest(challenge, uri, "admin", password)
                                                            : authorization));
        const HttpAnswer answer = client.answer();
        QTEST(answer.status, "status");
        QCOMPARE(answer.body.contains("大门"), answer.status == 200);
        QCOMPARE(answer.field("WWW-Authenticate").isEmpty(), answer.status == 200);
    }

    void curlIsLetIn_data()
    {
        const auto row = dataTable<QString, int>({"option", "device"});
        row("digest", u"--digest"_s, 1);
        row("basic", u"--basic"_s, 2);
        row("whatever is asked for", u"--anyauth"_s, 1);
    }

    void curlIsLetIn()
    {
#ifdef __SANITIZE_THREAD__
        QSKIP("the thread sanitizer ends a process with threads that starts a program");
#endif
        QFETCH(QString, option);
        QFETCH(int, device);
        const HttpSite test({camera(1, 0ms), oldCamera(2)});
        for (const QString &mac : {camera(1, 0ms).mac, camera(2, 0ms).mac}) {
            test.site->changeDevice(mac, [](SceneDevice &changed, const DeviceAddresses &) {
                changed.accounts.append({u"值班 \"1\""_s, u"口令:@\\ %25"_s});
            });
        }
        const QString url = u"http://192.168.1.%1:80/cgi-bin/device?get=serial"_s.arg(device);
        const QByteArray expected = u"serial=S%1\n200"_s.arg(device).toUtf8();
        QCOMPARE(curl(test, {option, u"--user"_s, u"admin:Pass-1"_s, url}), expected);
        QCOMPARE(curl(test, {option, u"--user"_s, u"值班 \"1\":口令:@\\ %25"_s, url}), expected);
        QVERIFY(curl(test, {option, u"--user"_s, u"admin:wrong"_s, url}).endsWith("401"));
        // The same connection serves both.
        QCOMPARE(curl(test, {option, u"--user"_s, u"admin:Pass-1"_s, url, url}), expected + expected);
    }

    void noncesBecomeTooOld()
    {
        const HttpSite test;
        const QByteArray target = QByteArray("http://192.168.1.1:80") + nameCommand;
        HttpClient client(test.port);
        client.send(request(target));
        const QByteArray challenge = client.answer().field("WWW-Authenticate");
        const auto statusOf = [&](const QByteArray &nonceOf, const QByteArray &where) {
            client.send(request(where, digest(nonceOf, nameCommand, "admin", "Pass-1")));
            return client.answer();
        };
        QCOMPARE(statusOf(challenge, target).status, 200);
        QCOMPARE(statusOf(challenge, QByteArray("http://192.168.1.2:80") + nameCommand).status, 401);
        QByteArray foreign = challenge;
        foreign.replace("nonce=\"0", "nonce=\"1");
        QCOMPARE(statusOf(foreign, target).status, 401);
        test.clock->advance(HttpAuthentication::nonceLife + 1ms);
        const HttpAnswer late = statusOf(challenge, target);
        QCOMPARE(late.status, 401);
        QVERIFY(late.field("WWW-Authenticate").contains("stale=true"));
        QCOMPARE(statusOf(late.field("WWW-Authenticate"), target).status, 200);
    }
};

QTEST_GUILESS_MAIN(HttpAuthenticationTest)
#include "tst_demohttpauthentication.moc"
