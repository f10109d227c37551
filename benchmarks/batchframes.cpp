#include "benchmarks/measurements.h"

#include "app/localconfig.h"
#include "app/shell.h"
#include "cgi/cgibatches.h"
#include "cgi/cgiconfigmanage.h"
#include "device/batch/addingbatches.h"
#include "device/batch/batches.h"
#include "device/devicefactory.h"
#include "sheets/qexcel.h"

#include <QElapsedTimer>
#include <QFile>
#include <QQmlApplicationEngine>
#include <QQmlContext>
#include <QQuickWindow>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <functional>

using namespace Qt::StringLiterals;

namespace {

const QString family = u"dh"_s;
const QString account = u"admin"_s;
const QString password = u"Installer-2024"_s; // of the fleet's devices
constexpr int longestBatch = 120000;          // milliseconds

/// Pages of the window.
constexpr int addressPage = 0;
constexpr int configurationPage = 2;
constexpr int systemPage = 3;
constexpr int commandPage = 4;

/// The program's window with 200 devices, painted as often as it can be.
class PaintedProgram
{
public:
    PaintedProgram()
        : m_shell(CommandLine::parse({u"ConfigTools"_s, u"--demo=fleet:200"_s})), m_isOpen(!m_shell.begin())
    {
        if (!m_isOpen)
            return;
        QSignalSpy found(&factory(), &CDeviceFactory::signalSearchDone);
        found.wait(longestBatch);
        CLocalConfig::getinstance()->setSearchConfigPass(password); // which CGI commands use
        factory().setDefaultAccount(family, account, password);
        const QVariantList rows = factory().filterData(family, u"nofilter"_s);
        for (const QVariant &entry : rows) {
            const QVariantMap row = entry.toMap();
            QStringList &names = row.value(u"state"_s).toBool() ? m_initialised : m_factoryNew;
            names.append(row.value(u"mac"_s).toString());
            if (row.value(u"state"_s).toBool())
                m_ipports.append(row.value(u"ipport"_s).toString());
        }
    }

    [[nodiscard]] bool isOpen() const { return m_isOpen; }
    [[nodiscard]] static CDeviceFactory &factory() { return *CDeviceFactory::getinstance(); }
    [[nodiscard]] Batches &batches() const { return *published<Batches>("BatchesApi"); }
    [[nodiscard]] CgiBatches &commands() const { return *published<CgiBatches>("CgiBatchesApi"); }
    [[nodiscard]] AddingBatches &adding() const { return *published<AddingBatches>("AddingBatchesApi"); }
    [[nodiscard]] const QStringList &initialised() const { return m_initialised; } ///< MACs
    [[nodiscard]] const QStringList &factoryNew() const { return m_factoryNew; }   ///< MACs
    [[nodiscard]] const QStringList &ipports() const { return m_ipports; } ///< of the initialised ones

    /// The encode settings of a device are what a copy takes.
    void openSession() const
    {
        QSignalSpy loggedIn(&factory(), &CDeviceFactory::signalHighLevelLoginRet);
        factory().openSession(family, m_ipports.constFirst(), account, password, true);
        loggedIn.wait(longestBatch);
        factory().getEncodeInfo(family);
    }

    /// Milliseconds between two painted frames at the most, from the start of a batch to its end, on a page.
    [[nodiscard]] double longestPause(int page, const std::function<Batch *()> &start)
    {
        return longestPauseOf(page, [&] {
            Batch *batch = start();
            const bool hasEnded =
                batch && QTest::qWaitFor([batch] { return !batch->isRunning(); }, longestBatch);
            if (!hasEnded)
                qWarning("a batch did not end: %d of %d devices%s", batch ? batch->done() : 0,
                         batch ? batch->total() : 0, batch && batch->isHeld() ? ", held" : "");
        });
    }

