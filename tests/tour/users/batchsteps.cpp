#include "sdk/demo/demosite.h"
#include "tests/tour/driver/commonsteps.h"
#include "tests/tour/driver/driver.h"
#include "tests/tour/driver/rows.h"
#include "tests/tour/users/usersteps.h"

#include <QFile>
#include <QHash>
#include <QRegularExpression>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// Stops a batch, and retries the skipped devices in another one.
void walkStopAndRetry(Driver &driver, sdk::demo::DemoSite &site)
{
    const auto asked = [&site] {
        return site.requests().of(u"NetSetDeviceSetting"_s).size();
    };
    site.requests().clear();
    driver.click(u"setTimeByPCButton"_s);
    driver.require(u"previewTable"_s);
    driver.click(u"okButton"_s);
    driver.await(u"some devices have received a request"_s, [&] { return asked() > 0; });
    driver.click(u"stopButton"_s);
    driver.require(u"retryFailedButton"_s);
    driver.check(driver.find(u"footWarning"_s) != nullptr, u"the skipped devices are counted"_s);
    driver.report(u"batch-stopped"_s, driver.text(u"footWarning"_s));
    const int all = QRegularExpression(u"^\\d+"_s).match(driver.text(u"selectedCount"_s)).captured().toInt();
    driver.check(asked() < all, u"not all devices have received a request"_s);
    driver.click(u"retryFailedButton"_s);
    awaitBatchEnd(driver);
    driver.check(!driver.find(u"footWarning"_s) && asked() == all, u"each device has received one request"_s);
    driver.report(u"batch-retried"_s, driver.text(u"selectedCount"_s));
}

void walkSavedResults(Driver &driver, const QString &folder)
{
    const QString path = folder + u"/results.csv"_s;
    driver.click(u"saveResultsButton"_s);
    driver.acceptFileBox(path);
    driver.await(u"the results are saved"_s, [&] {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) && file.readAll().contains("10.16.0.");
    });
}

/// Changes the addresses of two devices and restores them.
void walkPutBack(Driver &driver, const sdk::demo::DemoSite &site)
{
    driver.key(Qt::Key_1, Qt::ControlModifier);
    const Rows rows(driver);
    QHash<QString, QString> before; // addresses by MAC
    for (int row = 0; row < 10 && before.size() < 2; ++row) {
        const QString mac = rows.value(row, "mac").toString();
        const auto device = site.device(mac);
        if (!device || device->dhcp || !rows.value(row, "state").toBool())
            continue;
        before.insert(mac, device->address);
        driver.click(u"check%1"_s.arg(row));
    }
    const auto areBack = [&] {
        return std::all_of(before.keyBegin(), before.keyEnd(), [&](const QString &mac) {
            return site.device(mac)->address == before.value(mac);
        });
    };
    driver.click(u"batchModifyButton"_s);
    driver.fill(u"newStartField"_s, u"10.16.200.10"_s);
    driver.click(u"okButton"_s);
    driver.await(u"the devices have new addresses"_s, [&] { return !areBack(); });
    awaitBatchEnd(driver);
    driver.click(u"batchPanelButton"_s);
    driver.require(u"putBackButton"_s);
    driver.report(u"batch-panel"_s, driver.text(u"batchSummary"_s));
    driver.await(
        u"no notice covers the buttons"_s, [&] { return !driver.find(u"toastText"_s); }, 30);
    driver.click(u"putBackButton"_s);
    driver.require(u"previewTable"_s);
    driver.report(u"batch-put-back-preview"_s, driver.text(u"batchCount"_s));
    driver.click(u"okButton"_s);
    driver.await(u"the devices have their old addresses again"_s, areBack);
    awaitBatchEnd(driver);
    driver.report(u"batch-put-back"_s, driver.text(u"batchSummary"_s));
    driver.click(u"okButton"_s); // closes the panel
}

} // namespace

void walkBatches(Driver &driver, sdk::demo::DemoSite &site, const QString &folder)
{
    walkStopAndRetry(driver, site);
    walkSavedResults(driver, folder);
    walkPutBack(driver, site);
}
