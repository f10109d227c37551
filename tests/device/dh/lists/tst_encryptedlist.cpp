// Encrypted device lists: round trip, wrong passphrases, changed files.
#include "device/dh/lists/devicelistfile.h"
#include "device/dh/lists/encryptedlist.h"
#include "tests/datatable.h"
#include "tests/files/filecontents.h"

#include <QElapsedTimer>
#include <QTemporaryDir>

namespace {

const QString phrase = QStringLiteral("grüne Türe 7");

DeviceListLine line(const QString &name)
{
    DeviceListLine line;
    line[ListColumn::DeviceName] = name;
    line[ListColumn::IPAddress] = "192.168.1.10";
    line[ListColumn::Username] = "admin";
    line[ListColumn::Password] = " secret,1\"<& ";
    return line;
}

} // namespace

class TestEncryptedList : public QObject
{
    Q_OBJECT
private:
    QByteArray m_file;

private Q_SLOTS:
    void initTestCase()
    {
        m_file = encryptedListOf({line("东门 <1>"), line("a,b")}, phrase);
        QVERIFY(!m_file.isEmpty());
    }

    void keepsEveryValueAndShowsNone()
    {
        // The passphrase may be typed with combining characters.
        const DeviceListContents contents =
            readEncryptedList(m_file, phrase.normalized(QString::NormalizationForm_D));
        QCOMPARE(contents.refusal, "");
        QCOMPARE(contents.lines.size(), std::size_t(2));
        QCOMPARE(contents.lines[0].values, line("东门 <1>").values);
        QCOMPARE(contents.lines[1][ListColumn::DeviceName], "a,b");
        QCOMPARE(contents.lines[1].number, 2);
        for (const char *plain : {"secret", "admin", "192.168", "devices"})
            QVERIFY(!m_file.contains(plain));
        QVERIFY(encryptedListOf({line("东门 <1>"), line("a,b")}, phrase) != m_file); // new salt and nonce
    }

    void refusesChangedFiles_data()
    {
        // offset: of a bit that is inverted; negative: from the end
        const auto row = dataTable<int, QString>({"offset", "reason"});
        row("magic", 0, "不是加密的设备列表");
        row("version", 7, "版本");
        row("derivation", 8, "版本");
        row("cipher", 9, "版本");
        row("unused bytes", 11, "版本");
        row("iterations: too many", 12, "参数");
        row("iterations: more", 15, "密码短语错误");
        row("salt", 16, "密码短语错误");
        row("nonce", 43, "密码短语错误");
        row("first line", 44, "密码短语错误");
        row("last line", -17, "密码短语错误");
        row("tag", -1, "密码短语错误");
    }

    void refusesChangedFiles()
    {
        QFETCH(const int, offset);
        QFETCH(const QString, reason);
        QByteArray changed = m_file;
        const qsizetype index = offset < 0 ? changed.size() + offset : offset;
        changed[index] = static_cast<char>(changed.at(index) ^ 1);
        const DeviceListContents contents = readEncryptedList(changed, phrase);
        QVERIFY2(contents.refusal.contains(reason), qPrintable(contents.refusal));
        QVERIFY(contents.lines.empty());
        // Only the passphrase, or the encrypted lines, may be wrong.
        QCOMPARE(contents.isPassphraseRefused, reason.contains("密码短语错误"));
    }

    void refusesOtherInput()
    {
        QVERIFY(readEncryptedList(m_file, "grüne Türe 8").refusal.contains("密码短语错误"));
        QVERIFY(readEncryptedList(m_file, "").refusal.contains("需要密码短语"));
        QVERIFY(readEncryptedList(m_file, "").isPassphraseRefused);
        for (const qsizetype size : {0, 8, 59}) {
            QVERIFY(readEncryptedList(m_file.first(size), phrase).refusal.contains("不完整"));
            QVERIFY(!readEncryptedList(m_file.first(size), phrase).isPassphraseRefused);
        }
        QVERIFY(readEncryptedList(m_file.chopped(1), phrase).refusal.contains("密码短语错误"));

        // Iterations that would take hours, and none, are refused before the derivation.
        QElapsedTimer time;
        time.start();
        for (const char byte : {'\xff', '\0'}) {
            QByteArray changed = m_file;
            changed.replace(12, 4, QByteArray(4, byte));
            QVERIFY(readEncryptedList(changed, phrase).refusal.contains("参数"));
        }
        QVERIFY(time.elapsed() < 100);
    }

    void theFormatAndThePassphraseBelongTogether_data()
    {
        const auto row = dataTable<QString, QString, bool>({"name", "passphrase", "isWritten"});
        row("encrypted", "a.devlist", phrase, true);
        row("encrypted, capitals", "a.DEVLIST", phrase, true);
        row("without passphrase", "a.devlist", "", false);
        row("short passphrase", "a.devlist", "1234567", false);
        row("readable", "a.csv", "", true);
        row("readable with a passphrase", "a.csv", phrase, false);
    }

    void theFormatAndThePassphraseBelongTogether()
    {
        QFETCH(const QString, name);
        QFETCH(const QString, passphrase);
        QFETCH(const bool, isWritten);
        const QTemporaryDir folder;
        if (!isWritten)
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression("the passphrase does not fit.*"));
        QCOMPARE(writeDeviceList(folder.filePath(name), {line("x")}, passphrase), isWritten);
        QCOMPARE(QFile::exists(folder.filePath(name)), isWritten);
        if (isWritten) {
            const DeviceListContents contents = readDeviceList(folder.filePath(name), passphrase);
            QCOMPARE(contents.lines.size(), std::size_t(1));
        }
    }
};

QTEST_GUILESS_MAIN(TestEncryptedList)
#include "tst_encryptedlist.moc"
