#include "cgi/cgiconfigmanage.h"
#include "sheets/qexcel.h"
#include "tests/tour/driver/commonsteps.h"
#include "tests/tour/driver/rows.h"
#include "tests/tour/steps.h"

#include <QClipboard>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QImage>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QString camera = u"192.168.1.106:8800"_s;

QString responseOf(const Driver &driver, int row)
{
    return Rows(driver, u"cgiTable"_s).value(row, "result").toString();
}

/// Sends a command to the device of the first row and returns its response.
QString send(const Driver &driver, const QString &command)
{
    driver.fill(u"cgiCommand0"_s, command);
    driver.key(Qt::Key_Escape); // closes the suggestions
    driver.click(u"cgiSend0"_s);
    awaitBatchEnd(driver);
    driver.await(u"the response to \"%1\" is shown"_s.arg(command), [&] {
        return Rows(driver, u"cgiTable"_s).value(0, "url") == command && !responseOf(driver, 0).isEmpty();
    });
    awaitBatchEnd(driver);
    return responseOf(driver, 0);
}

/// Reports the window of a response, if it is open, and closes it.
void readResponseWindow(Driver &driver, const QString &step)
{
    const QQuickItem *lines = driver.find(u"cgiResponseLines"_s);
    if (!lines)
        return;
    driver.report(step, u"%1 lines"_s.arg(lines->property("count").toInt()));
    driver.key(Qt::Key_Escape);
    driver.await(u"the window of the response is closed"_s,
                 [&] { return !driver.find(u"cgiResponseLines"_s); });
}

void walkOneDevice(Driver &driver)
{
    driver.fill(u"cgiSearchField"_s, camera.section(u':', 0, 0));
    driver.await(u"only one device is shown"_s, [&] { return Rows(driver, u"cgiTable"_s).count() == 1; });
    const QString all = send(driver, u"/cgi-bin/device?get=all"_s);
    driver.check(all.contains(u"version="_s), u"the device reports its version"_s);
    driver.hover(u"cgiResponse0"_s);
    driver.await(u"the complete response is shown"_s, [&] { return driver.find(u"toolTip"_s) != nullptr; });
    driver.report(u"cgi-response"_s, driver.text(u"toolTip"_s).section(u'\n', 0, 2).replace(u'\n', u' '));
    driver.rightClick(u"cgiResponse0"_s);
    expectToast(driver, translated("PageCGIConfig", "复制成功"));
    driver.check(QGuiApplication::clipboard()->text() == all, u"the response is on the clipboard"_s);

    driver.click(u"cgiResponseOpen0"_s);
    driver.require(u"cgiResponseLines"_s);
    readResponseWindow(driver, u"cgi-response-window"_s);

    const QString refused = send(driver, u"/cgi-bin/nonsense"_s);
    driver.check(refused.startsWith(u"Error:"_s), u"an unknown command is an error"_s);
    driver.fill(u"cgiCommand0"_s, u"cgi-bin/device"_s);
    driver.key(Qt::Key_Return);
    expectToast(driver, translated("CgiSender", "URL格式错误。"));
    driver.report(u"cgi-refused"_s, refused);

    const QString image = send(driver, u"/cgi-bin/snapshot?channel=1"_s);
    driver.check(image.endsWith(u".jpg"_s) && !QImage(image).isNull(), u"an image is saved"_s);
    const QString recording = send(driver, u"/cgi-bin/recording?channel=1&seconds=1"_s);
    driver.check(recording.endsWith(u".dav"_s) && QFileInfo(recording).size() > 0, u"a recording is saved"_s);
    driver.report(u"cgi-files"_s, QFileInfo(image).fileName() + u' ' + QFileInfo(recording).fileName());
    QFile::remove(image);
    QFile::remove(recording);

    driver.fill(u"cgiCommand0"_s, u"/cgi-bin/dev"_s);
    driver.require(u"cgiSuggestion0"_s);
    driver.report(u"cgi-offers"_s, u"commands sent before"_s);
    driver.key(Qt::Key_Down);
    driver.key(Qt::Key_Return);
    driver.check(Rows(driver, u"cgiTable"_s).value(0, "url") == u"/cgi-bin/device?get=all"_s &&
                     responseOf(driver, 0) == recording,
                 u"Enter accepts the suggestion and sends nothing"_s);
    driver.click(u"cgiStarButton"_s);
}

