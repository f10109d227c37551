#include "tests/tour/driver/driver.h"
#include "tests/tour/steps.h"

#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

void walkSiteReport(Driver &driver, const QString &folder)
{
    driver.activate();
    driver.key(Qt::Key_R, Qt::ControlModifier);
    driver.await(u"the dialog for the report is open"_s,
                 [&] { return driver.find(u"reportSiteField"_s) != nullptr; });
    driver.fill(u"reportSiteField"_s, u"总部 Head office"_s);
    driver.fill(u"reportInstallerField"_s, u"A. Fitter"_s);
    driver.fill(u"reportFolderField"_s, folder);
    driver.report(u"report-dialog"_s, driver.text(u"reportTickedChoice"_s));
    driver.click(u"okButton"_s);
    driver.await(
        u"the report is complete"_s, [&] { return driver.find(u"reportDone"_s) != nullptr; }, 120);
    driver.report(u"report-result"_s, driver.text(u"reportPath0"_s));
    const QFileInfoList files = QDir(folder).entryInfoList({u"*.pdf"_s, u"*.xlsx"_s}, QDir::Files);
    driver.check(files.size() == 2, u"the PDF file and the workbook are in the folder"_s);
    for (const QFileInfo &file : files)
        driver.check(file.size() > 8192, file.fileName() + u" has contents"_s);
    driver.click(u"cancelButton"_s);
    driver.awaitGone(u"reportDone"_s);
}
