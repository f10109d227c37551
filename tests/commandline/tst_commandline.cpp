#include "commandline/commands.h"
#include "commandline/visitfile.h"
#include "tests/datatable.h"
#include "tests/device/dh/configsite.h"

#include <QBuffer>
#include <QJsonDocument>
#include <QScopeGuard>
#include <QTemporaryDir>

#include <csignal>
#include <cstdio>

using namespace commandline;

/// Interrupts the process, as Ctrl+C does, when the result of the first device is written.
class InterruptingBuffer : public QBuffer
{
public:
    using QBuffer::QBuffer;

protected:
    qint64 writeData(const char *data, qint64 size) override
    {
        if (QByteArrayView(data, size).contains("[1/"))
            std::raise(SIGINT);
        return QBuffer::writeData(data, size);
    }
};

/// Commands on a simulated site of four cameras, of which the last one is new.
class TestCommandLine : public QObject
{
    Q_OBJECT
private:
    struct Outcome
    {
        int exitCode = -1;
        QByteArray results;
        QByteArray messages;
        QStringList prompts;
    };

    QList<sdk::demo::SceneDevice> m_devices;
    std::unique_ptr<ConfigSite> m_site;
    QTemporaryDir m_folder;
    QStringList m_answers; ///< to prompts
    bool m_isInterrupted = false;

    [[nodiscard]] Outcome run(const QStringList &words) const
    {
        Outcome outcome;
        QBuffer results(&outcome.results);
        QBuffer plainMessages(&outcome.messages);
        InterruptingBuffer interruptingMessages(&outcome.messages);
        QBuffer &messages = m_isInterrupted ? interruptingMessages : plainMessages;
        results.open(QIODevice::WriteOnly);
        messages.open(QIODevice::WriteOnly);
        Terminal terminal(results, messages, [&](const QString &prompt) -> std::optional<QString> {
            outcome.prompts.append(prompt);
            const qsizetype index = outcome.prompts.size() - 1;
            return index < m_answers.size() ? std::optional(m_answers.at(index)) : std::nullopt;
        });
        const Command *command = findCommand(words.constFirst());
        const Arguments arguments = Arguments::parse(*command, words.mid(1));
        if (!arguments.error.isEmpty()) {
            outcome.exitCode = UsageError;
            outcome.messages = arguments.error.toUtf8();
            return outcome;
        }
        outcome.exitCode = commandline::run(*command, arguments, terminal,
                                            {.factory = *m_site->factory,
                                             .engine = *m_site->engine,
                                             .cgi = {},
                                             .parallelDevices = [] { return 2; },
                                             .parallelUpgrades = [] { return 2; },
                                             .siteAccount = {}});
        return outcome;
    }

    /// The last number of the addresses of the devices that received an operation.
    [[nodiscard]] QString numbersOf(const QString &operation) const
    {
        QStringList numbers;
        for (const sdk::demo::RecordedRequest &request : m_site->site->requests().of(operation))
            numbers.append(request.mac.section(':', -1));
        numbers.removeDuplicates();
        numbers.sort();
        return numbers.join(' ');
    }

    [[nodiscard]] QString file(const QByteArray &contents, const QString &name = "file.txt") const
    {
        QFile file(m_folder.filePath(name));
        file.open(QIODevice::WriteOnly);
        file.write(contents);
        return file.fileName();
    }

    [[nodiscard]] QString password() const { return file("secret1\n", "password.txt"); }

    static QStringList fieldsOf(const QByteArray &json, const QString &key)
    {
        QStringList fields;
        for (const QJsonValue &record : QJsonDocument::fromJson(json).array())
            fields.append(record.toObject().value(key).toVariant().toString());
        return fields;
    }

private Q_SLOTS:
    void init()
    {
        qunsetenv("CONFIGTOOLS_PASSWORD");
        m_answers.clear();
        m_isInterrupted = false;
        m_devices.clear();
        for (int number = 1; number <= 4; ++number) {
            m_devices.append(configDevice(number, "IPC", 1));
            m_devices.last().mask = "255.255.255.0";
            m_devices.last().gateway = "192.168.1.1";
        }
        m_devices.last().accounts.clear();
        m_devices.last().initialisation = sdk::InitialisationBits::Uninitialised;
        m_site = std::make_unique<ConfigSite>(m_devices);
    }

    void cleanup()
    {
        m_site->engine->end();
        m_site.reset();
    }

