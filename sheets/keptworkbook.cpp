#include "sheets/keptworkbook.h"

#include "sheets/logging.h"
#include "sheets/qexcel.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace {

bool keepIn(const QString &folder, QExcel &workbook, QString &path, const QString &addition)
{
    const QString base =
        folder + QLatin1Char('/') + QFileInfo(path).completeBaseName() + QLatin1Char('_') + addition;
    const QString ending = QStringLiteral(".xlsx");
    constexpr int mostFiles = 1000;
    QString other = base + ending;
    for (int number = 2; QFileInfo::exists(other) && number < mostFiles; ++number)
        other = base + QString::number(number) + ending;
    if (QFileInfo::exists(other) || !workbook.saveAs(other))
        return false;
    path = other;
    return true;
}

} // namespace

bool keepWorkbook(QExcel &workbook, QString &path, const QString &addition)
{
    if (workbook.save())
        return true;
    qCWarning(logSheets).noquote() << "cannot save the workbook:" << workbook.errorText();
    if (keepIn(QFileInfo(path).absolutePath(), workbook, path, addition))
        return true;
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    QDir().mkpath(documents); // it may be missing
    return keepIn(documents, workbook, path, addition);
}
