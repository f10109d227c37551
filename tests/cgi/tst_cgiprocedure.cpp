// Commands to a web server that also sends invalid responses.
#include "cgi/cgiprocedure.h"
#include "cgi/curltransport.h"
#include "sdk/clock.h"
#include "sdk/demo/demosite.h"
#include "tests/cgi/rawserver.h"
#include "tests/cgi/recordedtransport.h"
#include "tests/cgi/tlsserver.h"
#include "tests/datatable.h"
#include "tests/files/filecontents.h"
#include "tests/files/filesizelimit.h"

#include <QCryptographicHash>
#include <QDir>
#include <QElapsedTimer>
#include <QJsonDocument>
#include <QRegularExpression>
#include <QSet>
#include <QTemporaryDir>

#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

using namespace std::chrono_literals;

namespace {

const QString user = QStringLiteral("admin");
const QString password = QStringLiteral("p@ss:密码%");
const QByteArray textType = QByteArrayLiteral("Content-Type: text/plain\r\n");
const QByteArray recordingType = QByteArrayLiteral("Content-Type: application/octet-stream\r\n");

/// Limits that are short enough to wait for in a test.
CgiLimits shortLimits()
{
    CgiLimits limits;
    limits.first.total = 1s; // sufficient for a response on a busy machine
    limits.text.total = 1s;
    limits.image.total = 1s;
    limits.recording = {.slowestRate = 1024, .slowTime = 1s};
    return limits;
}

/// True if a request has the credentials that the challenge requires.
bool isLetIn(const QByteArray &request, const QByteArray &challenge, const QByteArray &target)
{
    const QByteArray account = user.toUtf8() + ':' + password.toUtf8();
    if (!challenge.startsWith("Digest"))
        return challenge.isEmpty() || request.contains("\nAuthorization: Basic " + account.toBase64());
    const auto part = [&request](const QString &name) {
        static const QRegularExpression parts(QStringLiteral("[ ,](\\w+)=\"?([^\",\r]*)"));
        auto match = parts.globalMatch(QString::fromUtf8(request));
        while (match.hasNext()) {
            const QRegularExpressionMatch found = match.next();
            if (found.captured(1) == name)
                return found.captured(2).toUtf8();
        }
        return QByteArray();
    };
    const auto hash = [](const QByteArray &text) {
        return QCryptographicHash::hash(text, QCryptographicHash::Md5).toHex();
    };
    const QByteArray secret = hash(user.toUtf8() + ":device:" + password.toUtf8());
    return part("response") == hash(secret + ":n1:" + part("nc") + ':' + part("cnonce") + ":auth:" +
                                    hash("GET:" + target.split('?').first())); // devices leave the query out
}

} // namespace

class TestCgiProcedure : public QObject
{
    Q_OBJECT
    QTemporaryDir m_folder;
    int m_loginResult = 0;
    CgiSurroundings m_surroundings;

    [[nodiscard]] QString run(const QString &url, const CgiLimits &limits = {},
                              const QString &account = user) const
    {
        return CgiProcedure(m_surroundings, limits)
            .run(url, account, password, QStringLiteral("127.0.0.1:37777"));
    }

    [[nodiscard]] QStringList savedFiles() const { return QDir(m_folder.path()).entryList(QDir::Files); }

private Q_SLOTS:
    void init()
    {
        for (const QString &name : savedFiles())
            QVERIFY(QFile::remove(m_folder.filePath(name)));
        m_loginResult = 0;
        m_surroundings = {
            .checkLogin = [this](const QString &, const QString &, const QString &) { return m_loginResult; },
            .transport = std::make_shared<CurlTransport>(1s),
            .folder = m_folder.path(),
            .localTime =
                [] {
                    return QDateTime(QDate(2026, 3, 9), QTime(7, 5, 1));
                }};
    }