    void search_data()
    {
        const auto row = dataTable<QStringList, int, QString>({"arguments", "exitCode", "addresses"});
        row("all", {}, 0, "192.168.1.1 192.168.1.2 192.168.1.3 192.168.1.4");
        row("by MAC and address", {"--devices", "02-1A-C5-00-00-03,192.168.1.1"}, 0,
            "192.168.1.3 192.168.1.1");
        row("a device is missing", {"--devices", "192.168.1.9,192.168.1.2:37777"}, 1, "192.168.1.2");
        row("filter", {"--filter", "1.4:"}, 0, "192.168.1.4");
    }

    void search()
    {
        QFETCH(const QStringList, arguments);
        const Outcome outcome = run(QStringList{"search", "--format", "json"} + arguments);
        QTEST(outcome.exitCode, "exitCode");
        QTEST(fieldsOf(outcome.results, "address").join(' '), "addresses");
    }

    void tablesAlignWideCharactersAndQuoteFields()
    {
        const QByteArray table = run({"search", "--devices", "192.168.1.1"}).results;
        const QList<QByteArray> lines = table.split('\n');
        QCOMPARE(lines.at(0).left(60),
                 QByteArray("ADDRESS      PORT   MAC                NAME  TYPE  MODEL  VE"));
        QVERIFY2(lines.at(1).startsWith("192.168.1.1  37777  02:1a:c5:00:00:01  东门  IPC"),
                 lines.at(1).constData());
        const QByteArray csv = run({"search", "--devices", "192.168.1.1", "--format", "csv"}).results;
        QVERIFY2(csv.startsWith("address,port,mac,name,type,model,version,initialised\r\n"
                                "192.168.1.1,37777,02:1a:c5:00:00:01,东门,IPC,"),
                 csv.constData());
    }

    void invalidArgumentsSendNothing_data()
    {
        const auto row = dataTable<QStringList, QString>({"arguments", "message"});
        row("format", {"search", "--format", "xml"}, "--format");
        row("range", {"search", "--range", "192.168.1.9-192.168.1.2"}, "--range");
        row("no devices", {"set-address", "--start", "192.168.1.9"}, "--devices is missing");
        row("two ways", {"set-address", "--start", "192.168.1.9", "--dhcp", "--devices", "all"}, "either");
        row("mask", {"set-address", "--start", "192.168.1.9", "--mask", "255.0.255.0", "--devices", "all"},
            "--mask");
        row("unknown option", {"search", "--frobnicate=secret7"}, "--frobnicate");
        row("unknown setting", {"set", "encode", "main.colour=red", "--devices", "all"}, "main.colour");
        row("no value", {"set", "encode", "main.quality", "--devices", "all"}, "SETTING=VALUE");
        row("incomplete time server", {"set", "system", "ntp.server=ntp.example", "--devices", "all"},
            "ntp.timeZone");
        row("channel", {"get", "image", "--channel", "0", "--devices", "all"}, "--channel");
        row("relative command", {"cgi", "action=reboot", "--devices", "all"}, "starts with");
        row("files of a report", {"report", "--files", "pdf,doc", "--devices", "all"}, "--files");
        row("damaged file of a visit", {"report", "--visit", file("{}\n", "visit.txt"), "--devices", "all"},
            "--visit");
        row("list format", {"export", "site.txt", "--devices", "all"}, ".csv");
        row("passphrase", {"export", "site.devlist", "--devices", "all", "--passphrase", "long enough"},
            "--passphrase-file");
        row("short passphrase",
            {"export", "site.devlist", "--devices", "all", "--passphrase-file", file("1234567", "short.txt")},
            "8 characters");
        row("password as an argument", {"get", "encode", "--password", "secret7"}, "is not accepted");
        row("password as an argument with =", {"get", "encode", "--password=secret7"}, "is not accepted");
    }

    void invalidArgumentsSendNothing()
    {
        QFETCH(QStringList, arguments);
        QFETCH(const QString, message);
        if (!arguments.contains("search"))
            arguments += {"--password-file", password()};
        const Outcome outcome = run(arguments);
        QCOMPARE(outcome.exitCode, int(UsageError));
        QVERIFY2(outcome.messages.contains(message.toUtf8()), outcome.messages.constData());
        QVERIFY2(!outcome.messages.contains("secret7"), outcome.messages.constData());
        QVERIFY(outcome.results.isEmpty());
        QVERIFY(m_site->site->requests().of("NetLoginSecure").isEmpty());
        QVERIFY(m_site->site->requests().of("NetStartSearchDevicesEx").isEmpty());
    }

