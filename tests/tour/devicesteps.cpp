#include "tests/tour/driver.h"
#include "tests/tour/openedaddresses.h"
#include "tests/tour/rows.h"
#include "tests/tour/steps.h"

#include <QClipboard>
#include <QCoreApplication>
#include <QGuiApplication>
#include <QQuickItem>

namespace {

void expectMessage(const Driver &driver, const char *context, const char *message)
{
    const QString expected = QCoreApplication::translate(context, message);
    driver.await(QStringLiteral("\"%1\" is said").arg(expected),
                 [&] { return driver.texts(QStringLiteral("toastText")).contains(expected); });
}

void untickAll(const Driver &driver)
{
    const Rows rows(driver);
    while (rows.countOf("checked", true) > 0)
        driver.click(QStringLiteral("checkAllBox"));
}

void searchAgain(const Driver &driver)
{
    driver.key(Qt::Key_F5);
    driver.await(QStringLiteral("a search runs"),
                 [&] { return driver.window()->property("searching").toBool(); });
    driver.await(
        QStringLiteral("the search ends"), [&] { return !driver.window()->property("searching").toBool(); },
        30);
}

/// Types a password twice and presses "OK".
void offerPassword(const Driver &driver, const QString &password, const QString &confirmation)
{
    driver.fill(QStringLiteral("firstPasswordField"), password);
    driver.fill(QStringLiteral("confirmationField"), confirmation);
    driver.click(QStringLiteral("okButton"));
}

void awaitClosed(const Driver &driver, const QString &name)
{
    driver.await(QStringLiteral("\"%1\" is closed").arg(name), [&] { return !driver.find(name); });
}

void walkFirstPasswords(Driver &driver)
{
    const Rows rows(driver);
    driver.click(QStringLiteral("initialiseButton"));
    expectMessage(driver, "ModifyIPBatches", "请选择一台未初始化的设备");
    driver.click(QStringLiteral("checkAllBox"));
    driver.click(QStringLiteral("initialiseButton"));
    driver.await(QStringLiteral("the factory-new devices are listed"), [&] {
        return driver.find(QStringLiteral("initialiseTable")) &&
               Rows(driver, QStringLiteral("initialiseTable")).count() == 3;
    });
    driver.report(QStringLiteral("initialise"), QStringLiteral("three devices to be initialised"));
    driver.click(QStringLiteral("okButton"));
    driver.report(QStringLiteral("first-password"), driver.text(QStringLiteral("uninitialisedCount")));

    offerPassword(driver, QStringLiteral("abcdefgh"), QStringLiteral("abcdefgh"));
    expectMessage(driver, "FirstPasswordDialog",
                  "请至少包含数字、字母和常用字符中的两种，且不能存在非法字符。");
    driver.report(QStringLiteral("first-password-weak"), QStringLiteral("a weak password is refused"));
    offerPassword(driver, QStringLiteral("tour2024"), QStringLiteral("tour2025"));
    expectMessage(driver, "FirstPasswordDialog", "请输入相同的密码");
    driver.report(QStringLiteral("first-password-differs"),
                  QStringLiteral("of medium strength, and mistyped"));
    offerPassword(driver, QStringLiteral("Ab1!"), QStringLiteral("Ab1!"));
    expectMessage(driver, "FirstPasswordDialog", "密码长度应当在8到32个字符范围内");
    driver.report(QStringLiteral("first-password-short"), QStringLiteral("strong, but too short"));
    offerPassword(driver, QStringLiteral("Tour-2024"), QStringLiteral("Tour-2024"));
    awaitClosed(driver, QStringLiteral("firstPasswordField"));
    driver.await(QStringLiteral("three results are there"), [&] { return rows.countOf("res", 0) == 3; });
    driver.await(QStringLiteral("the rows show the new state without a search"),
                 [&] { return rows.countOf("state", false) == 0; });
    driver.report(QStringLiteral("initialised"), QStringLiteral("three devices are initialised"));

    // The address can be changed at once.
    driver.key(Qt::Key_F, Qt::ControlModifier);
    driver.type(QStringLiteral("192.168.1.110"));
    driver.await(QStringLiteral("one row is left"), [&] { return rows.count() == 1; });
    driver.click(QStringLiteral("edit0"));
    driver.fill(QStringLiteral("newStartField"), QStringLiteral("192.168.1.111"));
    driver.key(Qt::Key_Return);
    driver.await(QStringLiteral("the row is found under its old address no more"),
                 [&] { return rows.count() == 0 && !driver.find(QStringLiteral("runningText")); });
    driver.click(QStringLiteral("emptyActionButton"));
    driver.await(QStringLiteral("a device has another address right after its first password"), [&] {
        const int row = rows.rowOf("ipport", QStringLiteral("192.168.1.111:8800"));
        return row >= 0 && rows.value(row, "res").toInt() == 0;
    });
    searchAgain(driver);
    driver.check(rows.countOf("state", false) == 0,
                 QStringLiteral("the next search finds no factory-new device"));
}

void walkBatchAcrossOctet(Driver &driver)
{
    const Rows rows(driver);
    untickAll(driver);
    driver.click(QStringLiteral("batchModifyButton"));
    expectMessage(driver, "ModifyIPBatches", "请选择一台设备");
    QStringList macs;
    for (int row = 0; row < 3; ++row) {
        driver.click(QStringLiteral("check%1").arg(row));
        macs.append(rows.value(row, "mac").toString());
    }
    driver.click(QStringLiteral("batchModifyButton"));
    driver.report(QStringLiteral("modify-batch"), driver.text(QStringLiteral("batchCount")));
    driver.click(QStringLiteral("okButton"));
    expectMessage(driver, "ModifyIPDialog", "请输入正确的起始IP");
    driver.report(QStringLiteral("modify-batch-refused"), QStringLiteral("no start address"));
    driver.fill(QStringLiteral("newStartField"), QStringLiteral("192.168.1.254"));
    driver.check(driver.text(QStringLiteral("newGatewayField")) == QLatin1String("192.168.1.1"),
                 QStringLiteral("the gateway follows the address"));
    driver.click(QStringLiteral("planButton"));
    driver.report(QStringLiteral("modify-batch-plan"),
                  QStringLiteral("%1 addresses are marked").arg(driver.text(QStringLiteral("planWarning"))));
    driver.click(QStringLiteral("okButton"));
    driver.await(QStringLiteral("three results are there"), [&] { return rows.countOf("res", 0) == 3; });
    driver.report(QStringLiteral("modified-batch"), QStringLiteral("three devices have new addresses"));

    searchAgain(driver);
    const QStringList expected = {QStringLiteral("192.168.1.254"), QStringLiteral("192.168.1.255"),
                                  QStringLiteral("192.168.2.0")};
    for (int place = 0; place < 3; ++place) {
        const QString found = rows.value(rows.rowOf("mac", macs.at(place)), "ipport").toString();
        driver.check(found.section(QLatin1Char(':'), 0, 0) == expected.at(place),
                     QStringLiteral("the device answers at %1 (%2)").arg(expected.at(place), found));
    }
}

void walkCollision(Driver &driver)
{
    const Rows rows(driver);
    untickAll(driver);
    const int before = rows.countOf("conflict", true);
    driver.click(QStringLiteral("check6"));
    driver.click(QStringLiteral("check5"));
    driver.click(QStringLiteral("batchModifyButton"));
    driver.fill(QStringLiteral("newStartField"), QStringLiteral("192.168.1.230"));
    driver.click(QStringLiteral("sameAddressBox"));
    driver.click(QStringLiteral("planButton"));
    driver.report(QStringLiteral("modify-same-plan"), QStringLiteral("two devices of one address"));
    driver.click(QStringLiteral("okButton"));
    driver.await(QStringLiteral("the two rows are in conflict"),
                 [&] { return rows.countOf("conflict", true) == before + 2; });
    driver.report(QStringLiteral("collided"), QStringLiteral("two more rows are marked"));
}

void walkSingle(Driver &driver)
{
    const Rows rows(driver);
    untickAll(driver);
    const QString mac = rows.value(0, "mac").toString();
    driver.click(QStringLiteral("edit0"));
    driver.report(QStringLiteral("modify-one"), QStringLiteral("one device"));
    driver.fill(QStringLiteral("newStartField"), QStringLiteral("192.168.1.231"));
    driver.fill(QStringLiteral("newMaskField"), QStringLiteral("255.0.255.0"));
    driver.click(QStringLiteral("okButton"));
    expectMessage(driver, "ModifyIPDialog", "请输入正确的子网掩码");
    driver.click(QStringLiteral("dhcpButton"));
    driver.report(QStringLiteral("modify-dhcp"), QStringLiteral("DHCP needs no address"));
    driver.click(QStringLiteral("staticButton"));
    driver.fill(QStringLiteral("newMaskField"), QStringLiteral("255.255.255.0"));
    driver.fill(QStringLiteral("newStartField"),
                rows.value(1, "ipport").toString().section(QLatin1Char(':'), 0, 0));
    driver.fill(QStringLiteral("newGatewayField"), QStringLiteral("10.0.0.1"));
    driver.click(QStringLiteral("okButton"));
    driver.await(QStringLiteral("both warnings are given, and the other device is named"), [&] {
        const QStringList warnings = driver.texts(QStringLiteral("fieldMessage"));
        return warnings.size() == 2 && warnings.first().contains(rows.value(1, "mac").toString());
    });
    driver.report(QStringLiteral("modify-warned"), driver.text(QStringLiteral("fieldMessage")));
    driver.fill(QStringLiteral("newStartField"), QStringLiteral("192.168.1.231"));
    driver.fill(QStringLiteral("newGatewayField"), QStringLiteral("10.0.0.1")); // it has followed the address
    driver.click(QStringLiteral("okButton"));
    driver.await(QStringLiteral("other warnings are asked about again"), [&] {
        return driver.texts(QStringLiteral("fieldMessage")).size() == 1 &&
               driver.text(QStringLiteral("okButton")) ==
                   QCoreApplication::translate("ModifyIPDialog", "仍然修改");
    });
    driver.click(QStringLiteral("okButton"));
    driver.await(QStringLiteral("the row has the new address"), [&] {
        return rows.value(rows.rowOf("mac", mac), "ipport")
            .toString()
            .startsWith(QLatin1String("192.168.1.231:"));
    });
}

void walkDetails(Driver &driver)
{
    const Rows rows(driver);
    driver.click(QStringLiteral("detail1"));
    driver.report(QStringLiteral("detail"), QStringLiteral("what is known of a device"));
    driver.click(QStringLiteral("okButton"));
    driver.check(QGuiApplication::clipboard()->text().contains(rows.value(1, "mac").toString()),
                 QStringLiteral("the details can be copied"));
    driver.key(Qt::Key_Escape);
    awaitClosed(driver, QStringLiteral("detailList"));

    const OpenedAddresses pages(QStringLiteral("http"));
    driver.click(QStringLiteral("web1"));
    const QString address = rows.value(1, "ipport").toString().section(QLatin1Char(':'), 0, 0);
    driver.check(pages.last().toString().startsWith(QLatin1String("http://") + address),
                 QStringLiteral("the web page is opened: %1").arg(pages.last().toString()));
}

void walkDeleting(Driver &driver)
{
    const Rows rows(driver);
    untickAll(driver);
    const int before = rows.count();
    driver.click(QStringLiteral("check0"));
    driver.click(QStringLiteral("check2"));
    driver.click(QStringLiteral("deleteButton"));
    driver.report(QStringLiteral("delete"), driver.text(QStringLiteral("messageText")));
    driver.click(QStringLiteral("cancelButton"));
    driver.check(rows.count() == before, QStringLiteral("nothing is deleted without a yes"));
    driver.click(QStringLiteral("deleteButton"));
    driver.click(QStringLiteral("okButton"));
    driver.await(QStringLiteral("two rows are gone"), [&] { return rows.count() == before - 2; });
    driver.report(QStringLiteral("deleted"), QStringLiteral("%1 devices are left").arg(rows.count()));
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