    void aCertificateIsCheckedBeforeThePasswordIsSent_data()
    {
        const auto row = dataTable<int, QString, int>({"verdict", "result", "requests"});
        row("trusted", int(sdk::CertificateVerdict::Trusted), QStringLiteral("OK"), 2);
        row("unknown", int(sdk::CertificateVerdict::Unknown), QStringLiteral("Error:设备证书未确认。"), 0);
        row("changed", int(sdk::CertificateVerdict::Changed), QStringLiteral("Error:设备证书已改变。"), 0);
    }

    void aCertificateIsCheckedBeforeThePasswordIsSent()
    {
        QFETCH(const int, verdict);
        struct Asked
        {
            sdk::CertificateVerdict verdict;
            QString at = {};
        } asked = {sdk::CertificateVerdict(verdict)};
        const TlsServer server("HTTP/1.1 200 OK\r\nContent-Type: text/plain\r\nContent-Length: 2\r\n\r\nOK");
        m_surroundings.transport->setCertificateHandler(
            [](const sdk::DeviceCertificate *certificate, void *context) {
                auto *decider = static_cast<Asked *>(context);
                decider->at = QStringLiteral("%1:%2")
                                  .arg(QLatin1String(certificate->address.data()))
                                  .arg(certificate->port);
                return decider->verdict;
            },
            &asked);
        QTEST(run(QStringLiteral("https://127.0.0.1:%1/text").arg(server.port())), "result");
        QCOMPARE(asked.at, QStringLiteral("127.0.0.1:%1").arg(server.port()));
        QTEST(int(server.requests().size()), "requests");
    }

    void aSimulatedDeviceIsReachedOverHttps_data()
    {
        const auto row = dataTable<QString, QString>({"address", "result"});
        row("trusted", "192.168.1.5:8443", "name=Gate\n");
        row("not the port of HTTPS", "192.168.1.5:80", "Error:");
        row("off", "192.168.1.6:8443", "Error:");
        row("another device of the same run", "192.168.1.7:443", "name=Gate\n");
    }

    void aSimulatedDeviceIsReachedOverHttps()
    {
        QFETCH(const QString, address);
        sdk::demo::Scene scene;
        for (const auto &[number, https] :
             {std::pair(5, R"({"enabled": true, "port": 8443})"),
              std::pair(6, R"({"enabled": false, "port": 8443})"), std::pair(7, R"({"enabled": true})")}) {
            sdk::demo::SceneDevice device;
            device.mac = QStringLiteral("02:1a:c5:00:00:0%1").arg(number);
            device.address = QStringLiteral("192.168.1.%1").arg(number);
            device.httpPort = 80;
            device.name = QStringLiteral("Gate");
            device.accounts = {{user, password}};
            device.configuration.insert(QStringLiteral("Https"), QJsonDocument::fromJson(https).object());
            scene.devices.append(device);
        }
        const auto site = sdk::demo::DemoSite::create(scene, std::make_shared<sdk::SystemClock>());
        m_surroundings.transport->setProxy(site->httpProxy());
        QSet<QString> keys;
        m_surroundings.transport->setCertificateHandler(
            [](const sdk::DeviceCertificate *certificate, void *context) {
                static_cast<QSet<QString> *>(context)->insert(QLatin1String(certificate->fingerprint.data()));
                return sdk::CertificateVerdict::Trusted;
            },
            &keys);
        const QString url = QStringLiteral("https://%1/cgi-bin/device?get=name").arg(address);
        QFETCH(const QString, result);
        const QString seen = run(url);
        QVERIFY2(seen.startsWith(result), qPrintable(seen));
        (void)run(QStringLiteral("https://192.168.1.5:8443/cgi-bin/time"));
        (void)run(QStringLiteral("https://192.168.1.7/cgi-bin/time"));
        QCOMPARE(keys.size(), 2); // each has a constant key
        // A client that disconnects during the response does not end the server.
        m_surroundings.transport->setCertificateHandler(nullptr, nullptr);
        QVERIFY(run(QStringLiteral("https://192.168.1.5:8443/cgi-bin/time")).startsWith("Error:"));
    }