    void passwordSources_data()
    {
        const auto row = dataTable<QByteArray, QByteArray, QStringList, int, int>(
            {"file", "environment", "answers", "prompts", "exitCode"});
        row("file", "secret1\r\nrest", "other", {}, 0, AllDone);
        row("environment", {}, "secret1", {}, 0, AllDone);
        row("prompt", {}, {}, {"secret1"}, 1, AllDone);
        row("no terminal", {}, {}, {}, 1, UsageError);
        row("empty file", "\n", "secret1", {}, 0, UsageError);
        row("refused", {}, "wrong7", {}, 0, SomeFailed);
    }

    void passwordSources()
    {
        QFETCH(const QByteArray, file);
        QFETCH(const QByteArray, environment);
        QFETCH(const QStringList, answers);
        m_answers = answers;
        if (!environment.isEmpty())
            qputenv("CONFIGTOOLS_PASSWORD", environment);
        const auto tidy = qScopeGuard([] { qunsetenv("CONFIGTOOLS_PASSWORD"); });
        QStringList arguments = {"get", "encode", "main.quality", "--devices", "192.168.1.1"};
        if (!file.isEmpty())
            arguments += {"--password-file", this->file(file)};
        const Outcome outcome = run(arguments);
        QTEST(outcome.exitCode, "exitCode");
        QTEST(int(outcome.prompts.size()), "prompts");
        for (const QByteArray &secret : {QByteArray("secret1"), QByteArray("wrong7")})
            QVERIFY2(!outcome.messages.contains(secret) && !outcome.results.contains(secret),
                     outcome.messages.constData());
    }

    void addressesAreChangedInOrder_data()
    {
        const auto row = dataTable<QStringList, QByteArray, int, QString, QString>(
            {"arguments", "map", "exitCode", "addresses", "requests"});
        row("range", {"--devices", "192.168.1.1,192.168.1.2", "--start", "192.168.1.51"}, {}, 0,
            "192.168.1.51 192.168.1.52", "01 02");
        row("dry run", {"--devices", "all", "--start", "192.168.1.51", "--dry-run"}, {}, 1, {},
            {}); // one is new
        row("in use by another device", {"--devices", "192.168.1.1", "--start", "192.168.1.3"}, {}, 3, {},
            {});
        row("map", {}, "# gate\n02:1a:c5:00:00:01, 192.168.1.61\n192.168.1.3,192.168.1.60\n", 0,
            "192.168.1.61 192.168.1.60", "01 03");
        row("map with an invalid line", {}, "192.168.1.1,192.168.1.61\n192.168.1.2\n", 2, {}, {});
        row("map with a missing device", {}, "192.168.1.1,192.168.1.61\n192.168.1.9,192.168.1.62\n", 1,
            "192.168.1.61 not found", "01");
    }

    void addressesAreChangedInOrder()
    {
        QFETCH(QStringList, arguments);
        QFETCH(const QByteArray, map);
        if (!map.isEmpty())
            arguments += {"--map", file(map)};
        const Outcome outcome =
            run(QStringList{"set-address", "--format", "json", "--password-file", password()} + arguments);
        QTEST(outcome.exitCode, "exitCode");
        if (!arguments.contains("--dry-run"))
            QTEST(fieldsOf(outcome.results, "text").join(' '), "addresses");
        QTEST(numbersOf("NetModifyDeviceBySearch"), "requests");
    }

    void newDevicesAreInitialised()
    {
        const QString weak = file("1234\n", "weak.txt");
        QCOMPARE(run({"init", "--devices", "all", "--password-file", weak}).exitCode, int(UsageError));
        QVERIFY(numbersOf("NetInitDeviceAccount").isEmpty());
        const QString strong = file("Strong-2026\n", "strong.txt");
        const Outcome outcome =
            run({"init", "--devices", "all", "--password-file", strong, "--format", "json"});
        QVERIFY2(outcome.exitCode == AllDone, outcome.messages.constData());
        QCOMPARE(numbersOf("NetInitDeviceAccount"), "04");
        QCOMPARE(fieldsOf(outcome.results, "result"), QStringList("done"));
        const Outcome again = run({"init", "--devices", "192.168.1.1", "--password-file", strong});
        QCOMPARE(again.exitCode, int(SomeFailed)); // it has an account already
        QCOMPARE(numbersOf("NetInitDeviceAccount"), "04");
    }

