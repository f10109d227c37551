#include "sheets/qexcel.h"
#include "tests/datatable.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>

#include <csignal>
#include <unistd.h>

/// Processes of the application that run a command, without a display.
class TestCommandProcess : public QObject
{
    Q_OBJECT
private:
    struct Outcome
    {
        int exitCode = -1;
        QByteArray results;
        QByteArray messages;
    };

    QTemporaryDir m_folder;

    /// The environment of a server: no display and no terminal.
    static QProcessEnvironment serverEnvironment()
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        for (const char *name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM", "CONFIGTOOLS_PASSWORD"})
            environment.remove(QString::fromLatin1(name));
        return environment;
    }

    [[nodiscard]] Outcome run(const QString &program, const QStringList &arguments,
                              const QByteArray &input = {}) const
    {
        QProcess process;
        process.setProcessEnvironment(serverEnvironment());
        process.setWorkingDirectory(m_folder.path());
        process.setChildProcessModifier([] { setsid(); }); // without a terminal that a prompt could use
        process.start(program, arguments);
        process.write(input);
        process.closeWriteChannel();
        if (!process.waitForFinished(170000))
            process.kill();
        const QByteArray messages = process.readAllStandardError();
        return {.exitCode = process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
                .results = process.readAllStandardOutput(),
                .messages = messages};
    }

    [[nodiscard]] Outcome run(const QStringList &arguments, const QByteArray &input = {}) const
    {
        return run(PROGRAM, arguments, input);
    }

private Q_SLOTS:
    void exitCodes_data()
    {
        const auto row =
            dataTable<QStringList, int, QString, QString>({"arguments", "exitCode", "results", "messages"});
        row("help", {"--help"}, 0, "set-address", "");
        row("help of a command", {"set", "--help"}, 0, "main.frameRate", "");
        row("version", {"--version"}, 0, "V1.", "");
        row("unknown command", {"frobnicate"}, 2, "", "unknown command");
        row("search", {"search", "--demo"}, 0, "02:1a:c5:00:40:25", "Found");
        row("quiet", {"search", "--demo", "--quiet", "--devices", "192.168.1.101"}, 0, "B-2230-IR", "");
        row("missing device", {"search", "--demo", "--devices", "10.9.9.9"}, 1, "ADDRESS", "10.9.9.9");
        row("no such scene", {"search", "--demo", "absent.json"}, 3, "", "simulated site");
        row("English results", {"get", "image", "dayNight.mode", "--demo", "--devices", "192.168.1.101"}, 0,
            "Auto", "done");
        row("cgi", {"cgi", "/cgi-bin/device", "--demo", "--devices", "192.168.1.101"}, 0, "B-2230-IR",
            "done");
        row("snapshot", {"snapshot", "--demo", "--devices", "192.168.1.101", "--output", "images"}, 0,
            "images/192.168.1.101_8800/0.jpg", "done");
        row("snapshot of a recorder with channels without a camera",
            {"snapshot", "--demo", "--devices", "192.168.1.120", "--output", "images"}, 0, "skipped", "done");
        row("no firmware file", {"upgrade", "--demo", "--devices", "all", "--file", "absent.bin"}, 3, "",
            "absent.bin");
        row("unusable folder of a report", {"report", "--demo", "--devices", "all", "--output", "/proc"}, 3,
            "", "/proc cannot be written");
        row("no password", {"get", "image", "--devices", "all"}, 2, "", "CONFIGTOOLS_PASSWORD");
    }

    void exitCodes()
    {
        QFETCH(const QStringList, arguments);
        QFETCH(const QString, results);
        QFETCH(const QString, messages);
        const Outcome outcome = run(arguments);
        QVERIFY2(outcome.exitCode >= 0, outcome.messages.constData());
        QTEST(outcome.exitCode, "exitCode");
        QVERIFY2(outcome.results.contains(results.toUtf8()),
                 (outcome.results + outcome.messages).constData());
        QVERIFY2(outcome.messages.contains(messages.toUtf8()), outcome.messages.constData());
        // The help names the account of the simulated devices.
        const bool isHelp = arguments.contains("--help");
        QVERIFY2(isHelp || !(outcome.messages + outcome.results).contains("Office-2024"),
                 outcome.messages.constData());
        QCOMPARE(outcome.results.isEmpty(), results.isEmpty());
    }

