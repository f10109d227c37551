// Writes the files of a site report.
#pragma once

#include "report/reportorder.h"
#include "report/sitedata.h"

#include <atomic>

/// The result of writing the files of a report.
struct ReportFiles
{
    QStringList paths;          ///< of the complete files
    QStringList failures;       ///< a text for each missing file, in the user's language
    bool lacksDocument = false; ///< the document was wanted, but is not written
    bool lacksWorkbook = false; ///< as `lacksDocument`
};

/// Writes the wanted files of a report to a temporary folder in the folder of the report, and renames them
/// when all are complete: an ended process leaves no single file. A failure of one file does not prevent the
/// other one. `isCancelled` may be set on another thread. If it is set before the files are renamed, no file
/// is left and the result is empty; later it has no effect. Any thread.
[[nodiscard]] ReportFiles writeReportFiles(const SiteData &data, const ReportOrder &order,
                                           const std::atomic<bool> &isCancelled);

/// Why no file can be written to a folder, in the user's language; empty if it can. Creates the folder, also
/// its parents, if it is missing.
[[nodiscard]] QString reportFolderProblem(const QString &folder);
