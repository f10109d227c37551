// Calls to servers with invalid or missing responses, and the use of the password.
#include "sdk/onvif/soap/soapclient.h"
#include "tests/cgi/rawserver.h"
#include "tests/cgi/tlsserver.h"
#include "tests/datatable.h"

#include <QRegularExpression>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace sdk::onvif;
using namespace std::chrono_literals;

namespace {

enum Manner
{
    Silent,
    Endless,
    Closing,
    Redirecting,
    Digest,
    DigestRefusing
};

const QByteArray responseText =
    R"(<x:Envelope xmlns:x="http://www.w3.org/2003/05/soap-envelope"><x:Body><a xmlns="u"/></x:Body></x:Envelope>)";

void respondAs(Manner manner, const RawExchange &exchange)
{
    const QByteArray challenge = "WWW-Authenticate: Digest realm=\"r\", nonce=\"n\", qop=\"auth\"\r\n";
    switch (manner) {
    case Silent:
        (void)exchange.pause(10000);
        break;
    case Endless:
        exchange.send("HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n");
        while (exchange.send("10000\r\n" + QByteArray(0x10000, 'x') + "\r\n"))
            ;
        break;
    case Closing:
        exchange.send("HTTP/1.1 200 OK\r\nContent-Length: 1000\r\n\r\n<x");
        break;
    case Redirecting:
        exchange.respond("302 Found", "Location: http://127.0.0.1:1/\r\n", {});
        break;
    case Digest:
        if (exchange.request().contains("Authorization: Digest"))
            exchange.respond("200 OK", {}, responseText);
        else
            exchange.respond("401 Unauthorized", challenge, {});
        break;
    case DigestRefusing:
        exchange.respond("401 Unauthorized", challenge, {});
        break;
    }
}

ServiceAddress addressOf(const RawServer &server)
{
    ServiceAddress address;
    address.host = "127.0.0.1";
    address.port = server.address().section(u':', 1).toInt();
    return address;
}

/// Accepts the first key only.
struct AgreedKey
{
    sdk::CertificateVerdict first = sdk::CertificateVerdict::Trusted;
    std::optional<sdk::DeviceCertificate> shown = {};

    static sdk::CertificateVerdict handle(const sdk::DeviceCertificate *certificate, void *user)
    {
        auto *self = static_cast<AgreedKey *>(user);
        if (!self->shown) {
            self->shown = *certificate;
            return self->first;
        }
        return certificate->fingerprint == self->shown->fingerprint ? sdk::CertificateVerdict::Trusted
                                                                    : sdk::CertificateVerdict::Changed;
    }
};

QByteArray faultText(const QByteArray &subcode)
{
    return R"(<x:Envelope xmlns:x="http://www.w3.org/2003/05/soap-envelope"><x:Body><x:Fault><x:Code>)"
           R"(<x:Value>x:Sender</x:Value><x:Subcode><x:Value>ter:)" +
           subcode + R"(</x:Value></x:Subcode></x:Code></x:Fault></x:Body></x:Envelope>)";
}

/// A device that accepts tokens, and refuses some of them.
class TokenDevice
{
public:
    using Refusal = std::function<QByteArray(const QByteArray &request)>;

    /// `refusal` returns the subcode for a request with a token, empty to accept it.
    explicit TokenDevice(Refusal refusal, QByteArray status = "400 Bad Request")
        : m_refusal(std::move(refusal)), m_status(std::move(status))
    {
    }

    [[nodiscard]] sdk::NetError call(const char *operation)
    {
        const auto deadline = std::chrono::steady_clock::now() + 5s;
        return client.call(addressOf(m_server), SoapRequest(operation), deadline).error;
    }

    [[nodiscard]] qsizetype tokens() const
    {
        const QList<QByteArray> requests = m_server.requests();
        return std::count_if(requests.begin(), requests.end(), isWithToken);
    }