    void devicesGetTheRequestedCredentials_data()
    {
        // challenge: empty: the device requires no login
        const auto row = dataTable<QByteArray, QByteArray, int>({"challenge", "target", "requests"});
        row("digest", R"(Digest realm="device", nonce="n1", qop="auth")", "/text?action=get", 3);
        row("basic, asked again", R"(Basic realm="device")", "/text", 3);
        row("open", "", "/text", 2);
    }

    void devicesGetTheRequestedCredentials()
    {
        QFETCH(QByteArray, challenge);
        QFETCH(QByteArray, target);
        RawServer server([&](const RawExchange &exchange) {
            if (isLetIn(exchange.request(), challenge, target))
                exchange.respond("200 OK", textType, "OK 东门\r\n");
            else
                exchange.respond("401 Unauthorized", "WWW-Authenticate: " + challenge + "\r\n", "");
        });
        QCOMPARE(run(server.url(QString::fromUtf8(target) + "#part")), "OK 东门\r\n");
        QTEST(static_cast<int>(server.requests().size()), "requests");
        for (const QByteArray &request : server.requests())
            QVERIFY(request.startsWith("GET " + target + " HTTP"));
        if (!challenge.isEmpty())
            QCOMPARE(run(server.url(QString::fromUtf8(target)), {}, "guest"), "Error:服务器连接失败");
        // With Digest, the password is never sent in plain text.
        for (const QByteArray &request : server.requests())
            QVERIFY(!challenge.startsWith("Digest") || !request.contains("Authorization: Basic"));
        QCOMPARE(savedFiles(), QStringList());
    }

