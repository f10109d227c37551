#include "sheets/internal/emptyworkbook.h"

#include <QFile>
#include <QTemporaryDir>

#include <xlsxwriter.h>

namespace sheets {

namespace {

/// Ends with an error when the file could not be written.
lxw_error writeWorkbook(const QString &path, QByteArray folder)
{
    lxw_workbook_options options = {};
    options.tmpdir = folder.data();
    lxw_workbook *workbook = workbook_new_opt(QFile::encodeName(path).constData(), &options);
    if (!workbook)
        return LXW_ERROR_CREATING_XLSX_FILE;
    const bool hasSheet = workbook_add_worksheet(workbook, nullptr);
    const lxw_error closing = workbook_close(workbook); // frees the workbook in any case
    return hasSheet ? closing : LXW_ERROR_MEMORY_MALLOC_FAILED;
}

} // namespace

QByteArray emptyWorkbook(QString &reason)
{
    // The library writes to a path only.
    const QTemporaryDir folder;
    if (!folder.isValid()) {
        reason = folder.errorString();
        return {};
    }
    QFile written(folder.filePath(QStringLiteral("workbook.xlsx")));
    const lxw_error error = writeWorkbook(written.fileName(), QFile::encodeName(folder.path()));
    if (error != LXW_NO_ERROR) {
        reason = QString::fromUtf8(lxw_strerror(error));
        return {};
    }
    QByteArray file;
    if (written.open(QIODevice::ReadOnly))
        file = written.readAll();
    if (file.isEmpty())
        reason = written.errorString();
    return file;
}

} // namespace sheets
