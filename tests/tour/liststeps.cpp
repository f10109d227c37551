#include "tests/tour/driver.h"
#include "tests/tour/rows.h"
#include "tests/tour/steps.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>

#include <algorithm>

namespace {

void expectMessage(const Driver &driver, const QString &expected)
{
    driver.await(QStringLiteral("\"%1\" is said").arg(expected), [&] {
        const QStringList texts = driver.texts(QStringLiteral("toastText"));
        return std::any_of(texts.cbegin(), texts.cend(),
                           [&](const QString &text) { return text.startsWith(expected); });
    });
}

QString translated(const char *message)
{
    return QCoreApplication::translate("ModifyIPFiles", message);
}

void writeList(Driver &driver, const QString &format, const QString &folder)
{
    driver.click(QStringLiteral("exportButton"));
    driver.click(QStringLiteral("format") + format);
    driver.report(QStringLiteral("export") + format, QStringLiteral("the format is chosen"));
    driver.click(QStringLiteral("okButton"));
    driver.answerFileBox(folder);
    expectMessage(driver,
                  translated("导出设备成功\n文件路径:") + folder + QStringLiteral("/device") + format);
    driver.check(QFile::exists(folder + QStringLiteral("/device") + format),
                 QStringLiteral("the list is written"));
}

void readList(const Driver &driver, const QString &path)
{
    driver.click(QStringLiteral("importButton"));
    driver.answerFileBox(path);
}

/// Puts accounts into a list of comma-separated text, as whoever hands it on fills them in.
void fillAccounts(const Driver &driver, const QString &path, const QString &wrongFor)
{
    QFile file(path);
    driver.check(file.open(QFile::ReadOnly), QStringLiteral("the list can be read"));
    QStringList lines = QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'));
    file.close();
    constexpr int userColumn = 9;
    constexpr int macColumn = 12;
    for (QString &line : lines) {
        QStringList cells = line.split(QLatin1Char(','));
        if (cells.size() <= macColumn || cells.at(macColumn) == QLatin1String("MAC"))
            continue;
        cells[userColumn] = QStringLiteral("admin");
        cells[userColumn + 1] =
            cells.at(macColumn) == wrongFor ? QStringLiteral("wrong") : QStringLiteral("Office-2024");
        line = cells.join(QLatin1Char(','));
    }
    driver.check(file.open(QFile::WriteOnly) && file.write(lines.join(QLatin1Char('\n')).toUtf8()) > 0,
                 QStringLiteral("the list is filled in"));
}

void deleteTicked(const Driver &driver)
{
    driver.click(QStringLiteral("deleteButton"));
    driver.click(QStringLiteral("okButton"));
}

} // namespace

void walkLists(Driver &driver, const QString &folder)
{
    const Rows rows(driver);
    const int before = rows.count();
    while (rows.countOf("checked", true) > 0)
        driver.click(QStringLiteral("checkAllBox"));
    // Devices whose address and password nothing has changed before.
    const QStringList macs = {QStringLiteral("02:1a:c5:00:40:72"), QStringLiteral("02:1a:c5:00:40:97"),
                              QStringLiteral("02:1a:c5:00:40:bc")};
    for (const QString &mac : macs)
        driver.click(QStringLiteral("check%1").arg(rows.rowOf("mac", mac)));
    QDir().mkpath(folder);
    for (const char *format : {".xlsx", ".csv", ".xml"})
        writeList(driver, QString::fromLatin1(format), folder);

    fillAccounts(driver, folder + QStringLiteral("/device.csv"), macs.first());
    deleteTicked(driver);
    driver.await(QStringLiteral("three devices are deleted"), [&] { return rows.count() == before - 3; });
    readList(driver, folder + QStringLiteral("/device.csv"));
    driver.await(QStringLiteral("what failed is listed"),
                 [&] { return driver.find(QStringLiteral("reportTable")) != nullptr; });
    driver.report(QStringLiteral("import-report"), driver.text(QStringLiteral("messageText")));
    driver.click(QStringLiteral("okButton"));
    driver.check(rows.count() == before - 1, QStringLiteral("two of three devices are back"));

    QFile noList(folder + QStringLiteral("/no-list.xml"));
    driver.check(noList.open(QFile::WriteOnly) && noList.write("<cameras/>") > 0,
                 QStringLiteral("a file that is no list is written"));
    noList.close();
    readList(driver, noList.fileName());
    expectMessage(driver,
                  translated("导入失败，可能格式不准确、文件内存在重复的MAC地址设备或者文件已经被打开！"));
    driver.report(QStringLiteral("import-refused"), QStringLiteral("a file that is no list is refused"));
}
