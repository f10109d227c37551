// Commands of workbooks, and the utilities of the page.
#include "cgi/cgiconfigmanage.h"
#include "cgi/commandworkbook.h"
#include "tests/cgi/commandworkbooks.h"
#include "tests/cgi/recordedtransport.h"
#include "tests/datatable.h"
#include "tests/files/filecontents.h"
#include "tests/sheets/workbookfiles.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTranslator>
#include <QUrl>

namespace {

using Row = QStringList;

Row deviceRow(int number)
{
    return {QStringLiteral("10.0.%1.%2").arg(number / 250).arg(number % 250 + 1), QStringLiteral("37777"),
            QStringLiteral("admin"), QStringLiteral("secret1"),
            QStringLiteral("/cgi-bin/set?number=%1").arg(number)};
}

} // namespace

class TestCGIConfigManage : public QObject
{
    Q_OBJECT
    std::unique_ptr<QTemporaryDir> m_folder;
    std::shared_ptr<RecordedTransport> m_transport;
    std::unique_ptr<CGIConfigManage> m_manager;
    QStringList m_logins;

    [[nodiscard]] QString path() const { return m_folder->filePath("commands.xlsx"); }

    [[nodiscard]] bool writeWorkbook(const QList<Row> &rows) const { return writeRows(path(), rows); }

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_transport = std::make_shared<RecordedTransport>();
        m_logins.clear();
        const auto checkLogin = [this](const QString &ipport, const QString &, const QString &password) {
            m_logins.append(ipport);
            return password == QLatin1String("wrong") ? 2 : 0;
        };
        m_manager =
            std::make_unique<CGIConfigManage>(CgiSurroundings{.checkLogin = checkLogin,
                                                              .transport = m_transport,
                                                              .folder = m_folder->path(),
                                                              .localTime = &QDateTime::currentDateTime},
                                              m_folder->path());
    }

    void invalidFilesAreRefused_data()
    {
        const auto row = dataTable<QList<Row>, QString>({"rows", "text"});
        row("no file", QList<Row>(), "文件打开失败");
        row("a title is missing", QList<Row>{commandTitles.mid(0, 4), deviceRow(1)}, "文件格式错误");
        row("titles in another row", QList<Row>{{}, commandTitles, deviceRow(1)}, "文件格式错误");
        row("titles in another order",
            QList<Row>{{"IP", "端口", "密码", "用户名", "CGI配置命令"}, deviceRow(1)}, "文件格式错误");
    }

    void invalidFilesAreRefused()
    {
        QFETCH(QList<Row>, rows);
        QVERIFY(rows.isEmpty() || writeWorkbook(rows));
        QTEST(m_manager->batchCGIConfig(path()), "text");
        QCOMPARE(m_transport->urls, QStringList());
    }

    void eachRowGetsItsResult()
    {
        QVERIFY(writeWorkbook({commandTitles,
                               {"10.0.0.1", "37777", "admin", "secret1", "/cgi-bin/a?b=c d", "0"},
                               {},
                               {"10.0.0.2:8443", "80.0", "admin", "a:b", "/cgi-bin/b", "1"},
                               {"10.0.0.3", "80", "admin", "wrong", "/cgi-bin/b"},
                               {"10.0.0.4", "80", "admin", "secret1", "cgi-bin/b"},
                               {"10.0.0.5", "80", "admin", "secret1", ""},
                               {"10.0.0.6@example", "80", "admin", "secret1", "/cgi-bin/b"},
                               {"", "80", "admin", "secret1", "/cgi-bin/b"},
                               {"", "", "admin", "secret1", ""},
                               {"[fe80::1]", "37777", "管理员", "", "/cgi-bin/东"}}));
        m_transport->response = [](const QByteArray &url) {
            return "response of " + url;
        };
        const QString text = m_manager->batchCGIConfig(QUrl::fromLocalFile(path()).toString());
        QCOMPARE(text,
                 "执行完成：成功3行，失败5行。\n执行结果已保存到文件：" + QDir::toNativeSeparators(path()));
        const QStringList expected = {"response of http://10.0.0.1/cgi-bin/a?b=c%20d",
                                      "",
                                      "response of https://10.0.0.2:8443/cgi-bin/b",
                                      "Error:账号或密码错误。",
                                      "Error:URL格式错误。",
                                      "Error:请填写CGI命令的具体内容。",
                                      "Error:URL格式错误。",
                                      "Error:URL格式错误。",
                                      "",
                                      "response of http://[fe80::1]/cgi-bin/%E4%B8%9C"};
        QCOMPARE(commandResults(path(), 10), expected);
        QCOMPARE(m_logins, QStringList({"10.0.0.1:37777", "10.0.0.2:80", "10.0.0.3:80", "[fe80::1]:37777"}));
        QCOMPARE(m_transport->credentials, QStringList({"admin:secret1", "admin:a:b", "管理员:"}));
    }

    /// Cells in the form of a spreadsheet application, not of this one.
    void numbersAndFormulasAreRead()
    {
        QByteArray header;
        for (int column = 0; column < commandTitles.size(); ++column) {
            header += "<c r=\"" + QByteArray(1, static_cast<char>('A' + column)) +
                      "1\" t=\"inlineStr\"><is><t>" + commandTitles.at(column).toUtf8() + "</t></is></c>";
        }
        const QByteArray rows =
            "<row r=\"1\">" + header +
            "</row><row r=\"3\"><c r=\"A3\" t=\"str\"><f>\"10.0.0.\"&amp;7</f><v>10.0.0.7</v></c>"
            "<c r=\"B3\"><v>37777</v></c><c r=\"C3\" t=\"inlineStr\"><is><t>admin</t></is></c>"
            "<c r=\"D3\"><v>123456</v></c><c r=\"E3\" t=\"inlineStr\"><is><t>/cgi-bin/a</t></is></c>"
            "<c r=\"F3\"><f>2-1</f><v>1</v></c></row>";
        QVERIFY(writeArchive(path(), smallWorkbook(rows)));
        QVERIFY(m_manager->batchCGIConfig(path()).startsWith("执行完成：成功1行，失败0行。"));
        QCOMPARE(m_logins, QStringList("10.0.0.7:37777"));
        QCOMPARE(m_transport->urls, QStringList("https://10.0.0.7/cgi-bin/a"));
        QCOMPARE(m_transport->credentials, QStringList("admin:123456"));
        QCOMPARE(commandResults(path(), 2), QStringList({"", "OK"}));
    }

    void storesCommands()
    {
        for (int number = 0; number < 25; ++number)
            m_manager->rememberCommand(QStringLiteral("/cgi-bin/%1").arg(number));
        m_manager->rememberCommand(" /cgi-bin/20 ");
        m_manager->rememberCommand("");
        m_manager->rememberCommand(QString(100'000, 'x'));
        m_manager->setFavouriteCommand("/cgi-bin/东", true);
        m_manager->setFavouriteCommand("/cgi-bin/b", true);
        m_manager->setFavouriteCommand("/cgi-bin/东", true);
        m_manager->setFavouriteCommand("/cgi-bin/b", false);

        const CommandMemory next(m_folder->filePath("cgicommands.json"));
        QCOMPARE(next.recent().size(), 20);
        QCOMPARE(next.recent().mid(0, 3), QStringList({"/cgi-bin/20", "/cgi-bin/24", "/cgi-bin/23"}));
        QCOMPARE(next.favourites(), QStringList("/cgi-bin/东"));
        QCOMPARE(m_manager->recentCommands(), next.recent());
        QCOMPARE(m_manager->favouriteCommands(), next.favourites());
    }

    void aDamagedFileOfCommandsIsKept()
    {
        const QString path = m_folder->filePath("cgicommands.json");
        const QByteArray contents = "{\"favourites\": [\"/cgi-bin/a\"";
        QVERIFY(writeFile(path, contents));
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("no valid list of commands"));
        CommandMemory memory(path);
        memory.remember("/cgi-bin/b");
        memory.remember("/cgi-bin/c");
        QCOMPARE(fileContents(path + ".damaged"), contents);
        QVERIFY(!QFile::exists(path + ".damaged2"));
        QCOMPARE(CommandMemory(path).recent(), QStringList({"/cgi-bin/c", "/cgi-bin/b"}));
    }

    /// The template of each language is a valid workbook of commands with the file name that the page opens.
    void templatesCanBeUsed_data()
    {
        const auto row = dataTable<QString, QString>({"language", "name"});
        row("Chinese", "zh_CN", "批量操作CGI模板.xlsx");
        row("English", "en_US", "CGI batch template.xlsx");
    }

    void templatesCanBeUsed()
    {
        QFETCH(QString, language);
        QFETCH(QString, name);
        const QDir program(CONFIGTOOLS_PROGRAM_DIRECTORY);
        QTranslator translator;
        QVERIFY(translator.load(program.filePath("language/" + language + ".qm")));
        QCoreApplication::installTranslator(&translator);
        QCOMPARE(m_manager->templateFile(), QCoreApplication::applicationDirPath() + "/template/" + name);
        CommandWorkbook workbook;
        QCOMPARE(workbook.open(program.filePath("template/" + name)), "");
        QCOMPARE(workbook.commands().size(), 1);
        QCOMPARE(workbook.commands().front().refusal, "");
        QExcel sheets;
        QVERIFY(sheets.open(program.filePath("template/" + name)) && sheets.selectSheet(2));
        QVERIFY(sheets.usedRowCount() > 8); // a line for each column
    }

    void aLongTextIsSplitIntoLines_data()
    {
        const auto row = dataTable<QString, QStringList>({"text", "lines"});
        const QString key = QString::fromUtf8("🔑");
        row("line ends", "a\r\n\nb\n", QStringList{"a", "", "b"});
        row("long line", QString(500, 'x') + "\n" + QString(501, 'y'),
            QStringList{QString(500, 'x'), QString(500, 'y'), "y"});
        row("character of two parts", QString(499, 'x') + key, QStringList{QString(499, 'x'), key});
        row("too many lines", QString("\n").repeated(100'001),
            QStringList(100'000, "") + QStringList("…（内容过长，已截断）"));
    }

    void aLongTextIsSplitIntoLines()
    {
        QFETCH(QString, text);
        QTEST(m_manager->linesOf(text), "lines");
    }

    void savesTexts()
    {
        const QString first = m_manager->saveText(m_folder->path(), "东").value("path").toString();
        const QString second = m_manager->saveText(m_folder->path(), "b").value("path").toString();
        QVERIFY(first != second);
        QCOMPARE(fileContents(first), QByteArray("东"));
        QVERIFY(!m_manager->saveText(m_folder->filePath("none"), "b").value("failure").toString().isEmpty());
    }
};

QTEST_MAIN(TestCGIConfigManage)
#include "tst_cgiconfigmanage.moc"
