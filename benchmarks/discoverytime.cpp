// configtools_discoverytime DEVICES: runs in the network of a simulated site (scripts/lab). Prints, for each
// run, the milliseconds from the start of a search until that many rows are listed, and those from a probe of
// its own until that many devices have answered it.
#include "app/shell.h"
#include "device/registry/devicefactory.h"
#include "sdk/onvif/discovery/discoverysockets.h"
#include "sdk/onvif/discovery/probemessage.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QSet>
#include <QSignalSpy>
#include <QTest>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

constexpr int runs = 3;
constexpr int patience = 30000; // milliseconds
const QString family = u"dh"_s;

/// -1 when they do not all come.
qint64 timeToRows(qsizetype devices)
{
    CDeviceFactory &factory = *CDeviceFactory::getinstance();
    QSignalSpy done(&factory, &CDeviceFactory::signalSearchDone);
    QElapsedTimer timer;
    timer.start();
    factory.startSearch(family);
    // The rows of the search before it go first, on the thread of the search.
    const auto rows = [&] {
        return factory.filterData(family, u"nofilter"_s).size();
    };
    const bool areListed = QTest::qWaitFor([&] { return rows() < devices; }, patience) &&
                           QTest::qWaitFor([&] { return rows() >= devices; }, patience);
    const qint64 time = timer.elapsed();
    if (done.isEmpty())
        done.wait(patience); // the next search begins with an empty list
    return areListed ? time : -1;
}

/// The same of answers to a probe, without anything that is done with them.
qint64 timeToAnswers(qsizetype devices)
{
    sdk::onvif::DiscoverySockets sockets;
    sockets.open();
    QSet<QString> senders;
    QElapsedTimer timer;
    timer.start();
    sockets.sendToGroups(sdk::onvif::probeMessage(sdk::onvif::ProbeKind::Transmitters));
    while (senders.size() < devices && timer.elapsed() < patience) {
        constexpr int pause = 100;
        sockets.receive(pause,
                        [&](std::string_view, const sdk::onvif::SocketAddress &sender, const std::string &) {
                            const QString address = QString::fromStdString(sdk::onvif::addressText(sender));
                            if (!address.contains(u':')) // a device answers from both of its addresses
                                senders.insert(address);
                        });
    }
    return senders.size() >= devices ? timer.elapsed() : -1;
}

} // namespace

int main(int argc, char *argv[])
{
    Shell::prepareApplication();
    const QApplication application(argc, argv);
    const qsizetype devices = QApplication::arguments().value(1).toInt();
    Shell shell(CommandLine::parse({u"ConfigTools"_s}));
    if (devices < 1 || shell.begin())
        return 2;
    QSignalSpy first(CDeviceFactory::getinstance(), &CDeviceFactory::signalSearchDone);
    if (!first.wait(patience)) // of the window's own search
        return 1;
    for (int run = 0; run < runs; ++run) {
        const qint64 answers = timeToAnswers(devices);
        std::printf("%lld %lld\n", timeToRows(devices), answers);
    }
    return 0;
}
