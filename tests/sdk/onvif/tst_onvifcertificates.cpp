// Devices of a simulated site over HTTPS, and keys that the user accepts. Runs inside the site's network
// (scripts/lab).
#include "device/accounts/certificatestore.h"
#include "sdk/blocktext.h"
#include "sdk/configrecords.h"
#include "sdk/onvif/onvifnetlibrary.h"
#include "tests/sdk/netlogin.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

using namespace sdk;
using namespace std::chrono_literals;

class OnvifCertificatesTest : public QObject
{
    Q_OBJECT
    QTemporaryDir m_folder;
    CertificateStore m_store{m_folder.filePath(QStringLiteral("certificates.json"))};
    onvif::OnvifNetLibrary m_net;
    LLONG m_session = 0;

    LLONG login(const char *address, int port) { return logIn(m_net, address, "admin", "Right-1", port); }

    /// Messages that devices have received, all of them over HTTP or a completed handshake.
    static qsizetype messages()
    {
        return QDir(qEnvironmentVariable("CONFIGTOOLS_RECORD"))
            .entryList({QStringLiteral("*-request.xml")})
            .size();
    }

    [[nodiscard]] NetError lastError() const { return static_cast<NetError>(m_net.NetGetLastError()); }

    bool hasChanged()
    {
        return login("192.168.7.11", 443) == 0 && lastError() == NetError::ChangedCertificate;
    }

private Q_SLOTS:
    void initTestCase()
    {
        QDir record(qEnvironmentVariable("CONFIGTOOLS_RECORD"));
        for (const QString &name : record.entryList(QDir::Files))
            QVERIFY(record.remove(name));
        m_net.NetSetCertificateHandler(&CertificateStore::handle, &m_store);
        QVERIFY(m_net.NetInit());
        SearchByAddressesRequest request{};
        request.size = sizeof(request);
        request.count = 1;
        setBlockText(request.addresses[0], "192.168.7.11");
        m_net.NetSearchDeviceByIp(
            request, [](std::int64_t, const SearchResponse *, void *) {}, nullptr, 3000ms);
    }

    void cleanupTestCase() { m_net.NetCleanup(); }

    void anUnknownKeyGetsNoMessage()
    {
        const qsizetype before = messages();
        QVERIFY(before > 0); // of the search
        for (const auto &[address, port] :
             {std::pair("192.168.7.11", 443), std::pair("192.168.7.12", 8443)}) {
            QCOMPARE(login(address, port), 0);
            QVERIFY(lastError() == NetError::UnknownCertificate);
        }
        QCOMPARE(messages(), before);
        const QList<RefusedCertificate> refused = m_store.refused();
        QCOMPARE(refused.size(), 2);
        QCOMPARE(refused.first().identity, "02:1a:c5:07:00:01");
        QCOMPARE(refused.first().subject, "02:1a:c5:07:00:01");
        QCOMPARE(refused.first().fingerprint.size(), 32 * 3 - 1);
        QVERIFY(refused.first().validUntil > refused.first().validFrom);
        QVERIFY(!refused.first().isChanged() && refused.last().identity.isEmpty());
    }

    void aDeviceWithAnAcceptedKeyIsQueried()
    {
        QCOMPARE(m_store.agree(m_store.refused().first(1)), "");
        const qsizetype before = messages();
        m_session = login("192.168.7.11", 443);
        QVERIFY(m_session > 0);
        QVERIFY(messages() > before);
        NetworkServices services{};
        std::uint32_t returned = 0;
        QVERIFY(m_net.NetQueryConfig(m_session, QueryCommand::NetworkServices, 0, &services, sizeof(services),
                                     returned, 3000ms));
        QCOMPARE(services.servicePort, 443);
        QCOMPARE(login("192.168.7.12", 8443), 0);
    }

    void aChangedKeyGetsNoPassword()
    {
        QVERIFY(m_net.NetRebootDevice(m_session, 3000ms)); // it then creates another key
        QTRY_VERIFY_WITH_TIMEOUT(login("192.168.7.11", 443) == 0, 20000);
        const qsizetype before = messages();
        QTRY_VERIFY_WITH_TIMEOUT(hasChanged(), 20000);
        QVERIFY(!m_net.NetIsDeviceAlive(m_session, 3000ms)); // the session does not continue either
        QVERIFY(lastError() == NetError::ChangedCertificate);
        QCOMPARE(messages(), before);
        QVERIFY(m_store.refused().last().isChanged() || m_store.refused().first().isChanged());

        QCOMPARE(m_store.agree(m_store.refused()), "");
        QVERIFY(login("192.168.7.11", 443) > 0);
    }
};

QTEST_GUILESS_MAIN(OnvifCertificatesTest)
#include "tst_onvifcertificates.moc"
