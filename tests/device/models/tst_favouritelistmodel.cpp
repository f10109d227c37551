#include "device/models/favouritelistmodel.h"
#include "tests/datatable.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>

namespace {

QStringList favourite(const QString &type, const QString &address, const QString &note = QString())
{
    return {type, address, "37777", "admin", "cipher of " + address, note};
}

/// Three favourites, which are sorted by file name.
QVariantMap threeFiles()
{
    return {{"b.json", favourite("1", "OV7QK2M4", "Site")},
            {"a.json", favourite("0", "10.0.0.1", "Front door")},
            {"c.json", favourite("0", "10.0.0.2", QString::fromUtf8("仓库"))}};
}

QStringList shown(const FavouriteListModel &model)
{
    QStringList names;
    for (int row = 0; row < model.rowCount(); ++row)
        names.append(model.get(row).value("num").toString() + ' ' + model.get(row).value("ip").toString());
    return names;
}

} // namespace

class TestFavouriteListModel : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void listsFiles_data()
    {
        const auto row = dataTable<QStringList, QString, QString, int>({"values", "type", "text", "mode"});
        row("IP", favourite("0", "10.0.0.1", "n"), "IP", "IP\t10.0.0.1\t37777\tadmin\tn", 0);
        row("P2P", favourite("1", "OV7"), "P2P", "P2P\tOV7\t37777\tadmin\t", 1);
        row("no type", favourite("", "OV7"), "P2P", "P2P\tOV7\t37777\tadmin\t", 1);
        row("endless", favourite("0", "a", QString(100000, 'x')), "IP",
            "IP\ta\t37777\tadmin\t" + QString(200, 'x'), 0);
        row("nothing", QStringList(), "P2P", "P2P\t\t\t\t", 1);
    }

    void listsFiles()
    {
        QFETCH(QStringList, values);
        FavouriteListModel model;
        const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
        model.load({{"x.json", values}});
        QTEST(model.get(0).value("type").toString(), "type");
        QTEST(model.textOf(0), "text");
        // The login data are exactly those of the file.
        const QVariantMap device = model.device("x.json");
        QTEST(device.value("mode").toInt(), "mode");
        QCOMPARE(device.value("address").toString(), values.value(1));
        QCOMPARE(device.value("cipher").toString(), values.value(4));
        QCOMPARE(device.value("note").toString(), values.value(5));
    }

    void showsNoPassword()
    {
        FavouriteListModel model;
        model.load(threeFiles());
        const QHash<int, QByteArray> roles = model.roleNames();
        for (auto role = roles.cbegin(); role != roles.cend(); ++role) {
            const QString text = model.data(model.index(0), role.key()).toString();
            QVERIFY2(!text.contains("cipher"), role.value().constData());
        }
        for (const QVariant &value : model.get(0))
            QVERIFY(!value.toString().contains("cipher"));
    }

    void filters_data()
    {
        const auto row = dataTable<QString, QStringList>({"text", "rows"});
        row("all", "", QStringList{"1 10.0.0.1", "2 OV7QK2M4", "3 10.0.0.2"});
        row("address", "10.0", QStringList{"1 10.0.0.1", "3 10.0.0.2"});
        row("note", QString::fromUtf8("仓"), QStringList{"3 10.0.0.2"});
        row("not by password", "cipher", QStringList());
    }

    void filters()
    {
        QFETCH(QString, text);
        FavouriteListModel model;
        const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
        model.setSearchText("something else");
        model.load(threeFiles());
        model.setSearchText(text);
        QTEST(shown(model), "rows");
        QCOMPARE(model.totalCount(), 3);
    }

    /// A favourite that the filter hides stays checked, but actions do not apply to it.
    void actionsApplyToShownRows()
    {
        FavouriteListModel model;
        model.load(threeFiles());
        const QSignalSpy counted(&model, &FavouriteListModel::checkedCountChanged);
        model.setRangeChecked(-1, 1, true);
        QCOMPARE(model.checkState(), Qt::PartiallyChecked);
        QCOMPARE(counted.count(), 1);
        model.setSearchText("site");
        QCOMPARE(model.checkedIdentities(), QStringList{"b.json"});
        QCOMPARE(model.checkState(), Qt::Checked);
        model.setAllChecked(false);
        model.setSearchText("");
        QCOMPARE(model.checkedIdentities(), QStringList{"a.json"});
        model.setSearchText("nothing has this");
        model.setAllChecked(true);
        QCOMPARE(model.checkState(), Qt::Unchecked);
    }

    /// Loading again after a change keeps the check marks and results of the remaining favourites.
    void keepsCheckMarksAndResults()
    {
        FavouriteListModel model;
        model.load(threeFiles());
        model.setAllChecked(true);
        model.takeResults({QVariantMap{{"identity", "a.json"}, {"result", 0}},
                           QVariantMap{{"identity", "c.json"}, {"result", 2}, {"message", "wrong password"}}},
                          "added");
        QCOMPARE(model.checkedIdentities(), (QStringList{"b.json", "c.json"}));

        QVariantMap files = threeFiles();
        files.remove("a.json");
        files.insert("c.json", favourite("0", "10.0.0.2", "changed"));
        model.load(files);
        QCOMPARE(shown(model), (QStringList{"1 OV7QK2M4", "2 10.0.0.2"}));
        QCOMPARE(model.checkedIdentities(), (QStringList{"b.json", "c.json"}));
        QCOMPARE(model.get(1).value("message").toString(), QString("wrong password"));
        QCOMPARE(model.get(1).value("note").toString(), QString("changed"));
        QCOMPARE(model.rowOf("a.json"), -1);
        QVERIFY(model.device("a.json").isEmpty());
        QCOMPARE(model.devicesToAdd({"a.json", "c.json"}).size(), 1);

        model.forgetProgress();
        QCOMPARE(model.get(1).value("progress").toInt(), int(FavouriteListModel::Untried));
        model.takeResults({QVariantMap{{"identity", "a.json"}, {"result", 0}}}, "gone meanwhile");
    }
};

QTEST_GUILESS_MAIN(TestFavouriteListModel)
#include "tst_favouritelistmodel.moc"
