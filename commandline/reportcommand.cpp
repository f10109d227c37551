#include "commandline/batchrun.h"
#include "commandline/commandfunctions.h"
#include "commandline/devicechoice.h"
#include "commandline/interruption.h"
#include "commandline/outputfolder.h"
#include "commandline/visitfile.h"
#include "report/reporttexts.h"
#include "report/sitereport.h"

#include <QEventLoop>

using namespace Qt::StringLiterals;

namespace commandline {

namespace {

/// Sets the wanted files from "--files". Returns false for an unknown kind.
bool readKinds(const Arguments &arguments, ReportOrder &order)
{
    const QStringList kinds = arguments.value("files"_L1, u"pdf,xlsx"_s).split(u',', Qt::SkipEmptyParts);
    order.wantsDocument = kinds.contains("pdf"_L1);
    order.wantsWorkbook = kinds.contains("xlsx"_L1);
    return !kinds.isEmpty() && kinds.count("pdf"_L1) + kinds.count("xlsx"_L1) == kinds.size();
}

QString findingsOf(const SiteData &data, const QString &identity)
{
    QStringList texts;
    for (const Finding &finding : data.findings) {
        if (data.devices.at(finding.device).identity == identity)
            texts.append(ReportTexts::finding(finding));
    }
    return texts.join(u"; "_s);
}

} // namespace

int runReport(CommandContext &context)
{
    ReportOrder order;
    if (!readKinds(context.arguments, order))
        return context.fail(UsageError, u"--files is pdf, xlsx or pdf,xlsx"_s);
    order.site = context.arguments.value("name"_L1, u"Site"_s);
    order.installer = context.arguments.value("installer"_L1);
    VisitFile visit(context.arguments.value("visit"_L1));
    if (!visit.read())
        return context.fail(UsageError, visit.error());
    if (const int exitCode = setAccount(context); exitCode != AllDone)
        return exitCode;
    const OutputFolder folder = outputFolder(context);
    if (!folder.error.isEmpty())
        return context.fail(NothingDone, folder.error);
    if (const QString problem = SiteReport::folderProblem(folder.path); !problem.isEmpty())
        return context.fail(NothingDone, problem);
    order.folder = folder.path;
    DeviceChoice choice;
    if (const int exitCode = findDevices(context, choice); exitCode != AllDone)
        return exitCode;
    order.identities = choice.identities();

    VisitChanges changes(context.factory, context.batches, VisitChanges::ImagesBefore::None);
    changes.addEarlier(visit.changes());
    SiteReport report(context.factory, context.batches, &changes);
    QEventLoop loop;
    QStringList written;
    QString failure;
    QObject::connect(&report, &SiteReport::finished, &loop,
                     [&](const QStringList &paths, const QString &reason) {
                         written = paths;
                         failure = reason;
                         loop.quit();
                     });
    // The files are written after the batch: a signal must not leave one of them, or the images.
    Interruption interruption([&] {
        if (report.isWriting())
            context.terminal.writeError(u"Stopping; the report is not written. A further signal ends the "
                                        "program immediately."_s);
        report.stop();
    });
    ResultTable results({u"findings"_s});
    const int exitCode = runBatch(
        context, [&] { return report.start(order); }, results,
        [&](const BatchDevice &device) { return QVariantList{findingsOf(report.data(), device.identity)}; });
    if (exitCode != AllDone)
        return exitCode;
    if (report.isRunning())
        loop.exec();
    for (const QString &path : std::as_const(written))
        context.terminal.writeProgress(u"Written: "_s + path);
    results.addMissing(choice.missing);
    const int outcome = results.print(context);
    if (!failure.isEmpty())
        return context.fail(SomeFailed, failure);
    return written.isEmpty() ? context.fail(SomeFailed, u"No report was written."_s) : outcome;
}

} // namespace commandline
