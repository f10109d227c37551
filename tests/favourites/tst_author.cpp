#include "favourites/author.h"
#include "favourites/favouritefile.h"
#include "tests/datatable.h"
#include "tests/files/filecontents.h"
#include "tests/files/filesizelimit.h"

#include <QDateTime>
#include <QDir>
#include <QJsonDocument>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QUrl>

namespace {

// The meta-object compiler fails on raw strings, so single quotation marks are used here.
const char *const favouriteText = "{\n"
                                  "    'type': '1',\n"
                                  "    'addr': '10.0.0.1',\n"
                                  "    'port': '37777',\n"
                                  "    'username': 'admin',\n"
                                  "    'password': '%3',\n"
                                  "    'note': 'front door, \\'密\\'',\n"
                                  "    'created': '%1',\n"
                                  "    'original_path': '%2'\n"
                                  "}\n";
QStringList logged;

void collect(QtMsgType type, const QMessageLogContext &, const QString &message)
{
    logged.append((type == QtWarningMsg ? "warning " : "debug ") + message);
}

} // namespace

class TestAuthor : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        QVERIFY(m_folder->isValid());
        logged.clear();
        qInstallMessageHandler(collect);
    }

    void cleanup()
    {
        qInstallMessageHandler(nullptr);
        m_folder.reset();
    }

    void enciphersPasswords_data()
    {
        // cipherText: by another implementation of the cipher
        const auto row = dataTable<QString, QString>({"password", "cipherText"});
        row("short", "admin123", "2de7rNKbNWdLWHtGrPU4tw==");
        row("beyond Latin", "pässwörd密码🔑", "km188VPRkWndZfhWHFSTDtY1o0uiZPO59tX/QJVO1xw=");
        row("complete block", "0123456789abcdef", "Gnk6Ka91S3eEiAjqho6ZCC7UpgM7iaOR3ddz2wZmrfk=");
    }

    void enciphersPasswords()
    {
        QFETCH(QString, password);
        QFETCH(QString, cipherText);
        QCOMPARE(m_author.AesEncrypt(password), cipherText);
        QCOMPARE(m_author.AesDecrypt(cipherText), password);
    }

    void writesAFavourite()
    {
        const QString password = m_author.AesEncrypt("geheim");
        const QDateTime before =
            QDateTime::fromString(QDateTime::currentDateTime().toString(Qt::ISODate), Qt::ISODate);
        m_author.saveTextAsJson(path(), "1", "10.0.0.1", "37777", "admin", password, "front door, \"密\"");

        QVERIFY(!QFile::permissions(path("10.0.0.1_37777.json"))
                     .testAnyFlags(QFile::ReadGroup | QFile::ReadOther));
        const QString text = QString::fromUtf8(read("10.0.0.1_37777.json"));
        static const QRegularExpression creation("\"created\": \"([^\"]+)\"");
        const QString created = creation.match(text).captured(1);
        QCOMPARE(text, QString(favouriteText).replace('\'', '"').arg(created, path(), password));
        const QDateTime time = QDateTime::fromString(created, Qt::ISODate);
        QVERIFY(time >= before && time <= QDateTime::currentDateTime());
        QCOMPARE(created, time.toString(Qt::ISODate));

        QCOMPARE(logged, (QStringList{QString("debug 文件已保存到: \"%1\"").arg(path("10.0.0.1_37777.json")),
                                      QString("debug 原始输入路径: \"%1\"").arg(path()),
                                      QString("debug 清理后路径: \"%1\"").arg(path())}));
    }

    void choosesTheFolder_data()
    {
        // input: "%1" is the test's folder
        const auto row = dataTable<QString, QString, QString>({"input", "cleaned", "folder"});
        row("folder", "%1", "%1", ".");
        row("file of the folder", "%1/file", "%1/file", ".");
        row("missing, with slash", "%1/new/", "%1/new/", "new");
        row("URL", "file://%1", "%1", ".");
        row("URL of a missing folder", "file://%1/a%20b/", "%1/a b/", "a b");
    }

    void choosesTheFolder()
    {
        QFETCH(QString, input);
        QFETCH(QString, cleaned);
        QFETCH(QString, folder);
        write("file", "");
        input.replace("%1", path());
        cleaned.replace("%1", path());
        m_author.saveTextAsJson(input, "0", "10.0.0.1", "80", "admin", "password", "");
        QCOMPARE(QDir(path(folder)).entryList({"*.json"}), QStringList("10.0.0.1_80.json"));
        QCOMPARE(QJsonDocument::fromJson(read(folder + "/10.0.0.1_80.json"))["original_path"].toString(),
                 input);
        QCOMPARE(logged.last(), QString("debug 清理后路径: \"%1\"").arg(cleaned));

        // The folder can be read by its path and by its URL, and so can the file be deleted.
        const QString url = QUrl::fromLocalFile(path(folder)).toString(QUrl::FullyEncoded);
        QCOMPARE(m_author.readJsonFilesFromFolder(url).keys(), QStringList("10.0.0.1_80.json"));
        QCOMPARE(m_author.readJsonFilesFromFolder(path(folder)), m_author.readJsonFilesFromFolder(url));
        QVERIFY(m_author.deleteFile(url + "/10.0.0.1_80.json"));
    }

    void staysInTheFolder_data()
    {
        const auto row = dataTable<QString, QString, QString>({"addr", "port", "name"});
        row("IPv6", "fe80::1%eth0", "80", "fe80::1%eth0_80.json");
        row("way up", "../up", "80", "%2E.%2Fup_80.json");
        row("way up in the port", "a", "/../../up", "a_%2F..%2F..%2Fup.json");
        row("hidden", ".id", "80", "%2Eid_80.json");
        row("empty", "", "", "_.json");
    }

    void staysInTheFolder()
    {
        QFETCH(QString, addr);
        QFETCH(QString, port);
        QFETCH(QString, name);
        QVERIFY(QDir(path()).mkpath("outer/fav"));
        m_author.saveTextAsJson(path("outer/fav"), "1", addr, port, "admin", "password", "");
        QCOMPARE(QDir(path("outer")).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
                 QStringList("fav"));
        const QVariantMap expected = {{name, QStringList{"1", addr, port, "admin", "password", ""}}};
        QCOMPARE(m_author.readJsonFilesFromFolder(path("outer/fav")), expected);
        QVERIFY(m_author.deleteFile(path("outer/fav/") + name));
    }

    void warnsWhenItCannotSave_data()
    {
        // input: "%1" is the test's folder
        const auto row = dataTable<QString, QString>({"input", "warning"});
        row("folder below a file", "%1/file/below/", "无法创建目录: \"%1/file/below\"");
        row("a folder of the file's name", "%1/taken",
            "无法打开文件: \"%1/taken/10.0.0.1_80.json\" - \"Not a regular file\"");
        row("disk full", "%1/full", "无法打开文件: \"%1/full/10.0.0.1_80.json\" - \"File too large\"");
    }

    void warnsWhenItCannotSave()
    {
        QFETCH(QString, input);
        QFETCH(QString, warning);
        write("file", "");
        QVERIFY(QDir(path()).mkpath("taken/10.0.0.1_80.json"));
        QVERIFY(QDir(path()).mkpath("full"));
        write("full/10.0.0.1_80.json", "before");
        const FileSizeLimit limit(100);
        m_author.saveTextAsJson(input.replace("%1", path()), "0", "10.0.0.1", "80", "admin", "password", "");
        QCOMPARE(logged, QStringList("warning " + warning.replace("%1", path())));
        QCOMPARE(read("full/10.0.0.1_80.json"), QByteArray("before"));
    }

    void skipsFilesThatAreNotFavourites_data()
    {
        // warning: empty: the file is listed
        const auto row = dataTable<QByteArray, QString, QStringList>({"text", "warning", "values"});
        const QStringList nothing = {"", "", "", "", "", ""};
        const QByteArray longest = "{" + QByteArray(maximumFavouriteSize - 2, ' ') + "}";
        row("lacks keys", QByteArray("{}"), QString(), nothing);
        row("longest", longest, QString(), nothing);
        row("other types and keys",
            QByteArray(R"({"type":0,"addr":["a"],"port":80,"username":null,"note":"n","more":"m"})"),
            QString(), QStringList{"", "", "", "", "", "n"});
        row("too long", longest + " ", "文件过大: \"a.json\"", QStringList());
        row("empty", QByteArray(), "文件为空: \"a.json\"", QStringList());
        row("truncated", QByteArray(R"({"password": "geheim")"),
            "JSON解析错误 ( \"a.json\" ): \"unterminated string\" at offset 21", QStringList());
        row("deep", QByteArray(100000, '['),
            "JSON解析错误 ( \"a.json\" ): \"too deeply nested document\" at offset 1025", QStringList());
    }

    void skipsFilesThatAreNotFavourites()
    {
        QFETCH(QByteArray, text);
        QFETCH(QString, warning);
        QFETCH(QStringList, values);
        write("a.json", text);
        write("b.json", R"({"type":"0","addr":"b","port":"1","username":"u","password":"p","note":"n"})");
        QVariantMap expected = {{"b.json", QStringList{"0", "b", "1", "u", "p", "n"}}};
        QStringList log = {"debug 找到 2 个JSON文件", "debug 处理文件: \"a.json\""};
        if (warning.isEmpty())
            expected.insert("a.json", values);
        else
            log.append("warning " + warning);
        QCOMPARE(m_author.readJsonFilesFromFolder(path()), expected);
        QCOMPARE(logged, log << "debug 处理文件: \"b.json\"");
    }

    void listsOnlyFilesOfTheFolder()
    {
        QVERIFY(QDir(path()).mkpath("folder.json"));
        write("folder.json/inner.json", "{}");
        write("other.txt", "{}");
        write("a.json", "{}");
        QVERIFY(QFile::link("/dev/zero", path("endless.json")));
        QVERIFY(QFile::link(path("nowhere"), path("dangling.json")));
        QVERIFY(QFile::link(path("other.txt"), path("linked.json")));
        QCOMPARE(m_author.readJsonFilesFromFolder(path()).keys(), (QStringList{"a.json", "linked.json"}));

        QVERIFY(m_author.deleteFile(path("linked.json")));
        QCOMPARE(read("other.txt"), QByteArray("{}"));
    }

private:
    [[nodiscard]] QString path(const QString &name = QString()) const { return m_folder->filePath(name); }
    void write(const QString &name, const QByteArray &text) const { QVERIFY(writeFile(path(name), text)); }
    [[nodiscard]] QByteArray read(const QString &name) const { return fileContents(path(name)); }

    std::unique_ptr<QTemporaryDir> m_folder;
    CAuthor m_author;
};

QTEST_GUILESS_MAIN(TestAuthor)
#include "tst_author.moc"
