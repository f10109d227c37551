#include "report/internal/reportfiles.h"

#include "files/filereplacement.h"
#include "report/reporttexts.h"
#include "report/sitedocument.h"
#include "report/siteworkbook.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTemporaryFile>

namespace {

constexpr qsizetype longestStem = 80;
constexpr qsizetype mostStemBytes = 180; // file systems limit names to 255 bytes

/// The name of the files of a report without their suffix.
QString fileStem(const QString &site, const QDateTime &time)
{
    QString name = site.left(longestStem).simplified();
    for (QChar &character : name) {
        if (character.unicode() < 0x20 || QStringLiteral("/\\:*?\"<>|").contains(character))
            character = u'_';
    }
    while (name.startsWith(u'.'))
        name.remove(0, 1);
    while (!name.isEmpty() && (name.toUtf8().size() > mostStemBytes || name.back().isHighSurrogate()))
        name.chop(1);
    return QStringLiteral("%1-%2").arg(name.isEmpty() ? QStringLiteral("site") : name,
                                       time.toString(QStringLiteral("yyyyMMdd-HHmmss")));
}

/// The pattern of temporary names in the folder of a report.
QString temporaryName(const QString &folder)
{
    return QDir(folder).filePath(QStringLiteral(".report-XXXXXX"));
}

/// One wanted file of a report.
struct WantedFile
{
    QLatin1StringView suffix;
    QString (*save)(const SiteData &data, const QString &path);
    bool ReportFiles::*isMissing;
    QString failure = {};
};

} // namespace

ReportFiles writeReportFiles(const SiteData &data, const ReportOrder &order,
                             const std::atomic<bool> &isCancelled)
{
    QList<WantedFile> files;
    if (order.wantsDocument)
        files.append({QLatin1StringView(".pdf"), &saveSiteDocument, &ReportFiles::lacksDocument});
    if (order.wantsWorkbook)
        files.append({QLatin1StringView(".xlsx"), &saveSiteWorkbook, &ReportFiles::lacksWorkbook});

    const QTemporaryDir temporary(temporaryName(order.folder));
    const QString stem = fileStem(order.site, data.time);
    for (WantedFile &file : files) {
        if (isCancelled)
            return {};
        file.failure = temporary.isValid() ? file.save(data, temporary.filePath(stem + file.suffix))
                                           : temporary.errorString();
    }
    if (isCancelled)
        return {};
    ReportFiles written;
    for (WantedFile &file : files) {
        const QString path = QDir(order.folder).filePath(stem + file.suffix);
        if (file.failure.isEmpty())
            file.failure = renameOver(temporary.filePath(stem + file.suffix), path);
        if (file.failure.isEmpty()) {
            written.paths.append(path);
            continue;
        }
        written.*(file.isMissing) = true;
        written.failures.append(ReportTexts::fileFailed(path, file.failure));
    }
    return written;
}

QString reportFolderProblem(const QString &folder)
{
    if (!QDir().mkpath(folder))
        return ReportTexts::noFolder(folder);
    QTemporaryFile file(temporaryName(folder)); // removed at the end
    return file.open() ? QString() : ReportTexts::fileFailed(folder, file.errorString());
}
