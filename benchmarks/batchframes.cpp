#include "benchmarks/measurements.h"

#include "app/localconfig.h"
#include "app/shell.h"
#include "cgi/cgibatches.h"
#include "cgi/cgiconfigmanage.h"
#include "device/batch/addingbatches.h"
#include "device/batch/batches.h"
#include "device/batch/upgradebatches.h"
#include "device/registry/devicefactory.h"
#include "sheets/qexcel.h"

#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
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
constexpr int upgradePage = 1;
constexpr int configurationPage = 2;
constexpr int systemPage = 3;
constexpr int commandPage = 4;

/// Milliseconds between two painted frames, in ascending order.
struct Pauses
{
    QList<double> during;  ///< while the work runs
    QList<double> without; ///< on the same page for the same time, without work
};

double longest(const QList<double> &pauses)
{
    return pauses.isEmpty() ? 0 : pauses.constLast();
}

/// The 99th percentile.
double usuallyLongest(const QList<double> &pauses)
{
    return pauses.isEmpty() ? 0 : pauses.at((pauses.size() - 1) * 99 / 100);
}

/// The window's window with 200 devices, painted as often as it can be.
class PaintedWindow
{
public:
    PaintedWindow()
        : m_shell(CommandLine::parse({u"ConfigTools"_s, u"--demo=fleet:200"_s})), m_isOpen(!m_shell.begin())
    {
        if (!m_isOpen)
            return;
        QSignalSpy found(&factory(), &CDeviceFactory::signalSearchDone);
        found.wait(longestBatch);
        CLocalConfig::getinstance()->setSearchConfigPass(password); // used by CGI commands
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
    [[nodiscard]] UpgradeBatches &upgrading() const
    {
        return *published<UpgradeBatches>("UpgradeBatchesApi");
    }
    [[nodiscard]] const QStringList &initialised() const { return m_initialised; } ///< MACs
    [[nodiscard]] const QStringList &factoryNew() const { return m_factoryNew; }   ///< MACs
    [[nodiscard]] const QStringList &ipports() const { return m_ipports; } ///< of the initialised ones

    /// Opens a session and reads the encode settings, which a copy needs.
    void openSession() const
    {
        QSignalSpy opened(&factory(), &CDeviceFactory::signalSessionOpened);
        factory().openSession(family, m_ipports.constFirst(), account, password, true);
        opened.wait(longestBatch);
        factory().getEncodeInfo(family);
    }

    /// The pauses from the start of a batch to its end, on a page.
    [[nodiscard]] Pauses pauses(int page, const std::function<Batch *()> &start)
    {
        return pausesDuring(page, [&] {
            Batch *batch = start();
            const bool hasEnded =
                batch && QTest::qWaitFor([batch] { return !batch->isRunning(); }, longestBatch);
            if (!hasEnded)
                qWarning("a batch did not end: %d of %d devices%s", batch ? batch->done() : 0,
                         batch ? batch->total() : 0, batch && batch->isPaused() ? ", held" : "");
        });
    }

    /// The pauses while the configuration page logs in to a device and reads its settings.
    [[nodiscard]] Pauses pausesOfLogin(const QString &ipport)
    {
        return pausesDuring(configurationPage, [&] {
            const QSignalSpy loggedIn(&factory(), &CDeviceFactory::signalHighLevelLoginRet);
            QObject *page = window()->findChild<QObject *>("pageDeviceConfig");
            const bool isAsked = page && QMetaObject::invokeMethod(page, "choose", Q_ARG(QVariant, ipport));
            if (!isAsked || !QTest::qWaitFor([&] { return !loggedIn.isEmpty(); }, longestBatch))
                qWarning("the login did not end");
        });
    }

    /// Closes the lists and messages that a page opens before and after a batch. They are painted with each
    /// frame, which doubles the time of a frame without a graphics card.
    void closePopups() const
    {
        const QList<QObject *> objects = window()->findChildren<QObject *>();
        for (QObject *object : objects) {
            if (object->inherits("QQuickPopup") && object->property("visible").toBool())
                QMetaObject::invokeMethod(object, "close");
        }
    }

private:
    /// `work` blocks until it has ended, and processes events meanwhile. Then the window is painted for the
    /// same time on the same page without work, with the message that the work has left open.
    [[nodiscard]] Pauses pausesDuring(int page, const std::function<void()> &work)
    {
        window()->setProperty("currentTab", page);
        closePopups();
        QTest::qWait(settlingTime);
        QElapsedTimer duration;
        duration.start();
        const QList<double> meanwhile = painted(work);
        const int time = static_cast<int>(duration.elapsed()) - settlingTime;
        QTest::qWait(settlingTime);
        return {.during = meanwhile, .without = painted([time] { QTest::qWait(time); })};
    }

    /// Milliseconds between the frames that are painted during `work` and until the page has settled, in
    /// ascending order.
    [[nodiscard]] QList<double> painted(const std::function<void()> &work)
    {
        m_pauses.clear();
        m_sinceFrame.invalidate();
        const auto connection =
            QObject::connect(window(), &QQuickWindow::frameSwapped, window(), [this] { notePainted(); });
        window()->update();
        work();
        QTest::qWait(settlingTime); // the rows are queried again
        QObject::disconnect(connection);
        QList<double> pauses = m_pauses;
        std::sort(pauses.begin(), pauses.end());
        return pauses;
    }

    void notePainted()
    {
        constexpr double nanoseconds = 1e6;
        if (m_sinceFrame.isValid())
            m_pauses.append(static_cast<double>(m_sinceFrame.nsecsElapsed()) / nanoseconds);
        m_sinceFrame.start();
        window()->update();
    }

    static constexpr int settlingTime = 1000; // milliseconds until the page is created and painted

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
    QList<double> m_pauses; ///< milliseconds between frames
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
    const QString templates = QFileInfo(QStringLiteral(CONFIGTOOLS_PROGRAM)).path() + u"/template/"_s;
    if (!workbook.open(templates + CGIConfigManage::templateFileName())) {
        qWarning("%s", qUtf8Printable(workbook.errorText()));
        return {};
    }
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

/// Deletes all rows, so that devices can be added again.
void deleteRows(const PaintedWindow &window)
{
    QVariantMap rows;
    for (const QString &mac : window.initialised())
        rows.insert(mac, true);
    PaintedWindow::factory().setBatchDeleteDevice(family, rows, u"IPV4"_s);
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

/// A small firmware file for every device.
QString writeFirmware(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write("firmware") > 0 ? path : QString();
}

/// The medians of several runs.
QList<BenchmarkResult> resultsOf(const QString &kind, const QList<Pauses> &runs)
{
    using Measure = double (*)(const QList<double> &pauses);
    const auto result = [&](const QString &measured, Measure measure) {
        QList<double> during;
        QList<double> without;
        for (const Pauses &run : runs) {
            during.append(measure(run.during));
            without.append(measure(run.without));
        }
        return BenchmarkResult{.subject = u"%1 between frames: %2"_s.arg(measured, kind),
                               .value = median(during),
                               .unit = u"ms"_s,
                               .budget = 50,
                               .peer = median(without),
                               .largestRatio = {},
                               .peerName = u"no batch"_s};
    };
    return {result(u"longest pause"_s, &longest), result(u"99 % of pauses"_s, &usuallyLongest)};
}

/// Measures each kind of batch several times, on the page that starts it.
class FrameMeasurement
{
public:
    explicit FrameMeasurement(PaintedWindow &window) : m_window(window) {}

    [[nodiscard]] QList<BenchmarkResult> results()
    {
        logins();
        commands();
        snapshotsAndCopies();
        changes();
        upgrades();
        additions();
        return m_results;
    }

private:
    /// `prepare` runs before each measurement.
    void measure(const QString &kind, int page, const std::function<Batch *()> &start, int runs = usualRuns,
                 const std::function<void()> &prepare = {})
    {
        QList<Pauses> pauses;
        for (int run = 0; run < runs; ++run) {
            if (prepare)
                prepare();
            pauses.append(m_window.pauses(page, start));
        }
        m_results += resultsOf(kind, pauses);
    }

    void logins()
    {
        QList<Pauses> dead;
        QList<Pauses> alive;
        for (int run = 0; run < usualRuns; ++run) {
            dead.append(m_window.pausesOfLogin(u"10.250.250.25%1:37777"_s.arg(run)));
            alive.append(m_window.pausesOfLogin(m_window.ipports().at(run)));
        }
        m_results += resultsOf(u"login of a dead device"_s, dead);
        m_results += resultsOf(u"login and reading of a device"_s, alive);
    }

    void commands()
    {
        measure(u"system command"_s, systemPage, [this] {
            return m_window.batches().configureSystem(family, u"videoStandard"_s, u"Standard"_s,
                                                      {{u"videoStandard"_s, 1}}, m_window.ipports());
        });
        measure(u"CGI command"_s, commandPage, [this] {
            return m_window.commands().send(u"Command"_s, m_window.initialised(),
                                            u"/cgi-bin/device?get=type"_s);
        });
        QString workbook;
        measure(
            u"workbook of commands"_s, commandPage, [&] { return runWorkbook(workbook); }, usualRuns,
            [&] { workbook = writeWorkbook(m_folder.filePath(u"commands.xlsx"_s), m_window.ipports()); });
    }

    Batch *runWorkbook(const QString &path)
    {
        CgiWorkbooks &workbooks = *m_window.commands().workbooks();
        QSignalSpy wasRead(&workbooks, &CgiWorkbooks::wasRead);
        workbooks.read(path);
        wasRead.wait(longestBatch);
        if (wasRead.isEmpty())
            return nullptr;
        QStringList lines;
        for (const QVariant &line : wasRead.constFirst().constFirst().toList())
            lines.append(line.toMap().value(u"name"_s).toString());
        m_window.closePopups(); // the page displays the lines before the start
        return workbooks.run(u"Workbook"_s, lines);
    }

    void snapshotsAndCopies()
    {
        m_window.openSession();
        measure(u"snapshots"_s, commandPage, [this] {
            return m_window.batches().takeSnapshots(family, u"Snapshots"_s, m_window.ipports().constFirst(),
                                                    {}, m_folder.path());
        });
        measure(u"copy of encode settings"_s, configurationPage, [this] {
            return m_window.batches().copyEncodeSettings(family, u"Copy"_s, m_window.ipports());
        });
    }

    void changes()
    {
        constexpr int once = 1; // a device is initialised only once
        measure(
            u"first passwords"_s, addressPage,
            [this] {
                return m_window.batches().initialiseDevices(family, u"Passwords"_s, m_window.factoryNew(),
                                                            account, password);
            },
            once);
        QStringList addresses;
        for (qsizetype number = 0; number < m_window.initialised().size(); ++number)
            addresses.append(u"10.1.0.%1"_s.arg(number + 1));
        const auto change = [&] {
            return m_window.batches().changeAddresses(family, u"Addresses"_s, m_window.initialised(),
                                                      addresses, u"255.255.0.0"_s, u"10.1.0.254"_s, false);
        };
        const auto putBack = [this] {
            return m_window.batches().putAddressesBack(m_window.batches().current(), u"Back"_s,
                                                       m_window.initialised());
        };
        QList<Pauses> changed;
        QList<Pauses> back;
        for (int run = 0; run < usualRuns; ++run) {
            changed.append(m_window.pauses(addressPage, change));
            back.append(m_window.pauses(addressPage, putBack));
        }
        m_results += resultsOf(u"addresses"_s, changed);
        m_results += resultsOf(u"addresses put back"_s, back);
    }

    void upgrades()
    {
        constexpr int devices = 12; // each is offline during its reboot
        const QStringList names = m_window.initialised().first(devices);
        measure(
            u"upgrades"_s, upgradePage, [&] { return m_window.upgrading().start(u"Upgrades"_s, names); }, 1,
            [&] {
                const QString path = writeFirmware(m_folder.filePath(u"firmware.bin"_s));
                const QString refusal = m_window.upgrading().chooseFile(names, path);
                if (!refusal.isEmpty())
                    qWarning("the firmware is refused: %s", qUtf8Printable(refusal));
            });
    }

    void additions()
    {
        const auto empty = [this] {
            deleteRows(m_window);
        };
        measure(
            u"favourites"_s, addressPage,
            [this] {
                return m_window.adding().addDevices(u"Favourites"_s, devicesToAdd(m_window.ipports()));
            },
            usualRuns, empty);
        measure(
            u"import of a list"_s, addressPage,
            [this] {
                QSignalSpy began(&m_window.adding(), &AddingBatches::importBegan);
                m_window.adding().importList(u"Import"_s,
                                             writeList(m_folder.filePath(u"list.csv"_s), m_window.ipports()));
                began.wait(longestBatch);
                return m_window.batches().current();
            },
            usualRuns, empty);
    }

    static constexpr int usualRuns = 3;

    PaintedWindow &m_window;
    const QTemporaryDir m_folder;
    QList<BenchmarkResult> m_results;
};

} // namespace

QList<BenchmarkResult> measureBatchFrames()
{
    PaintedWindow window;
    return window.isOpen() ? FrameMeasurement(window).results() : QList<BenchmarkResult>();
}
