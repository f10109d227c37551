// Upgrades as batches: their preview, results in the panel, the rows and the documents, and stops.
#include "device/batch/batchresultmodel.h"
#include "device/batch/upgradebatches.h"
#include "device/batch/upgradepreview.h"
#include "tests/datatable.h"
#include "tests/device/dh/upgradesite.h"
#include "tests/values.h"

#include <QElapsedTimer>
#include <QMetaEnum>

using namespace std::chrono_literals;
using sdk::demo::Fault;

namespace {

/// A site with upgrades in batches.
class UpgradeBatchSite : public UpgradeSite
{
public:
    explicit UpgradeBatchSite(int count, int maximumParallel = 4)
        : UpgradeSite(count), m_maximumParallel(maximumParallel)
    {
    }

    /// Sets a file for the devices with these indexes and upgrades them.
    Batch *begin(const QList<int> &indexes)
    {
        factory->backEnd(family)->setUpgradeFiles(macs(indexes), file());
        return upgrades.start("Upgrade", macs(indexes));
    }
    [[nodiscard]] bool passUntilDone() const
    {
        return passUntil([this] { return !batches.isRunning() && !factory->hasDeviceUpgrading(); });
    }
    /// The panel's rows of the last batch, failed devices first.
    [[nodiscard]] QStringList panel() const
    {
        BatchResultModel model;
        model.setBatch(batches.current());
        QStringList rows;
        for (int row = 0; row < model.rowCount(); ++row)
            rows.append(valuesOf(model.get(row), "device result"));
        return rows;
    }

private:
    int m_maximumParallel;

public:
    Batches batches{*factory, *engine, [] {
                        return 8;
                    }};
    UpgradeBatches upgrades{*factory, batches, [this] {
                                return m_maximumParallel;
                            }};
};

/// The preview's row of each device.
QStringList rowsOf(const UpgradePreview &preview)
{
    QStringList rows;
    for (int row = 0; row < preview.rowCount(); ++row)
        rows.append(valuesOf(preview.get(row), "num ipport vision action note"));
    return rows;
}

/// The reason why a document cannot be used, after it has been read.
QString refusalOf(UpgradePreview &preview, const QString &path)
{
    QSignalSpy read(&preview, &UpgradePreview::documentRead);
    preview.readDocument(path);
    return read.wait() ? read.constLast().constFirst().toString() : QString("not read");
}

} // namespace

