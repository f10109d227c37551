// The file of accepted keys, and the list of keys that are not decided yet.
#include "device/models/certificatelist.h"
#include "files/filereplacement.h"
#include "sdk/blocktext.h"
#include "tests/datatable.h"
#include "tests/files/filecontents.h"
#include "tests/files/filesizelimit.h"

#include <QDir>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <thread>

using sdk::CertificateVerdict;

namespace {

QString fingerprint(int number)
{
    const QByteArray digits = QByteArray::number(number, 16).toUpper().rightJustified(64, '0');
    QStringList pairs;
    for (int index = 0; index < digits.size(); index += 2)
        pairs.append(QString::fromLatin1(digits.mid(index, 2)));
    return pairs.join(u':');
}

sdk::DeviceCertificate shown(const std::string &identity, const std::string &address, int key, int port = 443)
{
    sdk::DeviceCertificate certificate{};
    certificate.size = sizeof(certificate);
    certificate.port = port;
    sdk::setBlockText(certificate.identity, identity);
    sdk::setBlockText(certificate.address, address);
    sdk::setBlockText(certificate.fingerprint, fingerprint(key).toStdString());
    return certificate;
}

const std::string mac = "02:1a:c5:00:40:25";

} // namespace

class TestCertificateStore : public QObject
{
    Q_OBJECT
    QTemporaryDir m_folder;
    QString m_path;

private Q_SLOTS:
    void init()
    {
        m_path = m_folder.filePath("certificates.json");
        QFile::remove(m_path);
    }

    void aKeyIsAcceptedForItsDeviceOnly_data()
    {
        const auto row = dataTable<std::string, std::string, int, int, int>(
            {"identity", "address", "port", "key", "verdict"});
        const auto trusted = int(CertificateVerdict::Trusted);
        const auto unknown = int(CertificateVerdict::Unknown);
        const auto changed = int(CertificateVerdict::Changed);
        row("the same", mac, "10.0.0.5", 443, 1, trusted);
        row("at another address", mac, "10.0.0.6", 443, 1, trusted);
        row("before a search", "", "10.0.0.5", 443, 1, trusted);
        row("MAC in capitals", "02:1A:C5:00:40:25", "10.0.0.6", 443, 1, trusted);
        row("another key", mac, "10.0.0.6", 443, 2, changed);
        row("another key, before a search", "", "10.0.0.5", 443, 2, changed);
        row("another device at its address", "02:1a:c5:00:40:26", "10.0.0.5", 443, 2, changed);
        row("another device", "02:1a:c5:00:40:26", "10.0.0.6", 443, 1, unknown);
        row("another port, before a search", "", "10.0.0.5", 8443, 1, unknown);
    }

    void aKeyIsAcceptedForItsDeviceOnly()
    {
        QFETCH(std::string, identity);
        QFETCH(std::string, address);
        QFETCH(int, port);
        QFETCH(int, key);
        {
            CertificateStore store(m_path);
            QCOMPARE(store.verdictOn(shown(mac, "10.0.0.5", 1)), CertificateVerdict::Unknown);
            QCOMPARE(store.agree(store.refused()), "");
            QVERIFY(store.refused().isEmpty());
        }
        CertificateStore store(m_path);
        QTEST(int(store.verdictOn(shown(identity, address, key, port))), "verdict");
    }

    void theLastDecisionCounts()
    {
        CertificateStore store(m_path);
        for (const int key : {1, 2}) {
            (void)store.verdictOn(shown(mac, "10.0.0.5", key));
            QCOMPARE(store.agree(store.refused()), "");
        }
        // The user accepts another device at the address.
        (void)store.verdictOn(shown("02:1a:c5:00:40:26", "10.0.0.5", 3));
        QCOMPARE(store.refused().constFirst().storedFingerprint, fingerprint(2));
        QCOMPARE(store.agree(store.refused()), "");
        CertificateStore again(m_path);
        QCOMPARE(again.verdictOn(shown(mac, "10.0.0.5", 1)), CertificateVerdict::Changed);
        QCOMPARE(again.verdictOn(shown(mac, "10.0.0.5", 2)), CertificateVerdict::Trusted);
        QCOMPARE(again.verdictOn(shown("", "10.0.0.5", 3)), CertificateVerdict::Trusted);
        QCOMPARE(fileContents(m_path).count("fingerprint"), 2);
    }

    void aDamagedFileIsKeptAndNoKeyIsTrusted_data()
    {
        const auto row = dataTable<QByteArray>({"text"});
        const QByteArray begin =
            "{'certificates':[{'identity':'','address':'10.0.0.5','port':443,'fingerprint':'" +
            fingerprint(1).toLatin1() + "'}";
        row("truncated", begin);
        row("another kind", "{'certificates':7}");
        row("empty", "");
        row("a short fingerprint", begin + ",{'identity':'','address':'a','port':443,'fingerprint':'AB'}]}");
    }

    void aDamagedFileIsKeptAndNoKeyIsTrusted()
    {
        QFETCH(QByteArray, text);
        text.replace('\'', '"');
        QCOMPARE(replaceFile(m_path, text), "");
        CertificateStore store(m_path);
        QVERIFY(store.problem().contains(m_path));
        QCOMPARE(store.verdictOn(shown("", "10.0.0.5", 1)), CertificateVerdict::Unknown);
        QCOMPARE(fileContents(m_path), text);
        QCOMPARE(store.agree(store.refused()), "");
        QVERIFY(store.problem().isEmpty());
        QCOMPARE(store.verdictOn(shown("", "10.0.0.5", 1)), CertificateVerdict::Trusted);
        const QStringList kept = QDir(m_folder.path()).entryList({"*.damaged*"});
        QCOMPARE(kept.size(), 1);
        QCOMPARE(fileContents(m_folder.filePath(kept.constFirst())), text);
        QVERIFY(QFile::remove(m_folder.filePath(kept.constFirst())));
    }