    /// The same while the configuration page logs in to a device that is not there.
    [[nodiscard]] double longestPauseOfDeadLogin()
    {
        return longestPauseOf(configurationPage, [this] {
            const QSignalSpy loggedIn(&factory(), &CDeviceFactory::signalHighLevelLoginRet);
            QObject *page = window()->findChild<QObject *>("pageDeviceConfig");
            const bool isAsked =
                page && QMetaObject::invokeMethod(page, "choose", Q_ARG(QVariant, u"10.250.250.250:37777"_s));
            if (!isAsked || !QTest::qWaitFor([&] { return !loggedIn.isEmpty(); }, longestBatch))
                qWarning("the login did not end");
        });
    }

private:
    /// `work` returns when it has ended, and lets the window be painted meanwhile.
    [[nodiscard]] double longestPauseOf(int page, const std::function<void()> &work)
    {
        window()->setProperty("currentTab", page);
        QTest::qWait(settlingTime);
        m_longest = 0;
        m_sinceFrame.invalidate();
        const auto painted =
            QObject::connect(window(), &QQuickWindow::frameSwapped, window(), [this] { notePainted(); });
        window()->update();
        work();
        QTest::qWait(settlingTime); // the rows are queried again
        QObject::disconnect(painted);
        constexpr double nanoseconds = 1e6;
        return static_cast<double>(m_longest) / nanoseconds;
    }

    void notePainted()
    {
        m_longest = std::max(m_longest, m_sinceFrame.isValid() ? m_sinceFrame.nsecsElapsed() : 0);
        m_sinceFrame.start();
        window()->update();
    }

    static constexpr int settlingTime = 1000; // milliseconds: the page has been made and painted

    template<typename Type>
    [[nodiscard]] Type *published(const char *name) const
    {
        return qobject_cast<Type *>(
            m_shell.engine()->rootContext()->contextProperty(QString::fromLatin1(name)).value<QObject *>());
    }
    [[nodiscard]] QQuickWindow *window() const
    {
        return qobject_cast<QQuickWindow *>(m_shell.engine()->rootObjects().constFirst());
    }

    Shell m_shell;
    const bool m_isOpen;
    QStringList m_initialised;
    QStringList m_factoryNew;
    QStringList m_ipports;
    QElapsedTimer m_sinceFrame;
    qint64 m_longest = 0; ///< between two frames, nanoseconds
};

/// A list of the devices, as the user exports it.
QString writeList(const QString &path, const QStringList &ipports)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return {};
    file.write("添加模式,IP地址/域名/注册ID/设备序列号,设备端口,用户名,密码,设备名称\n");
    for (const QString &ipport : ipports)
        file.write(u"0,%1,%2,%3,%4,Name\n"_s
                       .arg(ipport.section(u':', 0, 0), ipport.section(u':', 1), account, password)
                       .toUtf8());
    return path;
}

/// A workbook with a command for each device.
QString writeWorkbook(const QString &path, const QStringList &ipports)
{
    QExcel workbook;
    if (!workbook.open(CGIConfigManage::getinstance()->templateFile()))
        return {};
    int row = 2;
    for (const QString &ipport : ipports) {
        const QStringList cells = {ipport.section(u':', 0, 0),
                                   ipport.section(u':', 1),
                                   account,
                                   password,
                                   u"/cgi-bin/device?get=name"_s,
                                   u"0"_s};
        for (int column = 0; column < cells.size(); ++column)
            workbook.setCellText(row, column + 1, cells.at(column));
        ++row;
    }
    return workbook.saveAs(path) ? path : QString();
}

/// All rows are deleted, so that devices can be added again.
void deleteRows(const PaintedProgram &program)
{
    QVariantMap rows;
    for (const QString &mac : program.initialised())
        rows.insert(mac, true);
    PaintedProgram::factory().setBatchDeleteDevice(family, rows, u"IPV4"_s);
}

