// Measures the application, compares the results with their budgets and prints a table. This is not a test:
// times depend on the host.
//
//   configtools_bench [SUBJECT...]     all subjects, or only the named ones
//
// Exit code: 0, 2 for an unknown subject, 3 if a result is over its budget.
#include "app/shell.h"
#include "benchmarks/measurements.h"
#include "benchmarks/numberedstream.h"

#include <QApplication>

#include <cstdio>

namespace {

struct Subject
{
    QString name;
    std::function<QList<BenchmarkResult>()> measure;
};

QList<BenchmarkResult> measureNineStreams()
{
    const NumberedStream stream;
    if (!stream.isValid()) {
        qWarning("a live stream cannot be created on this host");
        return {};
    }
    return measureLivePorts(stream) + measureLiveWindow(stream);
}

QList<Subject> subjects()
{
    return {{QStringLiteral("lists"), measureDeviceLists},
            {QStringLiteral("files"), measureDeviceFiles},
            {QStringLiteral("encode"),
             [] {
                 return QList<BenchmarkResult>{measureEncodePage()};
             }},
            {QStringLiteral("cgi"),
             [] {
                 return QList<BenchmarkResult>{measureCgiRequests()};
             }},
            {QStringLiteral("batch"),
             [] {
                 return measureBatches() + measureBatchFrames();
             }},
            {QStringLiteral("decoding"), measureDecoding},
            {QStringLiteral("discovery"), measureDiscovery},
            {QStringLiteral("live"),
             [] {
                 return measureLiveView() + measureRtspStream();
             }},
            {QStringLiteral("nine"), measureNineStreams},
            {QStringLiteral("flood"), measureFlood},
            {QStringLiteral("start"),
             [] {
                 return QList<BenchmarkResult>{measureStart()};
             }},
            {QStringLiteral("memory"),
             [] {
                 return QList<BenchmarkResult>{measureMemory()};
             }},
            {QStringLiteral("page"), [] {
                 return QList<BenchmarkResult>{measureDevicePage()};
             }}};
}

} // namespace

int main(int argc, char *argv[])
{
    Shell::prepareApplication();
    const QApplication application(argc, argv);
    const QList<Subject> all = subjects();
    QStringList requested = QApplication::arguments().mid(1);
    QList<BenchmarkResult> results;
    for (const Subject &subject : all) {
        if (requested.isEmpty() || requested.contains(subject.name))
            results.append(subject.measure());
    }
    for (const Subject &subject : all)
        requested.removeAll(subject.name);
    for (const QString &unknown : std::as_const(requested))
        std::fprintf(stderr, "There is no subject \"%s\".\n", qUtf8Printable(unknown));
    const bool isWithin = printResults(results);
    if (!requested.isEmpty())
        return 2;
    return isWithin ? 0 : 3; // 1 is the code of the scripts that start this program
}
