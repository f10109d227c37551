// configtools_discoverytime DEVICES: runs in the network of a simulated site (scripts/lab). Prints two times
// in milliseconds for each run: from the start of a search until that many rows are listed, and from a
// separate probe until that many devices have responded to it.
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

/// The time until all rows are listed; -1 after a timeout.
qint64 timeToRows(qsizetype devices)
{
    CDeviceFactory &factory = *CDeviceFactory::getinstance();
    QSignalSpy done(&factory, &CDeviceFactory::signalSearchDone);
    QElapsedTimer timer;
    timer.start();
    factory.startSearch(family);
    // The search first removes the rows of the previous search, on its thread.
    const auto rows = [&] {
        return factory.filterData(family, u"nofilter"_s).size();
    };
    const bool areListed = QTest::qWaitFor([&] { return rows() < devices; }, patience) &&
                           QTest::qWaitFor([&] { return rows() >= devices; }, patience);
    const qint64 time = timer.elapsed();
    if (done.isEmpty())
        done.wait(patience); // the next search starts with an empty list
    return areListed ? time : -1;
}

/// The time until all devices have responded to a probe; -1 after a timeout. The responses are not processed.
qint64 timeToResponses(qsizetype devices)
{
    sdk::onvif::DiscoverySockets sockets;
    sockets.open();
    QSet<QString> senders;
    QElapsedTimer timer;
    timer.start();
    sockets.sendToGroups(sdk::onvif::probeMessage(sdk::onvif::ProbeKind::Transmitters));
    while (senders.size() < devices && timer.elapsed() < patience) {
        constexpr int pause = 100;
        sockets.receive(
            pause, [&](std::string_view, const sdk::onvif::SocketAddress &sender, const std::string &) {
                const QString address = QString::fromStdString(sdk::onvif::addressText(sender));
                if (!address.contains(u':')) // a device responds from its IPv4 and its IPv6 address
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
    if (!first.wait(patience)) // of the search at the start of the window
        return 1;
    for (int run = 0; run < runs; ++run) {
        const qint64 responses = timeToResponses(devices);
        std::printf("%lld %lld\n", timeToRows(devices), responses);
    }
    return 0;
}