    void settings_data()
    {
        const auto row =
            dataTable<QStringList, int, QString, QString>({"assignments", "exitCode", "text", "written"});
        row("encode", {"encode", "main.quality=2", "main.frameRate=12"}, 0, {}, "01 02");
        row("out of range", {"encode", "main.quality=9"}, 1, "main.quality is 1 to 6", {});
        row("unknown choice", {"encode", "main.resolution=1x1"}, 1, "main.resolution is one of", {});
        row("one of two is invalid", {"encode", "main.quality=2", "main.frameRate=9999"}, 1,
            "main.frameRate is 1 to", {});
        row("image", {"image", "brightness=61", "mirror=on"}, 0, {}, "01 02");
        row("image out of range", {"image", "brightness=101"}, 1, "brightness is 0 to 100", {});
        row("name", {"system", "name=Gate {n}"}, 0, "Gate 1", "01 02");
        row("plan only", {"encode", "main.quality=2", "--dry-run"}, 0, {}, {});
        row("names only planned", {"system", "name=Gate {n}", "--dry-run"}, 0, {}, {});
    }

    void settings()
    {
        QFETCH(const QStringList, assignments);
        QFETCH(const QString, text);
        const QStringList devices = {
            "--devices", "192.168.1.1,192.168.1.2", "--password-file", password(), "--format", "json"};
        const Outcome outcome = run(QStringList("set") + assignments + devices);
        QTEST(outcome.exitCode, "exitCode");
        QVERIFY2(outcome.results.contains(text.toUtf8()), outcome.results.constData());
        QTEST(numbersOf("NetSetItem"), "written");
    }

    void writtenValuesAreReadBack()
    {
        const QStringList device = {"--devices", "192.168.1.2", "--password-file", password()};
        QCOMPARE(run(QStringList{"set", "encode", "main.quality=2", "sub.frameRate=7"} + device).exitCode, 0);
        QCOMPARE(run(QStringList{"set", "image", "saturation=33", "mirror=on"} + device).exitCode, 0);
        QCOMPARE(run(QStringList{"set", "system", "name=Back door"} + device).exitCode, 0);
        const QStringList csv = device + QStringList{"--format", "csv"};
        const QByteArray head = "device,mac,setting,value\r\n";
        const QByteArray line = "192.168.1.2:37777,02:1a:c5:00:00:02,";
        QCOMPARE(run(QStringList{"get", "encode", "main.quality", "sub.frameRate"} + csv).results,
                 head + line + "main.quality,2\r\n" + line + "sub.frameRate,7\r\n");
        QCOMPARE(run(QStringList{"get", "image", "saturation", "mirror"} + csv).results,
                 head + line + "saturation,33\r\n" + line + "mirror,on\r\n");
        QCOMPARE(run(QStringList{"get", "system", "name"} + csv).results, head + line + "name,Back door\r\n");
    }

    /// The settings are written one after another. Those after the interruption are not.
    void anInterruptedChangeStartsNoFurtherOne()
    {
        m_isInterrupted = true;
        const Outcome outcome =
            run({"set", "system", "name=Gate", "videoStandard=NTSC", "--format", "csv", "--devices",
                 "192.168.1.1,192.168.1.2,192.168.1.3", "--password-file", password()});
        QCOMPARE(outcome.exitCode, 1);
        QVERIFY2(outcome.messages.contains("The remaining settings were not changed."),
                 outcome.messages.constData());
        QVERIFY2(outcome.results.contains("192.168.1.1:37777"), outcome.results.constData());
        QVERIFY2(!outcome.results.contains("videoStandard"), outcome.results.constData());
    }

    void aStoppedListEndsTheCommand_data()
    {
        const auto row = dataTable<bool, QByteArray>({"isInterrupted", "reason"});
        row("interrupted", true, "Stopping");
        row("refused accounts", false, "Stopped: 5 devices");
    }

