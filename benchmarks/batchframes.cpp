#include "benchmarks/measurements.h"

#include "app/localconfig.h"
#include "app/shell.h"
#include "cgi/cgibatches.h"
#include "device/batch/batches.h"
#include "device/devicefactory.h"

#include <QElapsedTimer>
#include <QQmlApplicationEngine>
#include <QQmlContext>
#include <QQuickWindow>
#include <QSignalSpy>
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
        window()->setProperty("currentTab", page);
        QTest::qWait(settlingTime);
        m_longest = 0;
        m_sinceFrame.invalidate();
        const auto painted =
            QObject::connect(window(), &QQuickWindow::frameSwapped, window(), [this] { notePainted(); });
        window()->update();
        Batch *batch = start();
        const bool hasEnded = batch && QTest::qWaitFor([batch] { return !batch->isRunning(); }, longestBatch);
        QTest::qWait(settlingTime); // the rows are queried again
        QObject::disconnect(painted);
        if (!hasEnded)
            qWarning("a batch did not end: %d of %d devices%s", batch ? batch->done() : 0,
                     batch ? batch->total() : 0, batch && batch->isHeld() ? ", held" : "");
        constexpr double nanoseconds = 1e6;
        return static_cast<double>(m_longest) / nanoseconds;
    }

private:
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
    const auto measure = [&](const QString &kind, int page, const std::function<Batch *()> &start) {
        figures.append({.subject = u"longest pause between two frames: %1"_s.arg(kind),
                        .value = program.longestPause(page, start),
                        .unit = u"ms"_s,
                        .budget = 50,
                        .peer = {},
                        .largestRatio = {},
                        .peerName = {}});
    };
    measure(u"system command"_s, systemPage, [&] {
        return program.batches().configureSystem(family, u"videoStandard"_s, u"Standard"_s,
                                                 {{u"videoStandard"_s, 1}}, program.ipports());
    });
    measure(u"CGI command"_s, commandPage, [&] {
        return program.commands().send(u"Command"_s, program.initialised(),
                                       u"/cgi-bin/magicBox.cgi?action=getDeviceType"_s);
    });
    program.openSession();
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
    return figures;
}
