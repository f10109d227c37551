#include "benchmarks/measurements.h"

#include "app/shell.h"
#include "device/models/devicetablemodel.h"
#include "device/registry/devicefactory.h"

#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QQmlApplicationEngine>
#include <QQmlComponent>
#include <QQmlContext>
#include <QQuickItem>
#include <QQuickWindow>
#include <QSignalSpy>
#include <QTest>

#include <limits>
#include <optional>

namespace {

constexpr int runs = 7;

/// Milliseconds from the start of a process to its first frame; nullopt if it ends or hangs before.
std::optional<double> timeToFirstFrame(const QString &program, const QStringList &arguments)
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("QT_LOGGING_RULES"), QStringLiteral("configtools.app.debug=true"));
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(QFileInfo(program).path());
    process.setReadChannel(QProcess::StandardError);
    QElapsedTimer timer;
    timer.start();
    process.start(program, arguments);
    QByteArray output;
    while (!output.contains("first frame") && process.waitForReadyRead(20000))
        output += process.readAllStandardError();
    const std::optional<double> time =
        output.contains("first frame") ? std::optional(static_cast<double>(timer.elapsed())) : std::nullopt;
    process.kill();
    process.waitForFinished();
    return time;
}

} // namespace

double residentMegabytes(qint64 process)
{
    QFile status(QStringLiteral("/proc/%1/status").arg(process));
    if (!status.open(QFile::ReadOnly))
        return 0;
    for (const QByteArray &line : status.readAll().split('\n')) {
        if (line.startsWith("VmRSS:"))
            return line.simplified().split(' ').value(1).toDouble() / 1024;
    }
    return 0;
}

namespace {

QQuickItem *itemNamed(QQuickItem *item, const QString &name)
{
    if (item->objectName() == name)
        return item;
    const QList<QQuickItem *> children = item->childItems();
    for (QQuickItem *child : children) {
        if (QQuickItem *found = itemNamed(child, name))
            return found;
    }
    return nullptr;
}

void awaitFrame(QQuickWindow *window)
{
    QSignalSpy swapped(window, &QQuickWindow::frameSwapped);
    window->update();
    swapped.wait();
}

/// The table model of Qt, filled with the rows of the factory.
const char *const qtModel = R"(
import QtQuick
import Qt.labs.qmlmodels
TableModel {
    function refresh() { rows = CDeviceFactoryApi.filterData("dh", "nofilter") }
    TableModelColumn { display: "checked" }
    TableModelColumn { display: "num" }
    TableModelColumn { display: "state" }
    TableModelColumn { display: "name" }
    TableModelColumn { display: "type" }
    TableModelColumn { display: "model" }
    TableModelColumn { display: "ipport" }
    TableModelColumn { display: "mac" }
    TableModelColumn { display: "vision" }
    TableModelColumn { display: "res" }
    TableModelColumn { display: "operate" }
})";

} // namespace

BenchmarkResult measureStart()
{
    const QString subject = QStringLiteral("start to first painted main window");
    constexpr double budget = 1000;
    QList<double> own;
    QList<double> empty;
    for (int run = 0; run < runs; ++run) { // alternating, so that both have the same background load
        const auto ownTime =
            timeToFirstFrame(QStringLiteral(CONFIGTOOLS_PROGRAM), {QStringLiteral("--demo")});
        const auto emptyTime = timeToFirstFrame(QStringLiteral(CONFIGTOOLS_EMPTY_WINDOW), {});
        if (!ownTime || !emptyTime) {
            qWarning("a window has not painted a frame");
            return {.subject = subject,
                    .value = std::numeric_limits<double>::infinity(),
                    .unit = QStringLiteral("ms"),
                    .budget = budget,
                    .peer = {},
                    .largestRatio = {},
                    .peerName = {}};
        }
        own.append(*ownTime);
        empty.append(*emptyTime);
    }
    return {.subject = subject,
            .value = median(own),
            .unit = QStringLiteral("ms"),
            .budget = budget,
            .peer = median(empty),
            .largestRatio = 2,
            .peerName = QStringLiteral("an empty window")};
}

BenchmarkResult measureDevicePage()
{
    Shell shell(CommandLine::parse({QStringLiteral("ConfigTools"), QStringLiteral("--demo=fleet:10000")}));
    if (shell.begin())
        return {};
    QSignalSpy done(CDeviceFactory::getinstance(), &CDeviceFactory::signalSearchDone);
    done.wait(60000);

    auto *window = qobject_cast<QQuickWindow *>(shell.engine()->rootObjects().value(0));
    QQuickItem *table = itemNamed(window->contentItem(), QStringLiteral("deviceTable"));
    auto *model = table->property("model").value<DeviceTableModel *>();
    const auto refreshed = [&] {
        model->toggleSort(QStringLiteral("ipport")); // every row moves
        awaitFrame(window);
    };
    const double own = medianMilliseconds(runs, refreshed);

    QQmlComponent component(shell.engine());
    component.setData(qtModel, QUrl());
    const std::unique_ptr<QObject> qtTable(component.create());
    double peer = 0;
    if (qtTable) {
        peer = medianMilliseconds(3, [&] {
            QMetaObject::invokeMethod(qtTable.get(), "refresh");
            awaitFrame(window);
        });
    }
    return {.subject = QStringLiteral("page refresh with %1 rows").arg(model->rowCount()),
            .value = own,
            .unit = QStringLiteral("ms"),
            .budget = 400,
            .peer = peer > 0 ? std::optional(peer) : std::nullopt,
            .largestRatio = {},
            .peerName = QStringLiteral("Qt's TableModel")};
}

BenchmarkResult measureMemory()
{
    QProcess program;
    program.setWorkingDirectory(QFileInfo(QStringLiteral(CONFIGTOOLS_PROGRAM)).path());
    program.start(QStringLiteral(CONFIGTOOLS_PROGRAM), {QStringLiteral("--demo=fleet:10000")});
    constexpr int searchAndRest = 9000;
    program.waitForFinished(
        searchAndRest); // always times out: the application keeps running after the search
    const double memory = residentMegabytes(program.processId());
    program.kill();
    program.waitForFinished();
    return {.subject = QStringLiteral("memory of the application with 10,000 rows"),
            .value = memory,
            .unit = QStringLiteral("MB"),
            .budget = 250,
            .peer = {},
            .largestRatio = {},
            .peerName = {}};
}
