#include "sdk/clock.h"
#include "sdk/demo/demosite.h"
#include "site/commandline.h"
#include "site/devicelist.h"
#include "site/siteserver.h"

#include <QCoreApplication>
#include <QDir>
#include <QTextStream>

#include <array>
#include <csignal>

using namespace Qt::StringLiterals;

namespace {

constexpr int usageError = 2;

int fail(const QString &sentence, int code = 1)
{
    QTextStream(stderr) << "ConfigToolsSite: " << sentence << '\n';
    return code;
}

/// Blocks the signals that end the process, in every thread, so that they stay pending for sigtimedwait().
sigset_t blockEndSignals()
{
    sigset_t signals = {};
    sigemptyset(&signals);
    sigaddset(&signals, SIGINT);
    sigaddset(&signals, SIGTERM);
    pthread_sigmask(SIG_BLOCK, &signals, nullptr);
    return signals;
}

/// Keeps the site on the network until a signal arrives.
void serve(site::SiteServer &server, const sigset_t &endSignals)
{
    constexpr std::int64_t nanoseconds = 1000000;
    const timespec pause = {0, static_cast<long>(site::SiteServer::followInterval.count() * nanoseconds)};
    while (sigtimedwait(&endSignals, nullptr, &pause) < 0)
        server.follow();
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const site::CommandLine line = site::CommandLine::parse(QCoreApplication::arguments());
    if (!line.error.isEmpty())
        return fail(line.error + u'\n' + site::CommandLine::usage(), usageError);
    if (line.help) {
        QTextStream(stdout) << site::CommandLine::usage();
        return 0;
    }
    QString error;
    const auto scene = sdk::demo::DemoSite::open(line.scene, std::make_shared<sdk::SystemClock>(), &error);
    if (!scene)
        return fail(error);
    if (line.mostDevices > 0) {
        const QList<sdk::demo::SceneDevice> devices = scene->devices();
        for (const sdk::demo::SceneDevice &device : devices.mid(line.mostDevices))
            scene->removeDevice(device.mac);
    }
    if (line.lists) {
        QTextStream(stdout) << site::deviceList(*scene);
        return 0;
    }
    const QString &folder = line.options.recordFolder;
    if (!folder.isEmpty() && !QDir().mkpath(folder))
        return fail(u"the folder \"%1\" cannot be created"_s.arg(folder));

    const sigset_t endSignals = blockEndSignals();
    site::SiteServer server(*scene, line.options);
    if (!server.start(line.interface, &error))
        return fail(error);
    QTextStream(stdout) << "serving " << server.deviceCount() << " devices\n" << Qt::flush;
    serve(server, endSignals);
    return 0;
}
