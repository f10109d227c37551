#include "benchmarks/measurements.h"

#include <QElapsedTimer>
#include <QProcess>

using namespace Qt::StringLiterals;

namespace {

constexpr int devices = 200;
constexpr int patience = 300000; // milliseconds

/// The peer stores at most 128 responses and crashes on more.
constexpr int peerDevices = 100;

/// Runs a command in the network of a simulated site of `count` devices. Returns its output.
QByteArray inSite(int count, const QStringList &command)
{
    QProcess lab;
    lab.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    lab.start(QStringLiteral(CONFIGTOOLS_LAB_SCRIPT),
              QStringList{u"run"_s, u"fleet"_s, QString::number(count), u"--"_s} + command);
    if (!lab.waitForFinished(patience))
        lab.kill();
    return lab.readAllStandardOutput();
}

/// The number of devices that a client of the distribution lists, and its time.
QString peerText()
{
    const QString count =
        QString::fromLatin1(
            inSite(peerDevices, {u"sh"_s, u"-c"_s,
                                 u"begin=$(date +%s%N); n=$(onvif-util -a 2>/dev/null | grep -c '^[0-9]'); "
                                 "echo \"$n $(( ($(date +%s%N) - begin) / 1000000 ))\""_s}))
            .trimmed();
    return u"onvif-util -a: %1 of %2 devices after %3 ms"_s.arg(count.section(u' ', 0, 0))
        .arg(peerDevices)
        .arg(count.section(u' ', 1));
}

} // namespace

QList<BenchmarkResult> measureDiscovery()
{
    QList<double> rows;
    QList<double> behind;
    QList<double> responses;
    const QByteArrayList lines =
        inSite(devices, {QStringLiteral(CONFIGTOOLS_DISCOVERY_TIME), QString::number(devices)}).split('\n');
    for (const QByteArray &line : lines) {
        const QByteArrayList times = line.split(' ');
        if (times.size() != 2 || times.at(0).toDouble() < 0 || times.at(1).toDouble() < 0)
            continue;
        rows.append(times.at(0).toDouble());
        responses.append(times.at(1).toDouble());
        behind.append(rows.constLast() - responses.constLast());
    }
    if (rows.isEmpty()) {
        qWarning("the devices of the site were not all found");
        return {};
    }
    return {{.subject = u"%1 devices on real sockets to rows (%2)"_s.arg(devices).arg(peerText()),
             .value = median(rows),
             .unit = u"ms"_s,
             .budget = 5000,
             .peer = median(responses),
             .largestRatio = {},
             .peerName = u"responses to a probe"_s},
            {.subject = u"rows after the last response"_s,
             .value = median(behind),
             .unit = u"ms"_s,
             .budget = 1000,
             .peer = {},
             .largestRatio = {},
             .peerName = {}}};
}
