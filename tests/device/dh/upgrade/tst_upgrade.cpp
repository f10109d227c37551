// Firmware upgrades: requests to devices, their effects, and the results in the rows.
#include "device/dh/upgrade/upgradedocument.h"
#include "device/registry/loginresult.h"
#include "tests/datatable.h"
#include "tests/device/dh/upgradesite.h"
#include "tests/device/searchresponses.h"

using namespace std::chrono_literals;
using namespace Qt::StringLiterals;
using sdk::demo::Fault;
using sdk::demo::FaultSetting;

Q_DECLARE_METATYPE(FaultSetting)

class TestUpgrade : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void faultsOfDevicesAreReported_data()
    {
        const auto row = dataTable<FaultSetting, UpgradeTools::Result, QString, bool>(
            {"fault", "result", "text", "canTryAgain"});
        row("fails", {Fault::UpgradeFailsAt, 50}, UpgradeTools::Failed, u"设备中断了升级（34%）"_s, true);
        row("hangs", {Fault::UpgradeHangsAt, 30}, UpgradeTools::Stuck, u"升级长时间没有进展（20%）"_s, true);
        row("keeps its version", {Fault::UpgradeKeepsVersion}, UpgradeTools::KeptVersion,
            u"重启后仍是原版本"_s, true);
        row("never returns", {Fault::UpgradeNeverReturns}, UpgradeTools::NotBack, u"设备重启后未恢复"_s,
            true);
        row("is busy", {Fault::UpgradeBusy}, UpgradeTools::DeviceBusy, u"设备忙，请稍后重试"_s, true);
        row("is offline", {Fault::NoAnswer}, UpgradeTools::NoResponse, u"设备无应答"_s, true);
        row("wrong password", {Fault::WrongPassword}, UpgradeTools::WrongPassword, u"密码错误"_s, false);
    }

    void faultsOfDevicesAreReported()
    {
        QFETCH(FaultSetting, fault);
        QFETCH(UpgradeTools::Result, result);
        QFETCH(QString, text);
        QFETCH(bool, canTryAgain);
        const UpgradeSite test(2);
        test.site->setFault(test.mac(0), fault);
        test.start({0, 1}, test.file());
        // The other device is not delayed.
        QVERIFY(test.passUntil([&] { return test.result(1) == UpgradeTools::Success; }));
        QVERIFY(test.passUntilEnd());
        QCOMPARE(test.result(0), result);
        QVERIFY2(test.text(0).startsWith(text), qPrintable(test.text(0)));
        QCOMPARE(UpgradeTools::canTryAgain(test.result(0)), canTryAgain);
        QVERIFY(UpgradeTools::isFailure(test.result(0)));
        QCOMPARE(test.ends->size(), 1);

        if (!canTryAgain || fault.fault == Fault::UpgradeNeverReturns)
            return;
        test.site->clearFault(test.mac(0), fault.fault);
        test.ends->clear();
        test.factory->startUpgrade(test.family, {test.mac(0)});
        QVERIFY(test.passUntilEnd());
        QCOMPARE(test.result(0), UpgradeTools::Success);
    }

    void theVersionConfirmsTheUpgrade_data()
    {
        // after: null: the version of the file
        const auto row = dataTable<QString, QString, QString, UpgradeTools::Result, QString>(
            {"before", "inFile", "after", "result", "text"});
        row("characters after the number", u"2.900.0.R, build 2026-01-01"_s, u"3.000.1"_s,
            u"3.000.1.R, build 2026-02-01"_s, UpgradeTools::Success,
            u"升级成功：2.900.0.R, build 2026-01-01 → 3.000.1.R, build 2026-02-01"_s);
        row("the same firmware again", u"3.000.1.R"_s, u"3.000.1"_s, u"3.000.1.R"_s, UpgradeTools::Success,
            u"升级成功：3.000.1.R → 3.000.1.R"_s);
        row("the file's version after an unknown one", QString(), u"3.000.1"_s, QString(),
            UpgradeTools::Success, u"升级成功：3.000.1"_s);
        row("another version after an unknown one", QString(), u"3.000.1"_s, u"2.9"_s,
            UpgradeTools::VersionUnknown, u"设备已恢复，但无法确认版本：现为 2.9，升级前的版本未知"_s);
    }

    void theVersionConfirmsTheUpgrade()
    {
        QFETCH(QString, before);
        QFETCH(QString, inFile);
        QFETCH(QString, after);
        const UpgradeSite test(1);
        const auto setVersion = [&test](const QString &version) {
            return test.site->changeDevice(
                test.mac(0), [&version](auto &device, const auto &) { device.version = version; });
        };
        QVERIFY(setVersion(before));
        test.start({0}, test.file("BRELM-FIRMWARE 1\nversion=" + inFile.toLatin1() + "\n\n"));
        if (!after.isNull()) {
            test.site->setFault(test.mac(0), {Fault::UpgradeKeepsVersion});
            QVERIFY(test.passUntil([&] { return test.result(0) == UpgradeTools::Writing; }));
            QVERIFY(setVersion(after));
        }
        QVERIFY(test.passUntil([&] { return test.result(0) == UpgradeTools::Restarting; }));
        test.site->requests().clear();
        QVERIFY(test.passUntilEnd());
        QTEST(static_cast<UpgradeTools::Result>(test.result(0)), "result");
        QTEST(test.text(0), "text");
        // A device that does not report its version is not queried for minutes.
        QVERIFY(test.site->requests().of("NetLogout").size() <= 12);
    }

    void unusableFilesAreNotSent_data()
    {
        const auto row = dataTable<QByteArray, QString, UpgradeTools::Result>({"content", "name", "result"});
        row("none", QByteArray(), QString(), UpgradeTools::NoFile);
        row("missing", QByteArray(), u"missing"_s, UpgradeTools::FileMissing);
        row("damaged", QByteArray("BRELM-FIRMWARE 1\nversion"), u"damaged.bin"_s, UpgradeTools::FileDamaged);
        row("other model", QByteArray("BRELM-FIRMWARE 1\nmodel=C-1\nversion=2.9\n\n"), u"B-2230-IR_2.9.bin"_s,
            UpgradeTools::WrongModel);
    }

    void unusableFilesAreNotSent()
    {
        QFETCH(QByteArray, content);
        QFETCH(QString, name);
        QFETCH(UpgradeTools::Result, result);
        const UpgradeSite test(1);
        const QString missing = name.isEmpty() ? QString() : test.folder.filePath(name);
        const QString path = content.isEmpty() ? missing : test.file(content, name);
        test.site->requests().clear();
        test.factory->setUpgradeFilePath(test.family, test.mac(0), path);
        const bool isReported = result != UpgradeTools::NoFile; // reported as soon as the file is selected
        QCOMPARE(test.result(0), isReported ? result : UpgradeTools::None);
        QCOMPARE(test.text(0), isReported ? UpgradeTools::text(result) : QString());
        test.factory->startUpgrade(test.family, {test.mac(0)});
        QVERIFY(test.passUntilEnd());
        QCOMPARE(test.result(0), result);
        QCOMPARE(test.text(0), UpgradeTools::text(result));
        QVERIFY(!UpgradeTools::canTryAgain(result));
        QVERIFY(test.site->requests().all().isEmpty());
    }

    void aStopIsRetriedUntilTheDeviceWrites()
    {
        const UpgradeSite test(2);
        for (const int index : {0, 1})
            test.site->setFault(test.mac(index), {Fault::RefusesUpgradeStop});
        test.start({0, 1}, test.file());
        QVERIFY(test.passUntil([&] { return test.percent(0) > 0 && test.percent(1) > 0; }));
        for (const int index : {0, 1})
            test.factory->stopUpgrade(test.family, test.mac(index));
        QVERIFY(test.passUntil([&] { return test.text(0) == u"尚未停止，正在重试"_s; }));
        test.site->clearFault(test.mac(0), Fault::RefusesUpgradeStop);
        QVERIFY(test.passUntil([&] { return test.result(0) == UpgradeTools::Stopped; }));
        QVERIFY(test.passUntil([&] { return test.text(1) == u"已开始写入，无法停止"_s; }));
        QVERIFY(test.passUntil([&] { return test.text(1) == u"固件已写入，设备正在重启，无法停止"_s; }));
        QVERIFY(test.passUntilEnd());
        QCOMPARE(test.result(1), UpgradeTools::Success);
    }

    void aDeviceWithOnlyAnIpv6AddressIsUpgraded()
    {
        const UpgradeSite test(1);
        test.store->removeRows({test.mac(0)});
        QVERIFY(test.site->changeDevice(test.mac(0), [](auto &device, const auto &) {
            device.address.clear();
            device.ipv6 = u"fd00::11"_s;
        }));
        const std::string mac = test.mac(0).toStdString();
        QVERIFY(test.store->addResponse(searchResponse({.address = "fd00::11", .mac = mac, .ipVersion = 6}))
                    .added);
        const QString name = u"[fd00::11]:37777"_s;
        const auto row = [&test, &name] {
            return test.factory->getDeviceDetail(test.family, name);
        };
        const QString path = test.file();
        test.factory->setUpgradeFilePath(test.family, name, path);
        test.site->setFault(test.mac(0), {Fault::UpgradeFailsAt, 10});
        test.factory->startUpgrade(test.family, {name});
        QVERIFY(test.passUntilEnd());
        QCOMPARE(row().value(u"upgraderes"_s).toInt(), UpgradeTools::Failed);
        QCOMPARE(test.factory->upgradesToRetry(test.family), QStringList(name));
        test.site->clearFault(test.mac(0), Fault::UpgradeFailsAt);
        test.ends->clear();
        test.factory->startUpgrade(test.family, {name});
        QVERIFY(test.passUntilEnd());
        QCOMPARE(row().value(u"upgradetext"_s).toString(), u"升级成功：2.840.1 → 2.900.0"_s);
        QCOMPARE(row().value(u"vision"_s).toString(), u"v2.900.0"_s);

        // A device without an address is named without brackets.
        const QString unset = u"0.0.0.0:37777"_s;
        QVERIFY(
            test.store->addResponse(searchResponse({.address = "0.0.0.0", .mac = "02:aa", .ipVersion = 6}))
                .added);
        test.factory->setUpgradeFilePath(test.family, unset, path);
        QCOMPARE(test.store->rowNamed(unset).value(DeviceRowKey::filepath).toString(), path);
    }

    void anUpgradingDeviceIsNotDisturbed()
    {
        const UpgradeSite test(2);
        QSignalSpy changed(test.factory.get(), &CDeviceFactory::signalAddSingleDeviceToTable);
        QCOMPARE(test.factory->findAndLoginDevice(test.family, test.ipport(0), u"admin"_s, u"secret1"_s), 0);
        test.factory->getEncodeCaps(test.family);
        test.factory->getCameraConfig(test.family);
        test.factory->getVideoIn(test.family);
        test.start({0}, test.file());
        QTRY_COMPARE(changed.size(), 1); // the pages disable the row
        test.factory->setBatchDeleteDevice(test.family, {{test.mac(0), true}, {test.mac(1), true}},
                                           u"IPV4"_s);
        QVERIFY(!test.store->row(test.mac(0)).isEmpty());
        QVERIFY(test.store->row(test.mac(1)).isEmpty());
        changed.clear();

        const auto refusal = resultCode(LoginResult::Upgrading);
        test.factory->modifyIP(test.family, test.mac(0), u"192.168.1.99"_s, u"255.255.255.0"_s,
                               u"192.168.1.1"_s, false);
        QCOMPARE(test.value(0, DeviceRowKey::res).toInt(), refusal);
        QCOMPARE(test.value(0, DeviceRowKey::ipport).toString(), test.ipport(0));
        QSignalSpy results(test.factory.get(), &CDeviceFactory::signalRetToSystemConfig);
        QSignalSpy copies(test.factory.get(), &CDeviceFactory::signalRetToCopyConfig);
        QVERIFY(test.site->requests().of("NetModifyDeviceBySearch").isEmpty());
        QVERIFY(test.passUntil([&] { return test.result(0) == UpgradeTools::Writing; }));
        test.site->requests().clear();
        const QStringList commands = {u"rebootDevice"_s, u"resetSystem"_s, u"videoStandard"_s,
                                      u"autoMaintain"_s, u"setTimeByPC"_s, u"loginCheck"_s};
        for (const QString &command : commands)
            test.factory->systemConfig(test.family, command, {}, {test.ipport(0)});
        QCOMPARE(results, QList<QVariantList>(commands.size(), {test.ipport(0), refusal}));
        test.factory->copyConfigToDevice(test.family, {test.ipport(0)});
        QCOMPARE(copies, QList<QVariantList>({{test.ipport(0), refusal}}));
        QSignalSpy encoding(test.factory.get(), &CDeviceFactory::signalConfirmEncodeConfig);
        QSignalSpy image(test.factory.get(), &CDeviceFactory::signalGetDeviceCapRet);
        test.factory->confirmConfigData(test.family);
        test.factory->setConfigData(test.family, u"subCurResolution"_s, u"CIF"_s);
        QCOMPARE(encoding, QList<QVariantList>(2, {u"设备正在升级\n"_s}));
        test.factory->setConfigData(test.family, u"picture"_s, 3, u"hue"_s);
        QCOMPARE(image, QList<QVariantList>({{refusal}}));
        test.factory->setConfigData(test.family, u"channelName"_s, u"x"_s, u"0"_s);
        QCOMPARE(test.factory->getConfigData(test.family, u"channelNameResult"_s, 0).toInt(), refusal);
        QCOMPARE(test.factory->checkLogin(test.family, test.ipport(0), u"admin"_s, u"secret1"_s), refusal);
        QVERIFY(test.site->requests().all().isEmpty());

        QVERIFY(test.passUntilEnd());
        QTRY_COMPARE(changed.size(), 1); // and enable it again
        QCOMPARE(test.result(0), UpgradeTools::Success);
        test.factory->setDeleteDevice(test.family, test.mac(0), u"IPV4"_s);
        QVERIFY(test.store->row(test.mac(0)).isEmpty());
    }

    void everyLineOfADocumentIsReported()
    {
        const UpgradeSite test(2);
        const QString path = test.workbook({{test.address(0), u"37777.0"_s, {}, {}, test.file()},
                                            {u"192.168.1.77"_s, {}, {}, {}, u"./firmware.bin"_s},
                                            {},
                                            {u"192.168.1"_s, {}, {}, {}, u"firmware.bin"_s},
                                            {u"host/../"_s, {}, {}, {}, u"firmware.bin"_s},
                                            {test.address(1), u"70000"_s, {}, {}, u"firmware.bin"_s},
                                            {test.address(1), u"37777"_s, {}, {}, u"missing.bin"_s},
                                            {test.address(0), {}, {}, {}, u"firmware.bin"_s},
                                            {u"fe80::1"_s, u"1"_s, {}, {}, {}},
                                            {{}, {}, {}, {}, u"firmware.bin"_s},
                                            {u"192.168.001.11"_s, {}, {}, {}, u"firmware.bin"_s},
                                            {u"192.168.001.012"_s, u"37778"_s, {}, {}, {}},
                                            {u"::ffff:192.168.1.11"_s, {}, {}, {}, u"firmware.bin"_s},
                                            {test.address(1), u"37777.9"_s, {}, {}, u"firmware.bin"_s}});
        QStringList lines;
        const QVariantList report = test.factory->importUpgradeDocument(test.family, path);
        for (const QVariant &entry : report) {
            const QVariantMap line = entry.toMap();
            lines.append(u"%1 %2 %3 %4"_s.arg(line.value(u"line"_s).toInt())
                             .arg(line.value(u"address"_s).toString(), line.value(u"mac"_s).toString())
                             .arg(line.value(u"code"_s).toInt()));
        }
        QCOMPARE(lines,
                 QStringList({u"2 192.168.1.11:37777 02:1a:c5:00:00:01 -1"_s, u"3 192.168.1.77:37777  -1"_s,
                              u"5 192.168.1:37777  14"_s, u"6 host/../:37777  14"_s,
                              u"7 192.168.1.12:0  14"_s, u"8 192.168.1.12:37777 02:1a:c5:00:00:02 2"_s,
                              u"9 192.168.1.11:37777 02:1a:c5:00:00:01 15"_s, u"10 [fe80::1]:1  1"_s,
                              u"11 :37777  14"_s, u"12 192.168.1.11:37777 02:1a:c5:00:00:01 15"_s,
                              u"13 192.168.001.012:37778  14"_s,
                              u"14 192.168.1.11:37777 02:1a:c5:00:00:01 15"_s, u"15 192.168.1.12:0  14"_s}));
        QCOMPARE(report.at(5).toMap().value(u"reason"_s).toString(), u"升级文件不存在"_s);
        QCOMPARE(report.at(1).toMap().value(u"file"_s).toString(), test.file());
        QCOMPARE(test.factory->importError(test.family), QString());
        QVERIFY(!test.factory->hasDeviceUpgrading());
    }

    void invalidDocumentsAreRefused()
    {
        const UpgradeSite test(1);
        QVERIFY(test.factory->importUpgradeDocument(test.family, test.file()).isEmpty());
        QCOMPARE(test.factory->importError(test.family), u"文件打开失败"_s);
        QExcel excel;
        QVERIFY(excel.createWorkbook() && excel.setCellText(1, 1, u"IP"_s));
        const QString path = test.folder.filePath(u"other.xlsx"_s);
        QVERIFY(excel.saveAs(path));
        QVERIFY(test.factory->importUpgradeDocument(test.family, path).isEmpty());
        QCOMPARE(test.factory->importError(test.family), u"文件格式错误"_s);

        QList<QStringList> rows(UpgradeDocument::maximumLines, {test.address(0)});
        const QString largest = test.workbook(rows, u"largest.xlsx"_s);
        rows.insert(5, QStringList()); // empty rows do not count
        rows.append({{}, {}, {}, {}, u"firmware.bin"_s});
        QCOMPARE(test.factory->importUpgradeDocument(test.family, largest).size(),
                 UpgradeDocument::maximumLines);
        QVERIFY(test.factory->importUpgradeDocument(test.family, test.workbook(rows)).isEmpty());
        QCOMPARE(test.factory->importError(test.family), u"文档中的设备超过 10000 行，请分成多个文档"_s);
    }
};

QTEST_GUILESS_MAIN(TestUpgrade)
#include "tst_upgrade.moc"
