// Upgrades by document: the report before, the results in the workbook after.
#include "tests/device/dh/upgradesite.h"

#include <QDir>

using namespace Qt::StringLiterals;

class TestUpgradeDocument : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void theReport()
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

    void documentsThatAreRefused()
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
        test.factory->startUpgradeByDocument(test.family, {path, u"/no/such"_s});
        QTRY_COMPARE(test.ends->size(), 1);
        QCOMPARE(test.factory->upgradeDocumentResult(test.family),
                 u"other.xlsx：文件格式错误\nsuch：文件打开失败"_s);
    }

    void aLongDocumentIsRefusedAsAWhole()
    {
        const UpgradeSite test(1);
        QList<QStringList> rows(UpgradeDocument::mostLines, {test.address(0)});
        const QString whole = test.workbook(rows, u"whole.xlsx"_s);
        rows.insert(5, QStringList()); // does not count
        rows.append({{}, {}, {}, {}, u"firmware.bin"_s});
        const QString longer = test.workbook(rows);
        QCOMPARE(test.factory->importUpgradeDocument(test.family, whole).size(), UpgradeDocument::mostLines);
        QVERIFY(test.factory->importUpgradeDocument(test.family, longer).isEmpty());
        QCOMPARE(test.factory->importError(test.family), u"文档中的设备超过 10000 行，请分成多个文档"_s);
        test.factory->startUpgradeByDocument(test.family, {longer});
        QTRY_COMPARE(test.ends->size(), 1);
        QCOMPARE(test.factory->upgradeDocumentResult(test.family),
                 u"upgrades.xlsx：文档中的设备超过 10000 行，请分成多个文档"_s);
    }

    void manyDevicesAreToldOfAtOnce()
    {
        constexpr int count = 1000;
        const UpgradeSite test(1);
        QList<QStringList> rows;
        for (int place = 0; place < count; ++place)
            rows.append({u"10.0.%1.%2"_s.arg(place / 100).arg(place % 100), {}, {}, {}, test.file()});
        const QString path = test.workbook(rows);
        QSignalSpy documents(test.factory.get(), &CDeviceFactory::signalUpdateScheduleUpgradeByDocument);
        QSignalSpy held(test.factory.get(), &CDeviceFactory::signalAddSingleDeviceToTable);
        test.factory->startUpgradeByDocument(test.family, {path});
        QTRY_COMPARE(held.size(), 1);
        const qsizetype atStart = test.schedule->size();
        // The first ones begin on threads, which may be told apart from the rest.
        QVERIFY2(atStart <= 1 + 2 * UpgradeLimits().atOnce, qPrintable(QString::number(atStart)));
        for (const QStringList &row : rows)
            test.factory->stopUpgrade(test.family, row.first() + u":37777"_s);
        QTRY_VERIFY(test.schedule->last().first().toInt() > 90);
        QVERIFY(test.schedule->size() - atStart <= 1 + 2 * UpgradeLimits().atOnce);
        QVERIFY(test.passUntilEnd());
        QCOMPARE(test.schedule->last().first().toInt(), 100);
        QCOMPARE(documents.last(), QVariantList({path, 100}));
        // The first ones may have found out that nobody answers.
        QVERIFY(UpgradeSite::resultsOf(path, count).count(u"已停止，设备未改动"_s) >=
                count - UpgradeLimits().atOnce);
        QCOMPARE(test.factory->upgradeDocumentSuccesses(test.family), 0);
    }

    void aRetryHasTheAccountOfTheDocument()
    {
        const UpgradeSite test(2);
        test.factory->setDefaultAccount(test.family, u"admin"_s, u"other"_s);
        for (const int place : {0, 1})
            test.site->setFault(test.mac(place), {sdk::demo::Fault::UpgradeFailsAt, 50});
        const QString path = test.workbook({{test.address(0), {}, u"admin"_s, u"secret1"_s, test.file()},
                                            {test.address(1), {}, u"admin"_s, u"wrong"_s, test.file()}});
        const auto tryAgain = [&test] {
            test.ends->clear();
            test.factory->startUpgrade(test.family, {test.mac(0), test.mac(1)});
            return test.passUntilEnd();
        };
        test.factory->startUpgradeByDocument(test.family, {path});
        QVERIFY(test.passUntilEnd());
        QCOMPARE(test.result(0), UpgradeTools::Failed);
        QCOMPARE(test.result(1), UpgradeTools::WrongPassword);
        test.site->requests().clear();
        QVERIFY(tryAgain());
        QCOMPARE(test.result(0), UpgradeTools::Failed);
        QCOMPARE(test.result(1), UpgradeTools::WrongPassword);
        QVERIFY(!test.value(0, DeviceRowKey::password).toString().contains(u"secret1"_s));
        // What the user says later counts more.
        test.factory->setDefaultAccount(test.family, u"admin"_s, u"another"_s);
        QVERIFY(tryAgain());
        QCOMPARE(test.result(0), UpgradeTools::WrongPassword);
    }

    void resultsAreWritten()
    {
        const UpgradeSite test(4);
        QSignalSpy schedule(test.factory.get(), &CDeviceFactory::signalUpdateScheduleUpgradeByDocument);
        test.store->removeRows({test.mac(1)}); // a document may name devices that are not in the table
        test.site->setFault(test.mac(2), {sdk::demo::Fault::UpgradeFailsAt, 50});
        const QString file = test.file();
        const QString first = test.workbook({{test.address(0), {}, u"admin"_s, u"secret1"_s, file},
                                             {test.address(1), {}, u"admin"_s, u"secret1"_s, file},
                                             {test.address(2), {}, {}, {}, file},
                                             {test.address(3), {}, u"admin"_s, u"wrong"_s, file},
                                             {u"nowhere"_s, {}, {}, {}, file}});
        const QString second = test.workbook({{test.address(0), {}, {}, {}, file}}, u"second.xlsx"_s);
        const QString url = QUrl::fromLocalFile(first).toString();
        test.factory->startUpgradeByDocument(test.family, {url, second});
        QVERIFY(test.factory->hasDeviceUpgrading());
        const auto lines = [&](const QString &key) {
            return test.factory->upgradeDocumentProgress(test.family).value(key).toInt();
        };
        QCOMPARE(lines(u"total"_s), 6);
        QVERIFY(test.passUntil([&] { return lines(u"done"_s) == 4; })); // two succeed at the end
        QCOMPARE(test.ends->size(), 0);
        QVERIFY(test.passUntilEnd());
        QCOMPARE(lines(u"done"_s), 6);
        QCOMPARE(lines(u"total"_s), 6);
        const QStringList written = UpgradeSite::resultsOf(first, 5);
        QCOMPARE(written.at(0), u"升级成功：2.840.1 → 2.900.0"_s);
        QCOMPARE(written.at(1), u"升级成功：2.840.1 → 2.900.0"_s);
        QVERIFY(written.at(2).startsWith(u"设备中断了升级"_s));
        QCOMPARE(written.at(3), u"密码错误"_s);
        QCOMPARE(written.at(4), u"IP或端口填写错误"_s);
        QCOMPARE(UpgradeSite::resultsOf(second, 1), QStringList(u"设备忙，请稍后重试"_s));
        QCOMPARE(test.result(0), UpgradeTools::Success);
        QCOMPARE(test.value(0, DeviceRowKey::filepath).toString(), file);
        QVERIFY(schedule.contains(QVariantList({second, 100})));
        QCOMPARE(schedule.last(), QVariantList({url, 100}));
        QVERIFY(schedule.size() > 10);
        const QString told = test.factory->upgradeDocumentResult(test.family);
        QVERIFY2(told.contains(u"upgrades.xlsx：成功2台，失败3台。升级结果已保存到文件："_s),
                 qPrintable(told));
        QCOMPARE(test.factory->upgradeDocumentSuccesses(test.family), 2);
    }

    void aWorkbookThatCannotBeWrittenLosesNothing()
    {
        const UpgradeSite test(1);
        const QString path = test.workbook({{test.address(0), {}, {}, {}, test.file()}});
        test.factory->startUpgradeByDocument(test.family, {path});
        // A folder in its place: nothing can be written there, whoever the user is.
        QVERIFY(QFile::remove(path) && QDir().mkpath(path + u"/full"_s));
        QVERIFY(test.passUntilEnd());
        const QString other = test.folder.filePath(u"upgrades_结果.xlsx"_s);
        QCOMPARE(UpgradeSite::resultsOf(other, 1), QStringList(u"升级成功：2.840.1 → 2.900.0"_s));
        const QString told = test.factory->upgradeDocumentResult(test.family);
        QVERIFY2(told.contains(QDir::toNativeSeparators(other)), qPrintable(told));
    }

    void aDeviceWithoutARowIsStoppedByItsAddress()
    {
        const UpgradeSite test(1);
        test.store->removeRows({test.mac(0)});
        test.site->setFault(test.mac(0), {sdk::demo::Fault::UpgradeTakes, 60});
        const QString path = test.workbook({{test.address(0), {}, {}, {}, test.file()}});
        test.factory->startUpgradeByDocument(test.family, {path});
        QVERIFY(test.passUntil(
            [&] { return !test.schedule->isEmpty() && test.schedule->last().first().toInt() > 1; }));
        test.factory->stopUpgrade(test.family, test.ipport(0));
        QVERIFY(test.passUntilEnd());
        QCOMPARE(UpgradeSite::resultsOf(path, 1), QStringList(u"已停止，设备未改动"_s));
    }

    void theEndOfTheProgramIsWritten()
    {
        UpgradeSite test(1);
        const QString path = test.workbook({{test.address(0), {}, {}, {}, test.file()}});
        test.factory->startUpgradeByDocument(test.family, {path});
        QVERIFY(test.passUntil([&] { return test.percent(0) > 10; }));
        test.endFactory();
        QCOMPARE(UpgradeSite::resultsOf(path, 1), QStringList(u"程序退出，升级中断"_s));
    }
};

QTEST_GUILESS_MAIN(TestUpgradeDocument)
#include "tst_upgradedocument.moc"
