#include "tests/tour/driver/commonsteps.h"
#include "tests/tour/driver/driver.h"
#include "tests/tour/driver/rows.h"
#include "tests/tour/steps.h"

#include <QDir>
#include <QFile>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

void expectMessage(const Driver &driver, const QString &expected)
{
    driver.await(u"the message \"%1\" is shown"_s.arg(expected), [&] {
        const QStringList texts = driver.texts(u"toastText"_s);
        return std::any_of(texts.cbegin(), texts.cend(),
                           [&](const QString &text) { return text.startsWith(expected); });
    });
}

void writeList(Driver &driver, const QString &format, const QString &folder)
{
    driver.click(u"exportButton"_s);
    driver.click(u"format"_s + format);
    driver.report(u"export"_s + format, u"the format is chosen"_s);
    driver.click(u"okButton"_s);
    driver.acceptFileBox(folder);
    expectMessage(driver,
                  translated("ModifyIPFiles", "导出设备成功\n文件路径:") + folder + u"/device"_s + format);
    driver.check(QFile::exists(folder + u"/device"_s + format), u"the list is written"_s);
}

void readList(const Driver &driver, const QString &path)
{
    driver.click(u"importButton"_s);
    driver.acceptFileBox(path);
}

/// Fills the accounts into a CSV list. The device with the MAC `wrongFor` gets a wrong password.
void fillAccounts(const Driver &driver, const QString &path, const QString &wrongFor)
{
    QFile file(path);
    driver.check(file.open(QFile::ReadOnly), u"the list can be read"_s);
    QStringList lines = QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'));
    file.close();
    constexpr int userColumn = 9;
    constexpr int macColumn = 12;
    for (QString &line : lines) {
        QStringList cells = line.split(QLatin1Char(','));
        if (cells.size() <= macColumn || cells.at(macColumn) == QLatin1String("MAC"))
            continue;
        cells[userColumn] = u"admin"_s;
        cells[userColumn + 1] = cells.at(macColumn) == wrongFor ? u"wrong"_s : u"Office-2024"_s;
        line = cells.join(QLatin1Char(','));
    }
    driver.check(file.open(QFile::WriteOnly) && file.write(lines.join(QLatin1Char('\n')).toUtf8()) > 0,
                 u"the list is filled in"_s);
}

void deleteTicked(const Driver &driver)
{
    driver.click(u"deleteButton"_s);
    driver.click(u"okButton"_s);
}

} // namespace

void walkLists(Driver &driver, const QString &folder)
{
    const Rows rows(driver);
    const int before = rows.count();
    while (rows.countOf("checked", true) > 0)
        driver.click(u"checkAllBox"_s);
    // Devices whose address and password no earlier step has changed.
    const QStringList macs = {u"02:1a:c5:00:40:72"_s, u"02:1a:c5:00:40:97"_s, u"02:1a:c5:00:40:bc"_s};
    for (const QString &mac : macs)
        driver.click(u"check%1"_s.arg(rows.rowOf("mac", mac)));
    QDir().mkpath(folder);
    for (const char *format : {".xlsx", ".csv", ".xml"})
        writeList(driver, QString::fromLatin1(format), folder);

    fillAccounts(driver, folder + u"/device.csv"_s, macs.first());
    deleteTicked(driver);
    driver.await(u"three devices are deleted"_s, [&] { return rows.count() == before - 3; });
    readList(driver, folder + u"/device.csv"_s);
    driver.await(u"the failed lines are listed"_s, [&] { return driver.find(u"reportTable"_s) != nullptr; });
    driver.report(u"import-report"_s, driver.text(u"messageText"_s));
    driver.click(u"okButton"_s);
    driver.check(rows.count() == before - 1, u"two of three devices are listed again"_s);
    driver.check(!driver.find(u"retryFailedButton"_s), u"a wrong password is not retried"_s);
    driver.report(u"import-foot"_s, driver.text(u"footWarning"_s));

    QFile noList(folder + u"/no-list.xml"_s);
    driver.check(noList.open(QFile::WriteOnly) && noList.write("<cameras/>") > 0,
                 u"the invalid file is written"_s);
    noList.close();
    readList(driver, noList.fileName());
    expectMessage(driver,
                  translated("ModifyIPImport",
                             "导入失败，可能格式不准确、文件内存在重复的MAC地址设备或者文件已经被打开！"));
    driver.report(u"import-refused"_s, u"an invalid file is refused"_s);
}