    void filesAreSaved()
    {
        const QByteArray content("\xFF\xD8picture\0of", 12);
        RawServer server([&content](const RawExchange &exchange) {
            if (exchange.request().startsWith("GET /picture"))
                exchange.respond("200 OK", "Content-Type: image/jpeg\r\n", content);
            else if (exchange.request().startsWith("GET /recording"))
                exchange.respond("200 OK", recordingType, QByteArray(300'000, 'd'));
            else
                exchange.respond("404 Not Found", "Content-Type: image/jpeg\r\n", "missing");
        });
        const QString image = m_folder.filePath("20260309070501.jpg");
        QCOMPARE(run(server.url("/picture")), image);
        const QString recording = m_folder.filePath("20260309070501.dav");
        QCOMPARE(run(server.url("/recording")), recording);
        QCOMPARE(fileContents(recording), QByteArray(300'000, 'd'));
        QCOMPARE(run(server.url("/missing")), "Error:服务器连接失败");
        QCOMPARE(savedFiles().size(), 2);
        QCOMPARE(fileContents(image), content); // as it was
    }

    void forbiddenCommandsAreNotSent()
    {
        RawServer server([](const RawExchange &exchange) { exchange.respond("200 OK", textType, "OK"); });
        m_loginResult = 3;
        QCOMPARE(run(server.url("/cgi-bin/a")), "Error:设备被锁定。");
        m_loginResult = 14;
        QCOMPARE(run(server.url("/cgi-bin/a")), "Error:设备正在升级。");
        m_loginResult = 0;
        QVERIFY(run(server.url("/cgi-bin/a"), {}, "admin\r\nX-Smuggled: 1").startsWith("Error:"));
        QVERIFY(run("file:///etc/hostname").startsWith("Error:"));
        QVERIFY(run("http://[half/cgi-bin/a").startsWith("Error:"));
        QCOMPARE(server.requests(), QList<QByteArray>());
    }

    void lineBreaksInjectNoHeader()
    {
        RawServer server([](const RawExchange &exchange) {
            if (exchange.request().contains("Authorization"))
                exchange.respond("200 OK", textType, "OK");
            else
                exchange.respond("401 Unauthorized", "WWW-Authenticate: Digest realm=\"d\", nonce=\"1\"\r\n",
                                 "");
        });
        const QString command = server.url("/cgi-bin/a?b=c\r\nX-Smuggled: 1");
        QCOMPARE(CgiProcedure(m_surroundings, {}).run(command, user, "pass\r\nX-Smuggled: 1", "127.0.0.1:1"),
                 "OK");
        QVERIFY(server.requests().size() >= 2);
        for (const QByteArray &request : server.requests())
            QVERIFY(!request.contains("\nX-Smuggled"));
    }

    void invalidResponsesAreReported_data()
    {
        // result: its start
        const auto row = dataTable<RawServer::Handler, QString>({"handler", "result"});
        const auto sending = [](const QByteArray &bytes) {
            return [bytes](const RawExchange &exchange) {
                exchange.send(bytes);
            };
        };
        const QByteArray ok = "HTTP/1.1 200 OK\r\n";
        row("no status line", sending("hello\r\n\r\nwhat is HTTP?"), "Error:");
        row("truncated body", sending(ok + "Content-Length: 1000\r\n\r\nbeginning"), "Error:");
        const QByteArray four = "Connection: close\r\nContent-Length: 4\r\n\r\n";
        row("redirection", sending("HTTP/1.1 302 Found\r\nLocation: /elsewhere\r\n" + four + "gone"),
            "Error:服务器连接失败");
        const auto repeating = [ok](const QByteArray &head, const QByteArray &chunk, int pause) {
            return [=](const RawExchange &exchange) {
                exchange.send(ok + head);
                // Not more than the announced length: the rest would be the start of the next response of the
                // connection.
                for (int sent = 0; sent < 1600; ++sent) {
                    if (!exchange.send(chunk) || (pause > 0 && !exchange.pause(pause)))
                        break;
                }
            };
        };
        row("endless headers", repeating("", "X-More: " + QByteArray(4000, 'x') + "\r\n", 0),
            "Error:应答头过大。");
        row("large text", repeating("Content-Length: 104857600\r\n\r\n", QByteArray(64 * 1024, 't'), 0),
            "Error:应答内容过大。");
        row("slow drip", repeating("Content-Length: 1000\r\n\r\n", "x", 50), "Error:");
        for (const QByteArray &type : {QByteArray("Content-Type: image/png\r\n"), recordingType, textType}) {
            const auto handler = [type](const RawExchange &exchange) {
                const bool isFirst = exchange.number() == 1;
                exchange.respond(isFirst ? "200 OK" : "404 Not Found", isFirst ? type : textType, "body");
            };
            row("becomes a page: " + type.trimmed(), handler, "Error:服务器连接失败 (HTTP 404)");
        }
    }

    void invalidResponsesAreReported()
    {
        QFETCH(RawServer::Handler, handler);
        QFETCH(QString, result);
        RawServer server(handler);
        const QString actual = run(server.url("/cgi-bin/a"), shortLimits());
        QVERIFY2(actual.startsWith(result), qPrintable(actual));
        QVERIFY(actual.size() > failedResult.size() || result != failedResult);
        QVERIFY(!server.requests().isEmpty());
        QCOMPARE(savedFiles(), QStringList()); // no file that looks complete
    }

    void aFailureDescribesTheSecondRequest_data()
    {
        // second: the response to each request after the first one
        const auto row = dataTable<QByteArray, QByteArray, QString, bool, bool>(
            {"first", "second", "result", "hasNoResponse", "isLoginRefused"});
        const QByteArray ok = "HTTP/1.1 200 OK\r\nConnection: close\r\n";
        const QByteArray complete = ok + "Content-Length: 2\r\n\r\nOK";
        const QByteArray cut = ok + "Content-Length: 9\r\n\r\ncut";
        row("cut, then too large", cut, ok + "Content-Length: 6\r\n\r\nlarger", "Error:应答内容过大。", false,
            false);
        row("cut, then refused", cut, "HTTP/1.1 403 Forbidden\r\nContent-Length: 0\r\n\r\n",
            "Error:服务器连接失败 (HTTP 403)", false, false);
        row("complete, then cut", complete, cut, "Error:", true, false);
        // As after a command that changes the password.
        row("complete, then another password", complete,
            "HTTP/1.1 401 Unauthorized\r\nConnection: close\r\nContent-Length: 0\r\n\r\n",
            "Error:服务器连接失败 (HTTP 401)", false, true);
    }

    void aFailureDescribesTheSecondRequest()
    {
        QFETCH(const QByteArray, first);
        QFETCH(const QByteArray, second);
        QFETCH(const QString, result);
        RawServer server(
            [&](const RawExchange &exchange) { exchange.send(exchange.number() == 1 ? first : second); });
        CgiLimits limits = shortLimits();
        limits.longestText = 4;
        const CgiResponse response =
            CgiProcedure(m_surroundings, limits).exchange(server.url("/cgi-bin/a"), user, password);
        QVERIFY2(response.text.startsWith(result), qPrintable(response.text));
        QTEST(response.hasNoResponse, "hasNoResponse");
        QTEST(response.isLoginRefused, "isLoginRefused");
    }

    void aCertificateThatChangesBetweenTheRequestsIsReported()
    {
        TlsServer server("HTTP/1.1 200 OK\r\nConnection: close\r\nContent-Length: 2\r\n\r\nOK");
        int asked = 0;
        m_surroundings.transport->setCertificateHandler(
            [](const sdk::DeviceCertificate *, void *count) {
                return ++*static_cast<int *>(count) == 1 ? sdk::CertificateVerdict::Trusted
                                                         : sdk::CertificateVerdict::Changed;
            },
            &asked);
        const CgiResponse response =
            CgiProcedure(m_surroundings, {})
                .exchange(QStringLiteral("https://127.0.0.1:%1/text").arg(server.port()), user, password);
        QVERIFY(response.certificateRefusal == sdk::CertificateVerdict::Changed);
        QCOMPARE(server.requests().size(), 1);
    }

    /// The results of rows name the kind of failure in the user's language, before the words of the library.
    void aRowExplainsItsFailure_data()
    {
        // response: empty: the server does not respond. result: its start
        const auto row = dataTable<bool, QByteArray, QString>({"isListening", "response", "result"});
        const QByteArray cut = "HTTP/1.1 200 OK\r\nContent-Length: 1000\r\n\r\nbeginning";
        row("no server listens", false, "", "Error:设备拒绝连接，请检查HTTP端口（");
        row("no response", true, "", "Error:设备没有及时应答（");
        row("no status line", true, "hello\r\n\r\nwhat is HTTP?", "Error:设备的应答不是有效的HTTP（");
        row("cut short", true, cut, "Error:应答结束前连接已断开（");
        row("refused", true, "HTTP/1.1 403 Forbidden\r\nContent-Length: 0\r\n\r\n",
            "Error:服务器连接失败 (HTTP 403)");
    }

    void aRowExplainsItsFailure()
    {
        QFETCH(bool, isListening);
        QFETCH(QByteArray, response);
        QFETCH(QString, result);
        auto server = std::make_unique<RawServer>([response](const RawExchange &exchange) {
            exchange.send(response);
            while (response.isEmpty() && exchange.pause(50)) {
            }
        });
        m_surroundings.explainsFailures = true;
        const QString url = server->url("/cgi-bin/a");
        if (!isListening)
            server.reset();
        const QString actual = run(url, shortLimits());
        QVERIFY2(actual.startsWith(result), qPrintable(actual));
    }

    void aRecordingThatBreaksOffIsKept_data()
    {
        // staysOpen: the connection of the device
        // isStopped: by the user, as soon as something is in the file
        const auto row = dataTable<bool, bool>({"staysOpen", "isStopped"});
        row("truncated", false, false);
        row("too slow", true, false);
        row("stopped", true, true);
    }

    void aRecordingThatBreaksOffIsKept()
    {
        QFETCH(bool, staysOpen);
        QFETCH(bool, isStopped);
        RawServer server([staysOpen](const RawExchange &exchange) {
            exchange.send("HTTP/1.1 200 OK\r\n" + recordingType + "Content-Length: 100000\r\n\r\nbegin");
            while (exchange.number() > 1 && staysOpen && exchange.pause(50)) {
            }
        });
        const QString partial = m_folder.filePath("20260309070501.partial.dav");
        m_surroundings.watch = [&] {
            return !isStopped || fileContents(partial).isEmpty();
        };
        CgiLimits limits = shortLimits();
        if (isStopped)
            limits.recording.slowTime = 60s;
        const QString result = run(server.url("/cgi-bin/a"), limits);
        QVERIFY2(result.startsWith("Error:") && result.endsWith("：" + partial), qPrintable(result));
        QCOMPARE(result.startsWith("Error:操作已停止。"), isStopped);
        QCOMPARE(savedFiles(), QStringList(QFileInfo(partial).fileName()));
        QCOMPARE(fileContents(partial), "begin");
    }

    void aStopEndsARequestImmediately()
    {
        RawServer server([](const RawExchange &exchange) {
            exchange.send("HTTP/1.1 200 OK\r\n");
            while (exchange.pause(50)) {
            }
        });
        QElapsedTimer timer;
        timer.start();
        m_surroundings.watch = [&timer] {
            return timer.elapsed() < 200;
        };
        QCOMPARE(run(server.url("/cgi-bin/a")), "Error:操作已停止。");
        constexpr qint64 immediately = 900; // the library would call a progress function after a second
        QVERIFY(timer.elapsed() < immediately);
        QCOMPARE(server.requests().size(), 1);
    }

    /// The first exchange has a time limit and discards its body. The second one receives a recording without
    /// a time limit.
    void eachTypeOfResponseHasItsLimits_data()
    {
        // largest: in bytes; 0 for any
        const auto row = dataTable<QByteArray, QString, qsizetype>({"type", "second", "largest"});
        constexpr qsizetype mebibyte = 1024 * 1024;
        row("text", QByteArray("text/plain"), "30000 0 0", 8 * mebibyte);
        row("picture", QByteArray("image/png"), "10000 0 0", 64 * mebibyte);
        row("recording", QByteArray("application/octet-stream"), "0 1024 10", qsizetype(0));
    }

    void eachTypeOfResponseHasItsLimits()
    {
        QFETCH(QByteArray, type);
        QFETCH(QString, second);
        QFETCH(qsizetype, largest);
        const auto transport = std::make_shared<RecordedTransport>();
        transport->headers = "Content-Type: " + type + "\r\n";
        m_surroundings.transport = transport;
        qsizetype size = largest;
        transport->response = [&size](const QByteArray &) {
            return QByteArray(size, 'x');
        };
        QVERIFY(!run("http://127.0.0.1/a").startsWith("Error:"));
        QCOMPARE(transport->exchangeLimits, QStringList({"3000 0 0", second}));
        ++size;
        QCOMPARE(run("http://127.0.0.1/a").startsWith("Error:"), largest > 0);
    }

    void aConnectionMayTakeFiveSeconds()
    {
        const int listener = socket(AF_INET, SOCK_STREAM, 0);
        sockaddr_in address{};
        address.sin_family = AF_INET;
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        socklen_t size = sizeof(address);
        auto *any = reinterpret_cast<sockaddr *>(&address);
        QVERIFY(bind(listener, any, size) == 0 && listen(listener, 0) == 0);
        QCOMPARE(getsockname(listener, any, &size), 0);
        const int first = socket(AF_INET, SOCK_STREAM, 0); // fills the queue: the next one gets no response
        QCOMPARE(::connect(first, any, size), 0);
        const CgiRequest request(QStringLiteral("http://127.0.0.1:%1/").arg(ntohs(address.sin_port)), user,
                                 password);
        QElapsedTimer time;
        time.start();
        QVERIFY(!CurlTransport().open(request)->perform({}, {}, {}).failure.isEmpty());
        QVERIFY2(time.elapsed() > 4900 && time.elapsed() < 8000, qPrintable(QString::number(time.elapsed())));
        close(first);
        close(listener);
    }

    void aLongRecordingOutlivesTheFirstLimit()
    {
        RawServer server([](const RawExchange &exchange) {
            exchange.send("HTTP/1.1 200 OK\r\n" + recordingType + "Content-Length: 100000\r\n\r\n");
            for (int chunk = 0; chunk < 10 && exchange.send(QByteArray(10000, 'd')) && exchange.pause(150);
                 ++chunk) {
            }
        });
        const QString path = run(server.url("/cgi-bin/a"), shortLimits());
        QCOMPARE(path, m_folder.filePath("20260309070501.dav"));
        QCOMPARE(fileContents(path).size(), 100000);
        QCOMPARE(server.requests().size(), 2);
    }

    void theSecondResponseIsTheText()
    {
        RawServer server([](const RawExchange &exchange) {
            exchange.respond("200 OK", textType, "response " + QByteArray::number(exchange.number()));
        });
        QCOMPARE(run(server.url("/cgi-bin/a")), "response 2");
    }

    void aFileThatCannotBeCreatedLeavesTheResultEmpty()
    {
        RawServer server([](const RawExchange &exchange) {
            exchange.respond("200 OK", "Content-Type: image/png\r\n", "png");
        });
        m_surroundings.folder = m_folder.filePath("none");
        QVERIFY(writeFile(m_surroundings.folder, "in the way"));
        QCOMPARE(run(server.url("/cgi-bin/a")), "");
        QCOMPARE(server.requests().size(), 1);
    }

    void aFullDiskIsReported()
    {
        RawServer server([](const RawExchange &exchange) {
            exchange.respond("200 OK", recordingType, QByteArray(1'000'000, 'd'));
        });
        const FileSizeLimit limit(200'000);
        const QString result = run(server.url("/cgi-bin/a"));
        QVERIFY2(result.startsWith("Error:文件写入失败："), qPrintable(result));
        QCOMPARE(savedFiles(), QStringList("20260309070501.partial.dav"));
    }

    /// Devices are accessed without a proxy, unless the application sets one. A tunnel is always accessed
    /// directly.
    void onlyTheConfiguredProxyIsUsed()
    {
        RawServer device([](const RawExchange &exchange) { exchange.respond("200 OK", textType, "device"); });
        RawServer proxy([](const RawExchange &exchange) { exchange.respond("200 OK", textType, "proxy"); });
        const QString proxyUrl = proxy.url({});
        qputenv("http_proxy", proxyUrl.toUtf8());
        qputenv("no_proxy", "10.11.12.13");
        QCOMPARE(run(device.url("/cgi-bin/a")), "device");
        m_surroundings.transport->setProxy(proxyUrl);
        QCOMPARE(run(device.url("/cgi-bin/a")), "device");
        QCOMPARE(run("http://10.11.12.13/cgi-bin/a"), "proxy");
        qunsetenv("http_proxy");
        qunsetenv("no_proxy");
        QVERIFY(proxy.requests().first().startsWith("GET http://10.11.12.13/cgi-bin/a HTTP/1.1\r\n"));
    }
};

QTEST_GUILESS_MAIN(TestCgiProcedure)
#include "tst_cgiprocedure.moc"