    /// The file may contain accepted keys, so it is not replaced.
    void aFileThatCannotBeOpenedIsNotWritten()
    {
        const QByteArray accepted = [this] {
            CertificateStore store(m_path);
            (void)store.verdictOn(shown(mac, "10.0.0.5", 1));
            return store.agree(store.refused()).isEmpty() ? fileContents(m_path) : QByteArray();
        }();
        QVERIFY(!accepted.isEmpty() && QFile::remove(m_path) &&
                QDir().mkpath(m_path)); // also for an administrator
        CertificateStore store(m_path);
        QVERIFY(store.problem().contains(m_path));
        QCOMPARE(store.verdictOn(shown("", "10.0.0.6", 2)), CertificateVerdict::Unknown);
        QCOMPARE(store.agree(store.refused()), store.problem());
        QCOMPARE(store.verdictOn(shown("", "10.0.0.6", 2)), CertificateVerdict::Unknown);
        QVERIFY(QDir(m_folder.path()).entryList({"*.damaged*"}).isEmpty());

        QVERIFY(QDir().rmdir(m_path));
        QCOMPARE(replaceFile(m_path, accepted), ""); // it can be read again
        QCOMPARE(store.agree(store.refused()), "");
        QCOMPARE(store.problem(), "");
        for (const auto &certificate : {shown(mac, "10.0.0.5", 1), shown("", "10.0.0.6", 2)})
            QCOMPARE(CertificateStore(m_path).verdictOn(certificate), CertificateVerdict::Trusted);
    }

    void aKeyThatCannotBeStoredIsNotTrusted()
    {
        CertificateStore store(m_path);
        (void)store.verdictOn(shown(mac, "10.0.0.5", 1));
        {
            const FileSizeLimit limit(10);
            QVERIFY(!store.agree(store.refused()).isEmpty());
        }
        QCOMPARE(store.verdictOn(shown(mac, "10.0.0.5", 1)), CertificateVerdict::Unknown);
        QCOMPARE(store.refused().size(), 1);
    }

    /// As after the first operation on a large site: further refusals arrive while the user accepts keys.
    void manyDevicesAreAcceptedTogether()
    {
        CertificateStore store(m_path);
        const auto refuseAll = [&store](int key) {
            for (int device = 0; device < 25'000; ++device)
                (void)store.verdictOn(
                    shown("device" + std::to_string(device), "10.0.0.1", key + device, device + 1));
        };
        refuseAll(0);
        QCOMPARE(store.refused().size(), CertificateStore::maximumRefused);
        std::thread others([&] { refuseAll(30'000); });
        QElapsedTimer timer;
        timer.start();
        const QString failure = store.agree(store.refused());
        others.join();
        QCOMPARE(failure, "");
        QVERIFY2(timer.elapsed() < 20'000, qPrintable(QString::number(timer.elapsed())));
        CertificateStore again(m_path);
        QVERIFY(again.verdictOn(shown("device7", "10.0.0.1", 7, 8)) == CertificateVerdict::Trusted ||
                again.verdictOn(shown("device7", "10.0.0.1", 30'007, 8)) == CertificateVerdict::Trusted);
    }

    void aChangedKeyIsOnlyCheckedIndividually()
    {
        auto store = std::make_shared<CertificateStore>(m_path);
        (void)store->verdictOn(shown(mac, "10.0.0.5", 1));
        QCOMPARE(store->agree(store->refused()), "");
        CertificateList list(store);
        const QSignalSpy news(&list, &CertificateList::hasNewRefusalsChanged);
        std::thread request([&] {
            (void)store->verdictOn(shown("", "fd00::7", 5));
            (void)store->verdictOn(shown(mac, "10.0.0.5", 2));
            (void)store->verdictOn(shown("", "10.0.0.8", 6));
        });
        request.join();
        QTRY_VERIFY(list.hasNewRefusals());
        list.load();
        QCOMPARE(news.size(), 2);
        QVERIFY(list.get(0).value("changed").toBool());
        QCOMPARE(list.get(0).value("stored").toString(), fingerprint(1));
        QCOMPARE(list.get(1).value("device").toString(), "[fd00::7]:443");
        const auto ticks = [&list] {
            return QList<int>{list.checkedCount(), static_cast<int>(list.checkState())};
        };
        QCOMPARE(ticks(), QList<int>({2, Qt::Checked}));
        list.setRangeChecked(0, 2, true);
        list.setAllChecked(true);
        QCOMPARE(ticks(), QList<int>({2, Qt::Checked}));
        list.setRangeChecked(0, 0, true);
        QCOMPARE(ticks(), QList<int>({3, Qt::Checked}));
        list.setRangeChecked(1, 1, false);
        QCOMPARE(ticks(), QList<int>({2, Qt::PartiallyChecked}));
        QCOMPARE(list.agree(), "");
        QCOMPARE(store->verdictOn(shown(mac, "10.0.0.5", 2)), CertificateVerdict::Trusted);
        QCOMPARE(store->refused().size(), 1);
    }
};

QTEST_GUILESS_MAIN(TestCertificateStore)
#include "tst_certificatestore.moc"
