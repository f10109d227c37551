// Measures the program against its budgets and prints a table. Not a test: times depend on the machine.
//
//   configtools_bench [SUBJECT...]     everything, or only the subjects that are named
#include "app/shell.h"
#include "benchmarks/measurements.h"
#include "benchmarks/numberedstream.h"

#include <QApplication>

#include <cstdio>

namespace {

struct Subject
{
    QString name;
    std::function<QList<Figure>()> measure;
};

QList<Figure> measureNineStreams()
{
    const NumberedStream stream;
    if (!stream.isMade()) {
        qWarning("a live stream cannot be made here");
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
                 return QList<Figure>{measureEncodePage()};
             }},
            {QStringLiteral("cgi"),
             [] {
                 return QList<Figure>{measureCgiRequests()};
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
                 return QList<Figure>{measureStart()};
             }},
            {QStringLiteral("memory"),
             [] {
                 return QList<Figure>{measureMemory()};
             }},
            {QStringLiteral("page"), [] {
                 return QList<Figure>{measureDevicePage()};
             }}};
}

} // namespace

int main(int argc, char *argv[])
{
    Shell::prepareApplication();
    const QApplication application(argc, argv);
    const QList<Subject> all = subjects();
    QStringList wanted = QApplication::arguments().mid(1);
    QList<Figure> figures;
    for (const Subject &subject : all) {
        if (wanted.isEmpty() || wanted.contains(subject.name))
            figures.append(subject.measure());
    }
    for (const Subject &subject : all)
        wanted.removeAll(subject.name);
    for (const QString &unknown : std::as_const(wanted))
        std::fprintf(stderr, "There is nothing to measure by the name of \"%s\".\n", qUtf8Printable(unknown));
    printFigures(figures);
    return wanted.isEmpty() ? 0 : 2;
}
