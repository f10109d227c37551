#include "tests/tour/driver/commonsteps.h"
#include "tests/tour/driver/openedaddresses.h"
#include "tests/tour/driver/rows.h"
#include "tests/tour/steps.h"

#include <QClipboard>
#include <QGuiApplication>

using namespace Qt::StringLiterals;

namespace {

void expectMessage(const Driver &driver, const char *context, const char *message)
{
    expectToast(driver, translated(context, message));
}

void untickAll(const Driver &driver)
{
    const Rows rows(driver);
    while (rows.countOf("checked", true) > 0)
        driver.click(u"checkAllBox"_s);
}

/// Types a password twice and presses "OK".
void offerPassword(const Driver &driver, const QString &password, const QString &confirmation)
{
    driver.fill(u"firstPasswordField"_s, password);
    driver.fill(u"confirmationField"_s, confirmation);
    driver.click(u"okButton"_s);
}

/// The number of devices in the preview that get a first password.
int offered(const Driver &driver)
{
    const auto *preview = driver.require(u"initialiseTable"_s)->property("model").value<QObject *>();
    return preview->property("deviceCount").toInt();
}

void walkFirstPasswords(Driver &driver)
{
    const Rows rows(driver);
    driver.click(u"initialiseButton"_s);
    expectMessage(driver, "ModifyIPBatches", "请选择一台未初始化的设备");
    driver.click(u"checkAllBox"_s);
    driver.click(u"initialiseButton"_s);
    driver.await(u"the factory-new devices are listed"_s,
                 [&] { return driver.find(u"initialiseTable"_s) && offered(driver) == 3; });
    driver.report(u"initialise"_s, u"three devices to be initialised"_s);
    driver.click(u"okButton"_s);
    driver.report(u"first-password"_s, driver.text(u"uninitialisedCount"_s));

    offerPassword(driver, u"abcdefgh"_s, u"abcdefgh"_s);
    expectMessage(driver, "FirstPasswordDialog",
                  "请至少包含数字、字母和常用字符中的两种，且不能存在非法字符。");
    driver.report(u"first-password-weak"_s, u"a weak password is refused"_s);
    offerPassword(driver, u"tour2024"_s, u"tour2025"_s);
    expectMessage(driver, "FirstPasswordDialog", "请输入相同的密码");
    driver.report(u"first-password-differs"_s, u"medium strength, different confirmation"_s);
    offerPassword(driver, u"Ab1!"_s, u"Ab1!"_s);
    expectMessage(driver, "FirstPasswordDialog", "密码长度应当在8到32个字符范围内");
    driver.report(u"first-password-short"_s, u"strong, but too short"_s);
    offerPassword(driver, u"Tour-2024"_s, u"Tour-2024"_s);
    driver.awaitGone(u"firstPasswordField"_s);
    driver.await(u"three results are shown"_s, [&] { return rows.countOf("res", 0) == 3; });
    driver.await(u"the rows show the new state without a search"_s,
                 [&] { return rows.countOf("state", false) == 0; });
    driver.report(u"initialised"_s, u"three devices are initialised"_s);

    // The address can be changed immediately.
    driver.key(Qt::Key_F, Qt::ControlModifier);
    driver.type(u"192.168.1.110"_s);
    driver.await(u"only one row is shown"_s, [&] { return rows.count() == 1; });
    driver.click(u"edit0"_s);
    driver.fill(u"newStartField"_s, u"192.168.1.111"_s);
    driver.key(Qt::Key_Return);
    driver.await(u"the row is no longer found by its old address"_s,
                 [&] { return rows.count() == 0 && !isBatchRunning(driver); });
    driver.click(u"emptyActionButton"_s);
    driver.await(u"a device has another address right after its first password"_s, [&] {
        const int row = rows.rowOf("ipport", u"192.168.1.111:8800"_s);
        return row >= 0 && rows.value(row, "res").toInt() == 0;
    });
    searchAgain(driver);
    driver.check(rows.countOf("state", false) == 0, u"the next search finds no factory-new device"_s);
}

void walkBatchAcrossOctet(Driver &driver)
{
    const Rows rows(driver);
    untickAll(driver);
    driver.click(u"batchModifyButton"_s);
    expectMessage(driver, "ModifyIPBatches", "请选择一台设备");
    QStringList macs;
    for (int row = 0; row < 3; ++row) {
        driver.click(u"check%1"_s.arg(row));
        macs.append(rows.value(row, "mac").toString());
    }
    driver.click(u"batchModifyButton"_s);
    driver.report(u"modify-batch"_s, driver.text(u"batchCount"_s));
    driver.click(u"okButton"_s);
    expectMessage(driver, "ModifyIPDialog", "请输入正确的起始IP");
    driver.report(u"modify-batch-refused"_s, u"no start address"_s);
    driver.fill(u"newStartField"_s, u"192.168.1.254"_s);
    driver.check(driver.text(u"newGatewayField"_s) == QLatin1String("192.168.1.1"),
                 u"the gateway follows the address"_s);
    driver.require(u"planTable"_s);
    driver.report(u"modify-batch-plan"_s, u"%1 addresses are marked"_s.arg(driver.text(u"planWarning"_s)));
    driver.click(u"okButton"_s);
    driver.require(u"messageText"_s);
    driver.report(u"modify-batch-warned"_s, driver.text(u"messageText"_s));
    driver.click(u"okButton"_s);
    driver.await(u"three results are shown"_s, [&] { return rows.countOf("res", 0) == 3; });
    driver.report(u"modified-batch"_s, u"three devices have new addresses"_s);

    searchAgain(driver);
    const QStringList expected = {u"192.168.1.254"_s, u"192.168.1.255"_s, u"192.168.2.0"_s};
    for (int index = 0; index < 3; ++index) {
        const QString found = rows.value(rows.rowOf("mac", macs.at(index)), "ipport").toString();
        driver.check(found.section(QLatin1Char(':'), 0, 0) == expected.at(index),
                     u"the device responds at %1 (%2)"_s.arg(expected.at(index), found));
    }
}

void walkCollision(Driver &driver)
{
    const Rows rows(driver);
    untickAll(driver);
    const int before = rows.countOf("conflict", true);
    driver.click(u"check6"_s);
    driver.click(u"check5"_s);
    driver.click(u"batchModifyButton"_s);
    driver.fill(u"newStartField"_s, u"192.168.1.230"_s);
    driver.click(u"sameAddressBox"_s);
    driver.require(u"planTable"_s);
    driver.report(u"modify-same-plan"_s, u"two devices with one address"_s);
    driver.click(u"okButton"_s);
    driver.require(u"messageText"_s);
    driver.click(u"okButton"_s);
    driver.await(u"the two rows are in conflict"_s,
                 [&] { return rows.countOf("conflict", true) == before + 2; });
    driver.report(u"collided"_s, u"two more rows are marked"_s);
}

void walkSingle(Driver &driver)
{
    const Rows rows(driver);
    untickAll(driver);
    const QString mac = rows.value(0, "mac").toString();
    driver.click(u"edit0"_s);
    driver.report(u"modify-one"_s, u"one device"_s);
    driver.fill(u"newStartField"_s, u"192.168.1.231"_s);
    driver.fill(u"newMaskField"_s, u"255.0.255.0"_s);
    driver.click(u"okButton"_s);
    expectMessage(driver, "ModifyIPDialog", "请输入正确的子网掩码");
    driver.click(u"dhcpButton"_s);
    driver.report(u"modify-dhcp"_s, u"DHCP needs no address"_s);
    driver.click(u"staticButton"_s);
    driver.fill(u"newMaskField"_s, u"255.255.255.0"_s);
    driver.fill(u"newStartField"_s, rows.value(1, "ipport").toString().section(QLatin1Char(':'), 0, 0));
    driver.fill(u"newGatewayField"_s, u"10.0.0.1"_s);
    driver.click(u"okButton"_s);
    driver.await(u"both warnings are shown, and the other device is named"_s, [&] {
        const QStringList warnings = driver.texts(u"fieldMessage"_s);
        return warnings.size() == 2 && warnings.first().contains(rows.value(1, "mac").toString());
    });
    driver.report(u"modify-warned"_s, driver.text(u"fieldMessage"_s));
    driver.fill(u"newStartField"_s, u"192.168.1.231"_s);
    driver.fill(u"newGatewayField"_s, u"10.0.0.1"_s); // the gateway has followed the address
    driver.click(u"okButton"_s);
    driver.await(u"a different warning asks for confirmation again"_s, [&] {
        return driver.texts(u"fieldMessage"_s).size() == 1 &&
               driver.text(u"okButton"_s) == QCoreApplication::translate("ModifyIPDialog", "仍然修改");
    });
    driver.click(u"okButton"_s);
    driver.await(u"the row has the new address"_s, [&] {
        return rows.value(rows.rowOf("mac", mac), "ipport")
            .toString()
            .startsWith(QLatin1String("192.168.1.231:"));
    });
}

void walkDetails(Driver &driver)
{
    const Rows rows(driver);
    driver.click(u"detail1"_s);
    driver.report(u"detail"_s, u"the details of a device"_s);
    driver.click(u"okButton"_s);
    driver.check(QGuiApplication::clipboard()->text().contains(rows.value(1, "mac").toString()),
                 u"the details can be copied"_s);
    driver.key(Qt::Key_Escape);
    driver.awaitGone(u"detailList"_s);

    const OpenedAddresses pages(u"http"_s);
    driver.click(u"web1"_s);
    const QString address = rows.value(1, "ipport").toString().section(QLatin1Char(':'), 0, 0);
    driver.check(pages.last().toString().startsWith(QLatin1String("http://") + address),
                 u"the web page is opened: %1"_s.arg(pages.last().toString()));
}

void walkDeleting(Driver &driver)
{
    const Rows rows(driver);
    untickAll(driver);
    const int before = rows.count();
    driver.click(u"check0"_s);
    driver.click(u"check2"_s);
    driver.click(u"deleteButton"_s);
    driver.report(u"delete"_s, driver.text(u"messageText"_s));
    driver.click(u"cancelButton"_s);
    driver.check(rows.count() == before, u"nothing is deleted without confirmation"_s);
    driver.click(u"deleteButton"_s);
    driver.click(u"okButton"_s);
    driver.await(u"two rows are removed"_s, [&] { return rows.count() == before - 2; });
    driver.report(u"deleted"_s, u"%1 devices are left"_s.arg(rows.count()));
}

} // namespace

void walkDevices(Driver &driver)
{
    walkFirstPasswords(driver);
    walkBatchAcrossOctet(driver);
    walkCollision(driver);
    walkSingle(driver);
    walkDetails(driver);
    walkDeleting(driver);
}