    /// The command would change only some of the devices, without the knowledge of the user.
    void aStoppedListEndsTheCommand()
    {
        QFETCH(const QByteArray, reason);
        QFETCH(const bool, isInterrupted);
        QByteArray lines = "添加模式,IP地址/域名/注册ID/设备序列号,设备端口,用户名,密码,设备名称\n"
                           "IpAddress,192.168.1.1,37777,admin,secret1,\n";
        for (int number = 1; number <= 10; ++number) {
            for (const char *wrong : {"wrong7", "wrong8"})
                lines += "IpAddress,192.168.1." + QByteArray::number(number % 2 + 2) + ",37777,user" +
                         QByteArray::number(number) + ',' + wrong + ",\n";
        }
        const QString list = file(lines, "site.csv");
        m_isInterrupted = isInterrupted;
        const Outcome outcome = run({"set", "system", "name=Gate", "--list", list, "--devices", "all"});
        QCOMPARE(outcome.exitCode, int(NothingDone));
        QVERIFY2(outcome.messages.contains(reason) && outcome.messages.contains("list were not read"),
                 outcome.messages.constData());
        QCOMPARE(numbersOf("NetSetItem"), QString());
        // An import has results nevertheless.
        const Outcome imported = run({"import", list, "--format", "json"});
        QCOMPARE(imported.exitCode, int(SomeFailed));
        const QStringList results = fieldsOf(imported.results, "result");
        QCOMPARE(results.size(), 21);
        if (!isInterrupted) // the devices may respond before the interruption
            QVERIFY(results.contains("not done"));
    }

    void aListThatCannotStartIsReported()
    {
        m_site->engine->end();
        const Outcome outcome = run({"import", file("添加模式,IP地址/域名/注册ID/设备序列号,设备端口,用户名,"
                                                    "密码\nIpAddress,192.168.1.1,37777,admin,secret1\n",
                                                    "site.csv")});
        QCOMPARE(outcome.exitCode, int(NothingDone));
        QVERIFY(!outcome.messages.isEmpty());
    }

    void standardInputIsRead_data()
    {
        const auto row =
            dataTable<QByteArray, QStringList, int, QString>({"input", "arguments", "exitCode", "message"});
        row("names of devices", "192.168.1.2\n# gate\n192.168.1.1\n",
            {"get", "encode", "main.quality", "--devices", "@-", "--format", "json"}, AllDone, "2/2");
        row("invalid names", "\xff", {"get", "encode", "main.quality", "--devices", "@-"}, UsageError,
            "UTF-8");
        row("two commands", "/cgi-bin/a\n/cgi-bin/b\n", {"cgi", "-", "--devices", "all"}, UsageError,
            "one command");
        row("invalid command", "/\xff", {"cgi", "-", "--devices", "all"}, UsageError, "UTF-8");
    }

    void standardInputIsRead()
    {
        QFETCH(const QByteArray, input);
        QFETCH(const QStringList, arguments);
        QFETCH(const QString, message);
        QVERIFY(std::freopen(file(input).toLocal8Bit().constData(), "r", stdin));
        const Outcome outcome = run(arguments + QStringList{"--password-file", password()});
        QTEST(outcome.exitCode, "exitCode");
        QVERIFY2(outcome.messages.contains(message.toUtf8()), outcome.messages.constData());
    }

    void aMissingChannelIsNotReplacedByAnotherOne()
    {
        const Outcome outcome = run({"set", "encode", "main.quality=2", "--channel", "2", "--devices",
                                     "192.168.1.1", "--password-file", password(), "--format", "json"});
        QCOMPARE(outcome.exitCode, int(SomeFailed));
        QVERIFY2(outcome.results.contains("no channel 2"), outcome.results.constData());
        QVERIFY(m_site->site->requests().of("NetSetItem").isEmpty());
    }

    void firmwareIsSentToTheDevicesThatItFits_data()
    {
        const auto row = dataTable<QStringList, QString>({"arguments", "upgraded"});
        row("upgrade", {}, "01");
        row("dry run", {"--dry-run"}, {});
    }

    void firmwareIsSentToTheDevicesThatItFits()
    {
        QFETCH(const QStringList, arguments);
        m_site->engine->end();
        m_devices[0].model = "B-2230-IR";
        m_devices[1].model = "B-2812-Z4";
        m_site = std::make_unique<ConfigSite>(m_devices);
        const QString firmware =
            file("BRELM-FIRMWARE 1\nmodel=B-2230-IR\nversion=2.900.0\n\nbytes", "new.bin");
        const Outcome outcome =
            run(QStringList{"upgrade", "--file", firmware, "--devices", "192.168.1.1,192.168.1.2",
                            "--password-file", password(), "--format", "json"} +
                arguments);
        QVERIFY2(outcome.exitCode == SomeFailed,
                 outcome.messages.constData()); // the file is not for the second device
        QTEST(numbersOf("NetStartUpgrade"), "upgraded");
        if (arguments.isEmpty())
            QCOMPARE(fieldsOf(outcome.results, "result"), QStringList({"done", "failed"}));
    }

