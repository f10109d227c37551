// Web pages of devices: opened by the browser, or refused.
#include "cgi/curltransport.h"
#include "cgi/webpages.h"
#include "tests/cgi/tlsserver.h"
#include "tests/datatable.h"

#include <QDesktopServices>
#include <QSignalSpy>
#include <QTest>
#include <QUrl>

/// A replacement of the browser.
class Browser : public QObject
{
    Q_OBJECT
public:
    Browser()
    {
        for (const char *scheme : {"http", "https"})
            QDesktopServices::setUrlHandler(QString::fromLatin1(scheme), this, "show");
    }
    ~Browser() override
    {
        for (const char *scheme : {"http", "https"})
            QDesktopServices::unsetUrlHandler(QString::fromLatin1(scheme));
    }

    QStringList pages;

public Q_SLOTS:
    void show(const QUrl &page) { pages.append(page.toString()); }
};

class TestWebPages : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aPageOpensOnlyIfItsDeviceShowsTheAgreedKey_data()
    {
        const QByteArray open = "HTTP/1.1 200 OK\r\nContent-Length: 2\r\n\r\nOK";
        const auto row =
            dataTable<QByteArray, sdk::CertificateVerdict, QString>({"response", "verdict", "reason"});
        row("agreed key", open, sdk::CertificateVerdict::Trusted, QString());
        row("agreed key, login required",
            "HTTP/1.1 401 Unauthorized\r\nWWW-Authenticate: Digest realm=\"r\", nonce=\"n\", qop=\"auth\"\r\n"
            "Content-Length: 0\r\n\r\n",
            sdk::CertificateVerdict::Trusted, QString());
        row("unknown key", open, sdk::CertificateVerdict::Unknown,
            QStringLiteral("设备证书未确认，网页未打开。"));
        row("changed key", open, sdk::CertificateVerdict::Changed,
            QStringLiteral("设备证书已改变，网页未打开。请勿在此设备上输入密码。"));
    }

    void aPageOpensOnlyIfItsDeviceShowsTheAgreedKey()
    {
        QFETCH(sdk::CertificateVerdict, verdict);
        QFETCH(QString, reason);
        QFETCH(QByteArray, response);
        const TlsServer device(response);
        const auto transport = std::make_shared<CurlTransport>();
        transport->setCertificateHandler(
            [](const sdk::DeviceCertificate *, void *given) {
                return *static_cast<sdk::CertificateVerdict *>(given);
            },
            &verdict);
        Browser browser;
        WebPages pages(transport);
        const QSignalSpy refused(&pages, &WebPages::refused);

        const QString page = QStringLiteral("https://127.0.0.1:%1").arg(device.port());
        pages.open(page);
        QTRY_VERIFY(!browser.pages.isEmpty() || !refused.isEmpty());

        QCOMPARE(browser.pages, reason.isEmpty() ? QStringList(page) : QStringList());
        QCOMPARE(refused.size(), reason.isEmpty() ? 0 : 1);
        if (!reason.isEmpty())
            QCOMPARE(refused.constFirst().constFirst().toString(), reason);
        for (const QByteArray &request : device.requests())
            QVERIFY2(!request.contains("Authorization"), request.constData());
        QCOMPARE(device.requests().size(), reason.isEmpty() ? 1 : 0);
    }

    void aPageWithoutAKeyToCheckOpens_data()
    {
        const auto row = dataTable<QString>({"page"});
        row("no TLS", QStringLiteral("http://127.0.0.1:1"));
        row("no response", QStringLiteral("https://127.0.0.1:1"));
    }

    void aPageWithoutAKeyToCheckOpens()
    {
        QFETCH(QString, page);
        Browser browser;
        WebPages pages(std::make_shared<CurlTransport>());
        pages.open(page);
        QTRY_COMPARE(browser.pages, QStringList(page));
    }
};

QTEST_GUILESS_MAIN(TestWebPages)

#include "tst_webpages.moc"
