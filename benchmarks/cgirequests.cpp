#include "benchmarks/apacheserver.h"
#include "benchmarks/measurements.h"

#include "cgi/cgiprocedure.h"
#include "cgi/curltransport.h"

#include <QLoggingCategory>
#include <QProcess>
#include <QTextStream>

namespace {

constexpr int commands = 200;
constexpr int runs = 5;
const QString user = QStringLiteral("admin");
const QString password = QStringLiteral("secret1");

/// Runs one process of the peer, which sends the same requests: each twice, with Digest.
/// Returns false if the program cannot be started.
bool runPeer(const QString &url)
{
    QProcess peer;
    QStringList arguments = {QStringLiteral("--silent"), QStringLiteral("--noproxy"),
                             QStringLiteral("*"),        QStringLiteral("--digest"),
                             QStringLiteral("--user"),   user + QLatin1Char(':') + password};
    for (int request = 0; request < commands * 2; ++request)
        arguments.append({QStringLiteral("--output"), QStringLiteral("/dev/null"), url});
    peer.start(QStringLiteral("curl"), arguments);
    constexpr int patience = 60000;
    return peer.waitForStarted(patience) && peer.waitForFinished(patience);
}

} // namespace

BenchmarkResult measureCgiRequests()
{
    BenchmarkResult result = {.subject = QStringLiteral("%1 commands over HTTP on loopback").arg(commands),
                              .value = 0,
                              .unit = QStringLiteral("ms"),
                              .budget = 1000,
                              .peer = {},
                              .largestRatio = 1.1,
                              .peerName = QStringLiteral("curl")};
    const ApacheServer server(user, password);
    if (!server.failure().isEmpty()) {
        QTextStream(stderr) << server.failure() << '\n';
        return result;
    }
    const QString url = server.url(QStringLiteral("/digest/text?action=read"));
    const CgiSurroundings surroundings = {
        .checkLogin = [](const QString &, const QString &, const QString &) { return 0; },
        .transport = std::make_shared<CurlTransport>(),
        .folder = {},
        .localTime = &QDateTime::currentDateTime};
    const CgiProcedure procedure(surroundings, {});
    // Log lines would be part of the measured time.
    QLoggingCategory::setFilterRules(QStringLiteral("configtools.cgi.debug=false"));
    int failed = 0;
    result.value = medianMilliseconds(runs, [&] {
        for (int command = 0; command < commands; ++command) {
            if (procedure.run(url, user, password, QString()).startsWith(failedResult))
                ++failed;
        }
    });
    QLoggingCategory::setFilterRules({});
    if (failed > 0)
        result.subject += QStringLiteral(" (%1 failed)").arg(failed);
    if (runPeer(url))
        result.peer = medianMilliseconds(runs, [&] { runPeer(url); });
    return result;
}