class TestUpgradeBatches : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    /// A retry of the batch is also offered for the devices of the page's retry.
    void resultsKeepTheirMeaning()
    {
        const auto results = QMetaEnum::fromType<UpgradeTools::Result>();
        for (int index = 0; index < results.keyCount(); ++index) {
            const auto result = static_cast<UpgradeTools::Result>(results.value(index));
            if (UpgradeTools::isFailure(result))
                QVERIFY2(maySucceedLater({.result = UpgradeTools::batchResult(result), .text = {}}) ==
                             UpgradeTools::canTryAgain(result),
                         results.key(index));
        }
    }

    /// As announced by the preview, this is not a failure.
    void aDeviceWithoutAPasswordIsSkipped()
    {
        UpgradeBatchSite test(2);
        const QSignalSpy ended(&test.upgrades, &UpgradeBatches::ended);
        test.factory->updataDeviceInfo(test.family, "state", false, test.mac(1), "192.168.1.12:37777");
        QVERIFY(test.begin({0, 1}));
        QVERIFY(test.passUntilDone());
        QCOMPARE(test.panel(), QStringList({QStringLiteral("192.168.1.12:37777|设备未初始化，已跳过"),
                                            QStringLiteral("192.168.1.11:37777|成功：2.840.1 → 2.900.0")}));
        QCOMPARE(test.result(1), UpgradeTools::NotInitialised);
        QCOMPARE(ended.last(), QVariantList({1, 0, 0}));
        QCOMPARE(test.batches.failedMarks()->count(), 0);
    }

    void everyDeviceGetsItsResult()
    {
        UpgradeBatchSite test(6);
        const QSignalSpy ended(&test.upgrades, &UpgradeBatches::ended);
        test.site->setFault(test.mac(1), {Fault::UpgradeFailsAt, 50});
        test.site->setFault(test.mac(2), {Fault::WrongPassword});
        test.site->setFault(test.mac(3), {Fault::UpgradeBusy});
        const auto listed = QList<int>{0, 1, 2, 3, 4, 5};
        test.factory->backEnd(test.family)->setUpgradeFiles(test.macs(listed), test.file());
        test.factory->setUpgradeFilePath(test.family, test.mac(4), {});
        test.factory->setUpgradeFilePath(test.family, test.mac(5), test.file("bytes", "C-1_2.9.bin"));
        Batch *batch = test.upgrades.start("Upgrade", test.macs(listed));
        QVERIFY(batch);
        QVERIFY(UpgradeTools::isRunning(test.result(0)));
        QCOMPARE(test.upgrades.start("Upgrade", test.macs({0})), nullptr); // only one batch at a time
        QVERIFY(test.passUntil([&] { return batch->done() == 5; }));
        QCOMPARE_GT(batch->progress(), 5.0 / 6); // the last device is running
        QCOMPARE_LT(batch->progress(), 1);
        QVERIFY(test.passUntilDone());
        QCOMPARE(test.panel(),
                 QStringList({"192.168.1.12:37777|升级未完成：设备中断了升级（34%）",
                              "192.168.1.13:37777|密码错误", "192.168.1.14:37777|设备忙，请稍后重试",
                              "192.168.1.15:37777|升级文件不可用：未选择升级文件",
                              "192.168.1.16:37777|升级文件不可用：升级文件不适用于此型号",
                              "192.168.1.11:37777|成功：2.840.1 → 2.900.0"}));
        QCOMPARE(test.text(0), "升级成功：2.840.1 → 2.900.0");
        QCOMPARE(test.text(4), "未选择升级文件");
        QCOMPARE(ended.last(), QVariantList({1, 5, 0}));
        QCOMPARE(test.batches.failedMarks()->count(), 5);

        test.site->clearFault(test.mac(1), Fault::UpgradeFailsAt);
        test.site->clearFault(test.mac(3), Fault::UpgradeBusy);
        test.site->requests().clear();
        Batch *again = test.batches.retry(batch);
        QVERIFY(again);
        QVERIFY(test.passUntilDone());
        QCOMPARE(test.panel(), QStringList({"192.168.1.12:37777|成功：2.840.1 → 2.900.0",
                                            "192.168.1.14:37777|成功：2.840.1 → 2.900.0"}));
        QCOMPARE(ended.last(), QVariantList({2, 0, 0}));
        QCOMPARE(test.site->requests().of("NetStartUpgrade").size(), 2);
        QCOMPARE(test.batches.failedMarks()->count(), 3);
    }

    void aStopDoesNotInterruptWritingDevices()
    {
        UpgradeBatchSite test(5, 3);
        for (const int index : {1, 2})
            test.site->setFault(test.mac(index), {Fault::UpgradeTakes, 60});
        Batch *batch = test.begin({0, 1, 2, 3, 4});
        QVERIFY(batch);
        QVERIFY(test.passUntil([&] { return test.result(0) == UpgradeTools::Writing; }));
        test.factory->stopUpgrade(test.family, test.mac(1)); // a single device
        QVERIFY(test.passUntil([&] { return batch->done() == 1; }));
        QVERIFY(test.passUntil(
            [&] { return test.result(3) == UpgradeTools::Sending; })); // the next device starts
        batch->stop();
        QCOMPARE(test.text(4), "已停止，设备未改动"); // immediately
        QVERIFY(test.passUntilDone());
        QCOMPARE(test.panel(),
                 QStringList({"192.168.1.12:37777|未执行：已停止，设备未改动",
                              "192.168.1.13:37777|未执行：已停止，设备未改动",
                              "192.168.1.14:37777|未执行：已停止，设备未改动", "192.168.1.15:37777|未执行",
                              "192.168.1.11:37777|成功：2.840.1 → 2.900.0"}));
        QCOMPARE(batch->report()->notDone(), 4);
        QCOMPARE(test.site->requests().of("NetStartUpgrade").size(), 4);
        for (const int index : {1, 2, 3, 4}) {
            QCOMPARE(test.result(index), UpgradeTools::Stopped);
            QCOMPARE(test.site->device(test.mac(index))->version, "2.840.1");
        }
    }

    void wrongPasswordsPauseABatch()
    {
        UpgradeBatchSite test(8, 1);
        for (int index = 0; index < 6; ++index)
            test.site->setFault(test.mac(index), {Fault::WrongPassword});
        const QList<int> all = {0, 1, 2, 3, 4, 5, 6, 7};
        test.factory->backEnd(test.family)->setUpgradeFiles(test.macs(all), test.file());
        test.factory->setUpgradeFilePath(test.family, test.mac(2),
                                         {}); // does not mean that the password is correct
        Batch *batch = test.upgrades.start("Upgrade", test.macs(all));
        QVERIFY(batch);
        QVERIFY(test.passUntil([&] { return batch->isPaused(); }));
        QCOMPARE(batch->done(), 6);
        QCOMPARE(test.text(6), "等待升级");
        batch->resume();
        QVERIFY(test.passUntilDone());
        QCOMPARE(batch->report()->succeeded(), 2);
    }

    void rowsWithTheSameAddressAreUpgradedInSequence()
    {
        UpgradeBatchSite test(2);
        test.store->changeRow(test.mac(0),
                              [&](QJsonObject &row) { row.insert(DeviceRowKey::ipport, test.ipport(1)); });
        test.site->setFault(test.mac(1), {Fault::WrongPassword});
        QVERIFY(test.begin({0, 1}));
        QVERIFY(test.passUntilDone());
        QCOMPARE(test.batches.current()->report()->devicesWith(resultCode(LoginResult::WrongPassword)),
                 test.macs({0, 1}));
        QCOMPARE(test.site->requests().of("NetLoginSecure").size(),
                 1);                                           // a second attempt could lock the account
        QCOMPARE(test.result(1), UpgradeTools::WrongPassword); // the page's retry skips it
    }

    void theSelectedLinesOfADocumentAreUpgraded()
    {
        UpgradeBatchSite test(4);
        test.store->removeRows({test.mac(1)}); // a document may name devices that are not in the list
        test.factory->setDefaultAccount(test.family, "admin", "other");
        const QString file = test.file();
        const QString path = test.workbook({{test.address(0), {}, "admin", "secret1", file},
                                            {test.address(1), {}, "admin", "secret1", file},
                                            {test.address(2), {}, "admin", "wrong", file},
                                            {test.address(3), {}, "admin", "secret1", file, "old"},
                                            {"nowhere", {}, {}, {}, file}});
        test.site->setFault(test.mac(1), {Fault::UpgradeFailsAt, 50});
        const QSignalSpy ended(&test.upgrades, &UpgradeBatches::documentEnded);
        Batch *batch = test.upgrades.startDocument("Document", path, {"2", "3", "4", "6"});
        QVERIFY(batch);
        QCOMPARE(test.upgrades.startDocument("Document", path, {"5"}), nullptr);
        QVERIFY(test.passUntilDone());
        QTRY_COMPARE(ended.size(), 1);
        QVERIFY(ended.last().first().toString().contains("upgrades.xlsx：成功1台，失败3台"));
        QCOMPARE(test.resultsOf(path, 5), QStringList({"升级成功：2.840.1 → 2.900.0", "设备中断了升级（34%）",
                                                       "密码错误", "old", "IP或端口填写错误"}));
        QCOMPARE(test.panel(),
                 QStringList({"192.168.1.12:37777|升级未完成：设备中断了升级（34%）",
                              "192.168.1.13:37777|密码错误", "nowhere:37777|数据无效：IP或端口填写错误",
                              "192.168.1.11:37777|成功：2.840.1 → 2.900.0"}));

        // A retry uses the account of the document, even for devices that are not listed.
        test.site->clearFault(test.mac(1), Fault::UpgradeFailsAt);
        QVERIFY(test.batches.retry(batch));
        QVERIFY(test.passUntilDone());
        QCOMPARE(test.panel(), QStringList("192.168.1.12:37777|成功：2.840.1 → 2.900.0"));
        QCOMPARE(test.site->device(test.mac(3))->version, "2.840.1");
        QTRY_COMPARE(ended.size(), 2);
        QVERIFY(ended.last().first().toString().contains("upgrades.xlsx：成功2台，失败2台"));
        QCOMPARE(test.resultsOf(path, 5),
                 QStringList({"升级成功：2.840.1 → 2.900.0", "升级成功：2.840.1 → 2.900.0", "密码错误", "old",
                              "IP或端口填写错误"}));
    }

    void resultsOfAStoppedDocumentAreWritten()
    {
        UpgradeBatchSite test(2, 1);
        const QString path = test.workbook(
            {{test.address(0), {}, {}, {}, test.file()}, {test.address(1), {}, {}, {}, test.file()}});
        const QSignalSpy ended(&test.upgrades, &UpgradeBatches::documentEnded);
        Batch *batch = test.upgrades.startDocument("Document", path, {"2", "3"});
        QVERIFY(test.passUntil([&] { return test.percent(0) > 0; }));
        batch->stop();
        QVERIFY(test.passUntilDone());
        QTRY_COMPARE(ended.size(), 1);
        QCOMPARE(ended.last().last().toBool(), false);
        QCOMPARE(test.resultsOf(path, 2), QStringList(2, "已停止，设备未改动"));
    }

    void changesOfRowsAreReportedTogether()
    {
        UpgradeBatchSite test(1);
        QStringList names;
        for (int index = 0; index < 600; ++index) {
            names.append(QStringLiteral("02:%1").arg(index));
            test.store->upsertRow({{DeviceRowKey::mac, names.last()},
                                   {DeviceRowKey::ipport, QStringLiteral("10.0.0.1:%1").arg(1000 + index)},
                                   {DeviceRowKey::filepath, test.file()}});
        }
        QSignalSpy lists(&test.upgrades, &UpgradeBatches::listChanged);
        QSignalSpy rows(&test.upgrades, &UpgradeBatches::rowsChanged);
        QVERIFY(test.upgrades.start("Upgrade", names));
        QCOMPARE(lists.size(), 1);
        QVERIFY(test.passUntil([&] { return !rows.isEmpty(); }));
        QVERIFY(rows.first().first().toStringList().size() < 100); // completed devices only
        test.batches.current()->stop();
        QVERIFY(test.passUntilDone());
        QCOMPARE(lists.size(), 2);
    }

    void aFileIsReadOnceForAllDevices_data()
    {
        const auto row = dataTable<QByteArray, QString, QString>({"content", "name", "message"});
        row("good", UpgradeSite::firmware, "good.bin", QString());
        row("damaged", "BRELM-FIRMWARE 1\nversion", "damaged.bin", "damaged.bin：升级文件已损坏");
        row("fits none", "bytes", "C-1_2.9.bin", "C-1_2.9.bin：升级文件不适用于此型号");
        row("fits one", "bytes", "D-1_2.9.bin", "1 台设备不能用此文件升级，请查看结果");
        row("for removed devices", UpgradeSite::firmware, "gone.bin", "gone.bin：设备已不在列表中");
    }

    void aFileIsReadOnceForAllDevices()
    {
        QFETCH(QByteArray, content);
        QFETCH(QString, name);
        UpgradeBatchSite test(2);
        if (name.startsWith("D-1"))
            test.store->changeRow(test.mac(1),
                                  [](QJsonObject &row) { row.insert(DeviceRowKey::model, "D-1"); });
        if (name.startsWith("gone"))
            test.store->removeRows({test.mac(0), test.mac(1)});
        QTEST(test.upgrades.chooseFile(test.macs({0, 1}), test.file(content, name)), "message");
    }

    void thePreviewShowsEachDevice()
    {
        UpgradeBatchSite test(6);
        const auto change = [&](int index, QLatin1StringView key, const QJsonValue &value) {
            test.store->changeRow(test.mac(index), [&](QJsonObject &row) { row.insert(key, value); });
        };
        test.factory->backEnd(test.family)->setUpgradeFiles(test.macs({0, 1, 2, 3, 5}), test.file());
        test.factory->setUpgradeFilePath(test.family, test.mac(5), test.file("bytes", "C-1_2.9.bin"));
        change(0, DeviceRowKey::vision, "v2.840.1");
        change(1, DeviceRowKey::vision, "v2.900.0");
        change(2, DeviceRowKey::state, false);
        change(3, DeviceRowKey::upgraderes, UpgradeTools::Sending);
        UpgradePreview preview;
        preview.setDeviceFactory(test.factory.get());
        preview.setIdentities(test.macs({0, 1, 2, 3, 4, 5}));
        QCOMPARE(rowsOf(preview),
                 QStringList({"1|192.168.1.11:37777|v2.840.1|firmware.bin（2.900.0）|",
                              "2|192.168.1.12:37777|v2.900.0|firmware.bin（2.900.0）|设备已是此版本",
                              "3|192.168.1.13:37777|||未初始化，不会执行",
                              "4|192.168.1.14:37777|||正在升级，不会执行",
                              "5|192.168.1.15:37777|||未选择升级文件，不会执行",
                              "6|192.168.1.16:37777|||升级文件不适用于此型号，不会执行"}));
        QCOMPARE(preview.warningCount(), 1);
        QCOMPARE(preview.upgradeCount(), 2);
        preview.setRangeChecked(0, 0, false);
        QCOMPARE(preview.upgradeCount(), 1);

        const QString path = test.workbook({{test.address(1), {}, {}, {}, test.file()},
                                            {test.address(1), {}, {}, {}, test.file()},
                                            {"192.168.1.77", {}, {}, {}, test.file()}});
        QCOMPARE(refusalOf(preview, path), QString());
        QCOMPARE(rowsOf(preview),
                 QStringList({"2|192.168.1.12:37777|v2.900.0|firmware.bin（2.900.0）|设备已是此版本",
                              "3|192.168.1.12:37777|v2.900.0||与前面的行是同一设备，不会执行",
                              "4|192.168.1.77:37777||firmware.bin（2.900.0）|"}));
        QCOMPARE(preview.checkedIdentities(), QStringList({"2", "3", "4"}));
        QCOMPARE(refusalOf(preview, test.workbook({}, "empty.xlsx")), "文档中没有设备");
        QCOMPARE(refusalOf(preview, test.file()), "文件打开失败");

        // If two documents are read at the same time, only the later one is used.
        const QSignalSpy read(&preview, &UpgradePreview::documentRead);
        preview.readDocument(test.file());
        QCOMPARE(refusalOf(preview, path), QString());
        QCOMPARE(read.size(), 1);
        QVERIFY(!test.factory->busyState()->areRowsInUse());
    }

    /// This also applies if a device does not respond.
    void closingTakesLessThanASecond()
    {
        UpgradeBatchSite test(4, 3);
        test.site->setFault(test.mac(0), {Fault::UpgradeTakes, 60});
        test.site->setFault(test.mac(3), {Fault::NoAnswer});
        QVERIFY(test.begin({0, 1, 2, 3}));
        QVERIFY(test.passUntil([&] { return test.result(2) == UpgradeTools::Writing; }));
        test.factory->stopUpgrade(test.family, test.mac(0));
        QVERIFY(test.passUntil([&] { return test.result(3) == UpgradeTools::Preparing; })); // logs in
        QVERIFY(test.factory->busyState()->refusal(BusyState::Close) != QString());
        QCOMPARE(test.factory->busyState()->refusal(BusyState::Delete), QString()); // for other rows
        QElapsedTimer time;
        time.start();
        QTest::ignoreMessage(
            QtWarningMsg,
            QRegularExpression("^The application closes during Upgrade - not done: .*192.168.1.14:37777 "
                               "- still writing firmware: 192.168.1.12:37777, 192.168.1.13:37777$"));
        test.batches.stopForExit();
        test.factory.reset();
        QVERIFY2(time.elapsed() < 1000, qPrintable(QString::number(time.elapsed())));
        for (int index = 0; index < 4; ++index)
            QVERIFY(!UpgradeTools::isRunning(test.result(index)));
    }
};

QTEST_GUILESS_MAIN(TestUpgradeBatches)
#include "tst_upgradebatches.moc"