    SoapClient client{{.account = "a", .password = "b"}, std::make_shared<HttpClient>()};

private:
    static bool isWithToken(const QByteArray &request) { return request.contains("UsernameToken"); }

    void respond(const RawExchange &exchange) const
    {
        const QByteArray subcode =
            isWithToken(exchange.request()) ? m_refusal(exchange.request()) : "NotAuthorized";
        if (subcode.isEmpty())
            exchange.respond("200 OK", {}, responseText);
        else
            exchange.respond(isWithToken(exchange.request()) ? m_status : "400 Bad Request", {},
                             faultText(subcode));
    }

    const Refusal m_refusal;
    const QByteArray m_status;
    const RawServer m_server{[this](const RawExchange &exchange) {
        respond(exchange);
    }}; // last
};

const QByteArray completeResponse =
    "HTTP/1.1 200 OK\r\nContent-Length: " + QByteArray::number(responseText.size()) +
    "\r\nConnection: close\r\n\r\n" + responseText;

} // namespace

class SoapClientTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void anInvalidResponseEndsACall_data()
    {
        const auto row = dataTable<int, quint32>({"manner", "error"});
        row("never responds", Silent, static_cast<quint32>(sdk::NetError::ConnectTimeout));
        row("never stops", Endless, static_cast<quint32>(sdk::NetError::ProtocolMismatch));
        row("closes in the middle", Closing, static_cast<quint32>(sdk::NetError::NetworkFailure));
        row("redirects", Redirecting, static_cast<quint32>(sdk::NetError::ProtocolMismatch));
    }

    void anInvalidResponseEndsACall()
    {
        QFETCH(int, manner);
        QFETCH(quint32, error);
        const RawServer server(
            [manner](const RawExchange &exchange) { respondAs(Manner(manner), exchange); });
        SoapClient client({.account = "a", .password = "b"}, std::make_shared<HttpClient>());
        const SoapResponse response = client.call(addressOf(server), SoapRequest("tds:GetUsers"),
                                                  std::chrono::steady_clock::now() + 1500ms);
        QCOMPARE(static_cast<quint32>(response.error), error);
        QCOMPARE(server.requests().size(), 1);
    }

    void aPasswordIsSentOnlyOnRequest()
    {
        const RawServer server([](const RawExchange &exchange) { respondAs(Digest, exchange); });
        SoapClient client({.account = "a", .password = "b"}, std::make_shared<HttpClient>());
        const auto deadline = std::chrono::steady_clock::now() + 5s;
        QVERIFY(client.call(addressOf(server), SoapRequest("tds:GetUsers"), deadline).isOk());
        QVERIFY(client.isConfirmed());
        QVERIFY(!server.requests().constFirst().contains("Authorization"));
        for (const QByteArray &request : server.requests())
            QVERIFY(!request.contains("Basic"));
    }

    void noLoginIsSentWithoutAnAccount()
    {
        const RawServer server([](const RawExchange &exchange) { respondAs(DigestRefusing, exchange); });
        SoapClient client({}, std::make_shared<HttpClient>());
        const auto deadline = std::chrono::steady_clock::now() + 5s;
        const SoapResponse response =
            client.call(addressOf(server), SoapRequest("tds:GetDeviceInformation"), deadline);
        QVERIFY(response.error == sdk::NetError::WrongPassword);
        QCOMPARE(server.requests().size(), 1);
        QVERIFY(!server.requests().constFirst().contains("Authorization"));
    }

    void aRefusedPasswordIsNotSentAgain()
    {
        const RawServer server([](const RawExchange &exchange) { respondAs(DigestRefusing, exchange); });
        SoapClient client({.account = "a", .password = "b"}, std::make_shared<HttpClient>());
        const auto deadline = std::chrono::steady_clock::now() + 5s;
        for (int call = 0; call < 3; ++call) {
            const SoapResponse response =
                client.call(addressOf(server), SoapRequest("tds:GetUsers"), deadline);
            QVERIFY(response.error == sdk::NetError::WrongPassword);
        }
        qsizetype withPassword = 0;
        for (const QByteArray &request : server.requests())
            withPassword += request.contains("Authorization: Digest") ? 1 : 0;
        QCOMPARE(withPassword, 1);
    }

    void parallelCallsSendAWrongPasswordOnce()
    {
        TokenDevice device([](const QByteArray &) { return "NotAuthorized"; });
        std::array<sdk::NetError, 4> errors{};
        {
            std::vector<std::jthread> callers;
            for (sdk::NetError &error : errors)
                callers.emplace_back([&device, &error] { error = device.call("tds:GetUsers"); });
        }
        for (const sdk::NetError error : errors)
            QVERIFY(error == sdk::NetError::WrongPassword);
        QCOMPARE(device.tokens(), 1);
    }

    void aRefusalInASessionIsEvaluated_data()
    {
        const auto row = dataTable<QByteArray, QByteArray, QByteArray, quint32, int, quint32>(
            {"refused", "subcode", "status", "error", "tokens", "later"});
        const auto code = [](sdk::NetError error) {
            return static_cast<quint32>(error);
        };
        const quint32 ended = code(sdk::NetError::SessionEnded);
        const quint32 locked = code(sdk::NetError::AccountLocked);
        row("missing right", "SetNTP", "NotAuthorized", "400 Bad Request", code(sdk::NetError::Refused), 2,
            0);
        row("changed password", "Get|Set", "NotAuthorized", "400 Bad Request", ended, 2, ended);
        row("changed password, by status", "Get|Set", "NotAuthorized", "401 Unauthorized", ended, 1, ended);
        row("changed password, by subcode", "Get|Set", "FailedAuthentication", "400 Bad Request", ended, 1,
            ended);
        row("account locked", "Get|Set", "AccountLocked", "400 Bad Request", locked, 1, locked);
    }

    /// `tokens` are sent for the refused call; the `later` call sends none when it fails.
    void aRefusalInASessionIsEvaluated()
    {
        QFETCH(const QByteArray, refused);
        QFETCH(const QByteArray, subcode);
        QFETCH(const QByteArray, status);
        QFETCH(const quint32, error);
        QFETCH(const int, tokens);
        QFETCH(const quint32, later);
        std::atomic_bool isChanged = false;
        const QRegularExpression operations(u"<tds:(%1)"_s.arg(QLatin1String(refused)));
        TokenDevice device(
            [&](const QByteArray &request) {
                return isChanged && QString::fromLatin1(request).contains(operations) ? subcode
                                                                                      : QByteArray();
            },
            status);
        QVERIFY(device.call("tds:GetDeviceInformation") == sdk::NetError::None);
        isChanged = true;
        const qsizetype before = device.tokens();
        QCOMPARE(static_cast<quint32>(device.call("tds:SetNTP")), error);
        QCOMPARE(device.tokens() - before, tokens);
        QCOMPARE(static_cast<quint32>(device.call("tds:GetDeviceInformation")), later);
        QCOMPARE(device.tokens() - before, tokens + (later == 0 ? 1 : 0));
    }

    /// The device's clock is set by another session.
    void aTokenFollowsTheClock()
    {
        std::atomic<int> year = 2020;
        TokenDevice device([&year](const QByteArray &request) {
            return request.contains("Created") && request.contains('>' + QByteArray::number(year) + '-')
                       ? QByteArray()
                       : QByteArray("NotAuthorized");
        });
        const auto offset = [&year] {
            const QDateTime time(QDate(year, 6, 1), QTime(12, 0), Qt::UTC);
            return std::chrono::milliseconds(QDateTime::currentDateTimeUtc().msecsTo(time));
        };
        device.client.setClockOffset(offset());
        device.client.setClockReader([&](SoapClient::Deadline) { return std::optional(offset()); });
        QVERIFY(device.call("tds:GetDeviceInformation") == sdk::NetError::None);
        year = 2031;
        QVERIFY(device.call("tds:GetUsers") == sdk::NetError::None);
        QCOMPARE(device.tokens(), 3);
    }

    /// A call with the old password is under way while the password is changed.
    void aRefusalOfTheOldPasswordDoesNotAffectTheNewOne()
    {
        SoapClient *client = nullptr;
        std::atomic_bool isChanged = false;
        TokenDevice device([&](const QByteArray &request) {
            if (!request.contains("GetUsers") || isChanged.exchange(true))
                return QByteArray();
            client->setPassword("new");
            return QByteArray("FailedAuthentication");
        });
        client = &device.client;
        QVERIFY(device.call("tds:GetDeviceInformation") == sdk::NetError::None);
        QVERIFY(device.call("tds:GetUsers") == sdk::NetError::None);
        QVERIFY(!client->refusal());
        client->setRefused({.account = "a", .password = "b"});
        QVERIFY(!client->refusal());
        client->setRefused({.account = "a", .password = "new"});
        QVERIFY(client->refusal() == sdk::NetError::SessionEnded);
    }

    void nothingIsSentToAnotherKey_data()
    {
        const auto row = dataTable<bool, int, quint32>({"hasHandler", "first", "error"});
        row("no decision", false, 0, static_cast<quint32>(sdk::NetError::UnknownCertificate));
        row("unknown", true, int(sdk::CertificateVerdict::Unknown),
            static_cast<quint32>(sdk::NetError::UnknownCertificate));
        row("trusted, then changed", true, int(sdk::CertificateVerdict::Trusted), 0);
    }

    void nothingIsSentToAnotherKey()
    {
        QFETCH(const bool, hasHandler);
        QFETCH(const int, first);
        QFETCH(const quint32, error);
        TlsServer server(completeResponse);
        const auto decision = std::make_shared<sdk::CertificateDecision>();
        AgreedKey key{.first = sdk::CertificateVerdict(first)};
        if (hasHandler)
            decision->setHandler(&AgreedKey::handle, &key);
        SoapClient client({.account = "a", .password = "b"}, std::make_shared<HttpClient>(decision));
        const ServiceAddress address = {
            .isSecure = true, .host = "127.0.0.1", .port = server.port(), .identity = "02:1a:c5:00:40:25"};
        const auto call = [&] {
            const auto deadline = std::chrono::steady_clock::now() + 5s;
            return static_cast<quint32>(client.call(address, SoapRequest("tds:GetUsers"), deadline).error);
        };
        QCOMPARE(call(), error);
        QCOMPARE(server.requests().size(), error == 0 ? 1 : 0);
        if (!hasHandler || error != 0)
            return;
        QCOMPARE(key.shown->address.data(), "127.0.0.1");
        QCOMPARE(key.shown->port, server.port());
        QCOMPARE(key.shown->identity.data(), "02:1a:c5:00:40:25");
        QCOMPARE(key.shown->subject.data(), "first");
        QCOMPARE(call(), 0U);
        server.renewKey();
        QCOMPARE(call(), static_cast<quint32>(sdk::NetError::ChangedCertificate));
        QCOMPARE(server.requests().size(), 2);
    }

    void aCallIsCancelled()
    {
        const RawServer server([](const RawExchange &exchange) { respondAs(Silent, exchange); });
        const auto http = std::make_shared<HttpClient>();
        SoapClient client({}, http);
        std::jthread canceller([&] {
            QTRY_COMPARE_WITH_TIMEOUT(server.requests().size(), 1, 5000);
            http->cancel();
        });
        QElapsedTimer timer;
        timer.start();
        const SoapResponse response = client.callOpenly(addressOf(server), SoapRequest("tds:GetUsers"),
                                                        std::chrono::steady_clock::now() + 60s);
        QVERIFY(response.error == sdk::NetError::NetworkFailure && timer.elapsed() < 30000);
    }
};

QTEST_GUILESS_MAIN(SoapClientTest)
#include "tst_soapclient.moc"