    /// A command that is killed may leave an incomplete line.
    void anIncompleteLineOfAVisitIsSkipped()
    {
        const QString path =
            file("{\"time\":\"2026-01-02T03:04:05\",\"value\":\"a\"}\n{\"time\":\"2026-01", "visit.txt");
        commandline::VisitFile visit(path);
        QVERIFY2(visit.isWritable(), qPrintable(visit.error()));
        VisitChange change;
        change.time = QDateTime::currentDateTime();
        QVERIFY(visit.append({change, change}));
        commandline::VisitFile later(path);
        QVERIFY2(later.read(), qPrintable(later.error()));
        QCOMPARE(later.changes().size(), 3);
        for (const QString &other : {file("192.168.1.1,80\n", "list.csv"), m_folder.path()})
            QVERIFY(!commandline::VisitFile(other).isWritable());
    }

    void refusedAccountsEndTheWork()
    {
        for (int number = 5; number <= 9; ++number)
            m_devices.append(configDevice(number, "IPC", 1));
        m_site->engine->end();
        m_site = std::make_unique<ConfigSite>(m_devices);
        const QString wrong = file("wrong7\n");
        const Outcome outcome =
            run({"get", "image", "--devices", "all", "--password-file", wrong, "--format", "json"});
        QCOMPARE(outcome.exitCode, int(SomeFailed));
        QCOMPARE(m_site->site->requests().of("NetLoginSecure").size(), 5);
        QCOMPARE(fieldsOf(outcome.results, "result").count("not done"), 3); // the new one was skipped
    }

    void listsAreExportedAndUsed()
    {
        const QString list = m_folder.filePath("site.csv");
        QCOMPARE(run({"export", list, "--devices", "192.168.1.1,192.168.1.2", "--password-file", password()})
                     .exitCode,
                 0);
        // The devices are reached by the list alone, with the accounts of its lines.
        m_site->engine->end();
        m_site = std::make_unique<ConfigSite>(m_devices);
        m_site->factory->setDefaultAccount("dh", {}, {});
        const Outcome imported = run({"import", list, "--format", "json"});
        QVERIFY2(imported.exitCode == 0, imported.messages.constData());
        QCOMPARE(fieldsOf(imported.results, "result"), QStringList({"done", "done"}));
        const Outcome got = run({"get", "encode", "main.quality", "--list", list, "--devices", "all"});
        QVERIFY2(got.results.contains("192.168.1.2:37777"), got.messages.constData());
        QVERIFY(m_site->site->requests().of("NetStartSearchDevicesEx").isEmpty());
        const Outcome absent = run({"import", m_folder.filePath("absent.csv")});
        QCOMPARE(absent.exitCode, int(NothingDone));
    }

    void listsAreProtected()
    {
        const QString list = m_folder.filePath("site.devlist");
        m_answers = {"long enough", "long enougH"};
        const QStringList exporting = {"export",          list,      "--devices", "192.168.1.1",
                                       "--password-file", password()};
        QCOMPARE(run(exporting).exitCode, int(UsageError)); // the answers differ
        QVERIFY(!QFile::exists(list));
        m_answers = {"long enough", "long enough"};
        const Outcome exported = run(exporting);
        QCOMPARE(exported.exitCode, 0);
        QVERIFY(exported.messages.contains("encrypted"));
        m_site->factory->setDefaultAccount("dh", {}, {});
        m_answers = {"wrong one"};
        QCOMPARE(run({"import", list}).exitCode, int(NothingDone));
        m_answers = {"long enough"};
        QCOMPARE(fieldsOf(run({"import", list, "--format", "json"}).results, "result"), QStringList{"done"});
        m_answers.clear();
        const QString phrase = file("long enough\n", "phrase.txt");
        QCOMPARE(run({"import", list, "--passphrase-file", phrase}).exitCode, 0);

        const QString readable = m_folder.filePath("readable.xml");
        QCOMPARE(run({"export", readable, "--devices", "192.168.1.1", "--password-file", password(),
                      "--without-passwords"})
                     .exitCode,
                 0);
        QFile xml(readable);
        QVERIFY(xml.open(QIODevice::ReadOnly));
        const QByteArray text = xml.readAll();
        QVERIFY(text.contains("admin") && !text.contains("secret1"));
    }
};

QTEST_GUILESS_MAIN(TestCommandLine)
#include "tst_commandline.moc"
