// Calls to servers that answer oddly or not at all, and what is sent of a password.
#include "sdk/onvif/soap/soapclient.h"
#include "tests/cgi/rawserver.h"
#include "tests/cgi/tlsserver.h"
#include "tests/datatable.h"

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

const QByteArray answerText =
    R"(<x:Envelope xmlns:x="http://www.w3.org/2003/05/soap-envelope"><x:Body><a xmlns="u"/></x:Body></x:Envelope>)";

void answerAs(Manner manner, const RawExchange &exchange)
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
        exchange.answer("302 Found", "Location: http://127.0.0.1:1/\r\n", {});
        break;
    case Digest:
        if (exchange.request().contains("Authorization: Digest"))
            exchange.answer("200 OK", {}, answerText);
        else
            exchange.answer("401 Unauthorized", challenge, {});
        break;
    case DigestRefusing:
        exchange.answer("401 Unauthorized", challenge, {});
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

/// Agrees to one key, which it is shown first.
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

const QByteArray wholeAnswer = "HTTP/1.1 200 OK\r\nContent-Length: " + QByteArray::number(answerText.size()) +
                               "\r\nConnection: close\r\n\r\n" + answerText;

} // namespace

class SoapClientTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void anOddServerEndsACall_data()
    {
        const auto row = dataTable<int, quint32>({"manner", "error"});
        row("never answers", Silent, static_cast<quint32>(sdk::NetError::ConnectTimeout));
        row("never stops", Endless, static_cast<quint32>(sdk::NetError::ProtocolMismatch));
        row("closes in the middle", Closing, static_cast<quint32>(sdk::NetError::NetworkFailure));
        row("redirects", Redirecting, static_cast<quint32>(sdk::NetError::ProtocolMismatch));
    }

    void anOddServerEndsACall()
    {
        QFETCH(int, manner);
        QFETCH(quint32, error);
        const RawServer server([manner](const RawExchange &exchange) { answerAs(Manner(manner), exchange); });
        SoapClient client({.account = "a", .password = "b"}, std::make_shared<HttpClient>());
        const SoapAnswer answer = client.call(addressOf(server), SoapRequest("tds:GetUsers"),
                                              std::chrono::steady_clock::now() + 1500ms);
        QCOMPARE(static_cast<quint32>(answer.error), error);
        QCOMPARE(server.requests().size(), 1);
    }

    void aPasswordIsSentOnlyWhereItIsAskedFor()
    {
        const RawServer server([](const RawExchange &exchange) { answerAs(Digest, exchange); });
        SoapClient client({.account = "a", .password = "b"}, std::make_shared<HttpClient>());
        const auto deadline = std::chrono::steady_clock::now() + 5s;
        QVERIFY(client.call(addressOf(server), SoapRequest("tds:GetUsers"), deadline).isOk());
        QVERIFY(client.isConfirmed());
        QVERIFY(!server.requests().constFirst().contains("Authorization"));
        for (const QByteArray &request : server.requests())
            QVERIFY(!request.contains("Basic"));
    }

    void aRefusedPasswordIsNotSentAgain()
    {
        const RawServer server([](const RawExchange &exchange) { answerAs(DigestRefusing, exchange); });
        SoapClient client({.account = "a", .password = "b"}, std::make_shared<HttpClient>());
        const auto deadline = std::chrono::steady_clock::now() + 5s;
        for (int call = 0; call < 3; ++call) {
            const SoapAnswer answer = client.call(addressOf(server), SoapRequest("tds:GetUsers"), deadline);
            QVERIFY(answer.error == sdk::NetError::WrongPassword);
        }
        qsizetype withPassword = 0;
        for (const QByteArray &request : server.requests())
            withPassword += request.contains("Authorization: Digest") ? 1 : 0;
        QCOMPARE(withPassword, 1);
    }

    void nothingIsSentToAnotherKey_data()
    {
        const auto row = dataTable<bool, int, quint32>({"hasHandler", "first", "error"});
        row("nobody decides", false, 0, static_cast<quint32>(sdk::NetError::UnknownCertificate));
        row("unknown", true, int(sdk::CertificateVerdict::Unknown),
            static_cast<quint32>(sdk::NetError::UnknownCertificate));
        row("trusted, then changed", true, int(sdk::CertificateVerdict::Trusted), 0);
    }

    void nothingIsSentToAnotherKey()
    {
        QFETCH(const bool, hasHandler);
        QFETCH(const int, first);
        QFETCH(const quint32, error);
        TlsServer server(wholeAnswer);
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
        const RawServer server([](const RawExchange &exchange) { answerAs(Silent, exchange); });
        const auto http = std::make_shared<HttpClient>();
        SoapClient client({}, http);
        std::jthread canceller([&] {
            QTRY_COMPARE_WITH_TIMEOUT(server.requests().size(), 1, 5000);
            http->cancel();
        });
        QElapsedTimer timer;
        timer.start();
        const SoapAnswer answer = client.callOpenly(addressOf(server), SoapRequest("tds:GetUsers"),
                                                    std::chrono::steady_clock::now() + 60s);
        QVERIFY(answer.error == sdk::NetError::NetworkFailure && timer.elapsed() < 30000);
    }
};

QTEST_GUILESS_MAIN(SoapClientTest)
#include "tst_soapclient.moc"