void walkBatch(Driver &driver)
{
    driver.fill(u"cgiSearchField"_s, u"B-2230"_s);
    driver.await(u"only devices of a model are shown"_s,
                 [&] { return Rows(driver, u"cgiTable"_s).count() > 2; });
    driver.click(u"batchCgiButton"_s);
    expectToast(driver, translated("PageCGIConfig", "请选择一台设备。"));
    for (int row = 0; row < 3; ++row)
        driver.click(u"check%1"_s.arg(row));
    driver.click(u"batchCgiButton"_s);
    driver.fill(u"batchCgiCommand"_s, u"/cgi-bin/device?get=name"_s);
    driver.report(u"cgi-batch"_s, u"one command for three devices"_s);
    driver.click(u"okButton"_s);
    driver.require(u"previewTable"_s);
    driver.report(u"cgi-batch-preview"_s, driver.text(u"batchCount"_s));
    driver.click(u"okButton"_s);
    driver.await(u"the end of the batch is reported"_s, [&driver] {
        const char *context = "CgiSender";
        QStringList ends = {QCoreApplication::translate(context, "批量配置CGI命令已完成", nullptr, 3)};
        for (int accepted = 0; accepted < 3; ++accepted)
            ends.append(
                QCoreApplication::translate(context, "批量配置CGI命令已完成：成功 %1，失败 %2", nullptr, 3)
                    .arg(accepted)
                    .arg(3 - accepted));
        const QStringList notices = driver.texts(u"toastText"_s);
        return std::any_of(notices.cbegin(), notices.cend(),
                           [&ends](const QString &text) { return ends.contains(text); });
    });
    awaitBatchEnd(driver);
    readResponseWindow(driver, u"cgi-batch-failures"_s); // open if a device has failed
    int responses = 0;
    for (int row = 0; row < 3; ++row)
        responses += responseOf(driver, row).startsWith(u"name="_s) ? 1 : 0;
    driver.check(responses > 0, u"devices have reported their names"_s);
    driver.report(u"cgi-batch-done"_s, responseOf(driver, 0));

    // A typed command stays in its row when another row becomes the current one.
    driver.click(u"cgiCommand3"_s);
    driver.fill(u"cgiCommand3"_s, u"/cgi-bin/time"_s);
    driver.key(Qt::Key_Escape);
    driver.click(u"cgiCommand1"_s);
    driver.check(Rows(driver, u"cgiTable"_s).value(3, "url") == u"/cgi-bin/time"_s &&
                     Rows(driver, u"cgiTable"_s).value(1, "url") == u"/cgi-bin/device?get=name"_s,
                 u"each row has its command"_s);
}

/// Fills in a copy of the template.
void writeWorkbook(const Driver &driver, const QString &path)
{
    QFile::remove(path);
    driver.check(QFile::copy(CGIConfigManage::getinstance()->templateFile(), path),
                 u"the template is next to the application"_s);
    const QList<QStringList> lines = {
        {u"192.168.1.106"_s, u"8800"_s, u"admin"_s, u"Office-2024"_s, u"/cgi-bin/device?get=version"_s,
         u"0"_s},
        {u"192.168.1.190"_s, u"8800"_s, u"admin"_s, u"Office-2024"_s, u"/cgi-bin/device?get=model"_s, u"0"_s},
        {u"192.168.1.191"_s, u"8800"_s, u"admin"_s, u"wrong"_s, u"/cgi-bin/device?get=model"_s, u"0"_s},
    };
    QExcel workbook;
    bool done = workbook.open(path);
    for (qsizetype line = 0; line < lines.size(); ++line) {
        for (qsizetype cell = 0; cell < lines.at(line).size(); ++cell)
            done = done && workbook.setCellText(int(line) + 2, int(cell) + 1, lines.at(line).at(cell));
    }
    driver.check(done && workbook.save(), u"the workbook is filled in"_s);
}

void walkWorkbook(Driver &driver, const QString &folder)
{
    QDir().mkpath(folder);
    const QString path = folder + u"/commands.xlsx"_s;
    writeWorkbook(driver, path);
    driver.click(u"workbookCgiButton"_s);
    driver.acceptFileBox(path);
    driver.require(u"previewTable"_s);
    driver.report(u"cgi-workbook"_s, driver.text(u"batchCount"_s));
    driver.click(u"okButton"_s);
    const QString question = translated("CgiWorkbook", "即将执行文件中的CGI命令，执行结果将记录在文件中");
    driver.await(u"the workbook is run"_s,
                 [&] { return driver.find(u"messageText"_s) && driver.text(u"messageText"_s) != question; });
    driver.report(u"cgi-workbook-done"_s, driver.text(u"messageText"_s).replace(u'\n', u' '));
    driver.click(u"okButton"_s);

    QExcel workbook;
    driver.check(workbook.open(path), u"the workbook opens again"_s);
    constexpr int resultColumn = 7;
    driver.check(workbook.cellText(2, resultColumn).value_or(QString()).startsWith(u"version="_s) &&
                     workbook.cellText(3, resultColumn).value_or(QString()).startsWith(u"model="_s) &&
                     workbook.cellText(4, resultColumn).value_or(QString()).startsWith(u"Error:"_s),
                 u"each row has its result"_s);
}

} // namespace

void walkCommands(Driver &driver, const QString &folder)
{
    driver.click(u"tab4"_s);
    driver.require(u"cgiTable"_s);
    driver.report(u"cgi"_s, u"%1 devices"_s.arg(Rows(driver, u"cgiTable"_s).count()));
    walkOneDevice(driver);
    walkBatch(driver);
    walkWorkbook(driver, folder);
    driver.fill(u"cgiSearchField"_s, QString());
    driver.click(u"tab0"_s);
}