QVariantList devicesToAdd(const QStringList &ipports)
{
    QVariantList devices;
    for (const QString &ipport : ipports)
        devices.append(QVariantMap{{u"identity"_s, ipport},
                                   {u"mode"_s, 0},
                                   {u"address"_s, ipport.section(u':', 0, 0)},
                                   {u"port"_s, ipport.section(u':', 1).toInt()},
                                   {u"account"_s, account},
                                   {u"password"_s, password}});
    return devices;
}

} // namespace

QList<Figure> measureBatchFrames()
{
    PaintedProgram program;
    if (!program.isOpen())
        return {};
    QStringList addresses;
    for (qsizetype number = 0; number < program.initialised().size(); ++number)
        addresses.append(u"10.1.0.%1"_s.arg(number + 1));

    QList<Figure> figures;
    const auto add = [&](const QString &kind, double pause) {
        figures.append({.subject = u"longest pause between two frames: %1"_s.arg(kind),
                        .value = pause,
                        .unit = u"ms"_s,
                        .budget = 50,
                        .peer = {},
                        .largestRatio = {},
                        .peerName = {}});
    };
    const auto measure = [&](const QString &kind, int page, const std::function<Batch *()> &start) {
        add(kind, program.longestPause(page, start));
    };
    add(u"login of a dead device"_s, program.longestPauseOfDeadLogin());
    measure(u"system command"_s, systemPage, [&] {
        return program.batches().configureSystem(family, u"videoStandard"_s, u"Standard"_s,
                                                 {{u"videoStandard"_s, 1}}, program.ipports());
    });
    measure(u"CGI command"_s, commandPage, [&] {
        return program.commands().send(u"Command"_s, program.initialised(),
                                       u"/cgi-bin/magicBox.cgi?action=getDeviceType"_s);
    });
    const QTemporaryDir folder;
    measure(u"workbook of commands"_s, commandPage, [&] {
        CgiWorkbooks &workbooks = *program.commands().workbooks();
        QSignalSpy wasRead(&workbooks, &CgiWorkbooks::wasRead);
        workbooks.read(writeWorkbook(folder.filePath(u"commands.xlsx"_s), program.ipports()));
        wasRead.wait(longestBatch);
        QStringList lines;
        for (const QVariant &line : wasRead.value(0).value(0).toList())
            lines.append(line.toMap().value(u"name"_s).toString());
        return workbooks.run(u"Workbook"_s, lines);
    });
    program.openSession();
    measure(u"snapshots"_s, commandPage, [&] {
        return program.batches().takeSnapshots(family, u"Snapshots"_s, program.ipports().constFirst(), {},
                                               folder.path());
    });
    measure(u"copy of encode settings"_s, configurationPage,
            [&] { return program.batches().copyEncodeSettings(family, u"Copy"_s, program.ipports()); });
    measure(u"first passwords"_s, addressPage, [&] {
        return program.batches().setFirstPasswords(family, u"Passwords"_s, program.factoryNew(), account,
                                                   password);
    });
    measure(u"addresses"_s, addressPage, [&] {
        return program.batches().changeAddresses(family, u"Addresses"_s, program.initialised(), addresses,
                                                 u"255.255.0.0"_s, u"10.1.0.254"_s, false);
    });
    measure(u"addresses put back"_s, addressPage, [&] {
        return program.batches().putAddressesBack(program.batches().current(), u"Back"_s,
                                                  program.initialised());
    });
    deleteRows(program);
    measure(u"favourites"_s, addressPage,
            [&] { return program.adding().addDevices(u"Favourites"_s, devicesToAdd(program.ipports())); });
    deleteRows(program);
    measure(u"import of a list"_s, addressPage, [&] {
        QSignalSpy began(&program.adding(), &AddingBatches::importBegan);
        program.adding().importList(u"Import"_s,
                                    writeList(folder.filePath(u"list.csv"_s), program.ipports()));
        began.wait(longestBatch);
        return program.batches().current();
    });
    return figures;
}