    /// One signal, when the first file is being written, leaves both files or none, and no temporary file.
    void anInterruptedReportLeavesNothing()
    {
        const QString output = m_folder.filePath("interrupted");
        const QString temporary = m_folder.filePath("temporary");
        QVERIFY(QDir().mkpath(output) && QDir().mkpath(temporary));
        QProcess process;
        QProcessEnvironment environment = serverEnvironment();
        environment.insert("TMPDIR", temporary);
        process.setProcessEnvironment(environment);
        process.start(PROGRAM, {"report", "--demo", "--devices", "all", "--output", output});
        const auto entries = [](const QString &folder, QDir::Filters kinds = QDir::AllEntries) {
            return QDir(folder).entryList(kinds | QDir::Hidden | QDir::NoDotAndDotDot);
        };
        const QDeadlineTimer limit(100'000);
        while (entries(output, QDir::Dirs).isEmpty() && process.state() != QProcess::NotRunning &&
               !limit.hasExpired())
            process.waitForFinished(1);
        QVERIFY(process.state() == QProcess::Running);
        ::kill(static_cast<pid_t>(process.processId()), SIGINT);
        QVERIFY(process.waitForFinished(60'000));
        const QByteArray messages = process.readAllStandardError();
        const QStringList files = entries(output);
        QVERIFY2(files.isEmpty() || files.size() == 2, (messages + files.join(u' ').toUtf8()).constData());
        QVERIFY2(!files.isEmpty() || messages.contains("No report was written"), messages.constData());
        QCOMPARE(entries(temporary), QStringList());
    }

    void aSiteIsChangedByAScript()
    {
        const Outcome outcome = run(SITE_SCRIPT, {PROGRAM, m_folder.path(), "--demo", "office", "--quiet"});
        QVERIFY2(outcome.exitCode == 0, outcome.messages.constData());
        const auto read = [this](const QString &name) {
            QFile file(m_folder.filePath(name));
            return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
        };
        QVERIFY(read("before.csv").contains("\r\n192.168.1.101,8800,02:1a:c5:00:40:25,"));
        QVERIFY2(read("plan.txt").contains("192.168.1.201"), read("plan.txt").constData());
        QVERIFY2(read("addresses.txt").contains("192.168.1.202"), read("addresses.txt").constData());
        QVERIFY2(read("names.csv").contains(",name,done,0,Gate 1\r\n"), read("names.csv").constData());
        QVERIFY2(read("site.xml").contains("192.168.1.160"), read("site.xml").constData());

        QVERIFY2(read("report.csv").contains("Duplicate address"), read("report.csv").constData());
        const QDir reports(m_folder.filePath("report"));
        const QStringList files = reports.entryList({"Head office-*.pdf", "Head office-*.xlsx"});
        QCOMPARE(files.size(), 2);
        const QString document =
            QString::fromUtf8(run("pdftotext", {"-layout", reports.filePath(files.at(0)), "-"}).results);
        for (const QString &part :
             {QStringLiteral("Head office"), QStringLiteral("Changes of this visit"),
              QStringLiteral("192.168.1.202"), QStringLiteral("Gate 1"), QStringLiteral("3A4820613BR"),
              QStringLiteral("Lagerhalle Süd"), QStringLiteral("Not initialised"),
              QStringLiteral("Older firmware"), QStringLiteral("No time server")})
            QVERIFY2(document.contains(part), qPrintable(part + '\n' + document));
        QExcel workbook;
        QVERIFY(workbook.open(reports.filePath(files.at(1))));
        QVERIFY2(workbook.usedRowCount() > 20, qPrintable(QString::number(workbook.usedRowCount())));
        QVERIFY(workbook.selectSheet(3));
        QVERIFY(workbook.usedRowCount() > 10); // the changes of both commands
    }
};

QTEST_GUILESS_MAIN(TestCommandProcess)
#include "tst_commandprocess.moc"
