#include "device/models/treemodel.h"
#include "device/models/treerows.h"
#include "tests/device/rowsbackend.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QTest>

class TestTreeModel : public QObject
{
    Q_OBJECT
private:
    std::unique_ptr<RowsFactory> m_site;
    std::unique_ptr<OVTreeModel> m_model;
    std::unique_ptr<QAbstractItemModelTester> m_tester;

    QStringList texts() const
    {
        QStringList lines;
        for (int group = 0; group < m_model->rowCount(); ++group) {
            const QModelIndex parent = m_model->index(group, 0);
            QStringList devices;
            for (int device = 0; device < m_model->rowCount(parent); ++device)
                devices.append(m_model->index(device, 0, parent).data(OVTreeModel::NameRole).toString());
            lines.append(parent.data(OVTreeModel::NameRole).toString() + ": " + devices.join(' '));
        }
        return lines;
    }

    QVariant state(int group, int device = -1) const
    {
        const QModelIndex parent = m_model->index(group, 0);
        return (device < 0 ? parent : m_model->index(device, 0, parent)).data(OVTreeModel::IsCheckedRole);
    }

private Q_SLOTS:
    void init()
    {
        m_site = std::make_unique<RowsFactory>();
        RowsBackEnd &rows = *m_site->rows;
        rows.add({.address = "127.0.0.1", .mac = "m0", .type = "PC-NVR"});
        rows.add({.address = "10.0.0.1", .mac = "m1", .type = "Other"});
        rows.add({.address = "10.0.0.2", .mac = "m2", .type = "SD"});
        rows.add({.address = "10.0.0.3", .mac = "m3", .type = "IPC", .name = "大厅"});
        rows.add({.address = "10.0.0.4",
                  .mac = "m4",
                  .type = "IPC",
                  .state = sdk::InitialisationBits::Uninitialised});
        rows.add({.address = "10.0.0.5", .mac = "m5", .type = "IPC", .name = "Gate b-2230-IR"});
        rows.add({.address = "10.0.0.6", .mac = "m6", .type = ""});
        m_model = std::make_unique<OVTreeModel>();
        m_tester = std::make_unique<QAbstractItemModelTester>(m_model.get());
        m_model->setDeviceFactory(&m_site->factory);
        m_model->resetItems("removeuninit", "");
    }

    void cleanup()
    {
        m_tester.reset();
        m_model.reset();
        m_site.reset();
    }

    void groupsDevicesByType()
    {
        QCOMPARE(texts(), QStringList({"IPC: 10.0.0.3:37777 10.0.0.5:37777", "SD: 10.0.0.2:37777",
                                       "PC-NVR: 127.0.0.1:37777", "Other: 10.0.0.1:37777 10.0.0.6:37777"}));
        QCOMPARE(m_model->roleNames().values().size(), 3);
    }

    /// The rows of the back end are in the order of the search responses.
    void devicesAreSortedByAddress()
    {
        for (const char *address : {"10.0.0.30", "10.0.0.9", "9.255.0.1"})
            m_site->rows->add({.address = address, .mac = address, .type = "SD"});
        m_model->resetItems("removeuninit", "");
        QCOMPARE(texts().at(1), "SD: 9.255.0.1:37777 10.0.0.2:37777 10.0.0.9:37777 10.0.0.30:37777");
        m_model->resetItems("search", "10.0.0");
        QCOMPARE(texts().at(1), "SD: 10.0.0.2:37777 10.0.0.9:37777 10.0.0.30:37777");
    }

    /// Shows devices without a login or with a failed last login.
    void canShowOnlyDevicesWithoutALogin()
    {
        const auto noteLogin = [this](qsizetype index, bool loggedIn) {
            QJsonObject row = m_site->rows->ipv4.at(index).toJsonObject();
            row.insert("loggedIn", loggedIn);
            m_site->rows->ipv4[index] = row;
        };
        noteLogin(2, true);
        noteLogin(3, true);
        noteLogin(5, false);
        m_model->setShown(OVTreeModel::LoggedOut);
        const QStringList others = {"PC-NVR: 127.0.0.1:37777", "Other: 10.0.0.1:37777 10.0.0.6:37777"};
        QCOMPARE(texts(), QStringList("IPC: 10.0.0.5:37777") + others);
        noteLogin(5, true);
        m_model->resetItems("removeuninit", "");
        QCOMPARE(texts(), others);
        QCOMPARE(m_model->loggedOutCount(), 3);
        m_model->setShown(OVTreeModel::All);
        QCOMPARE(m_model->deviceCount(), 6);
        QCOMPARE(m_model->loggedOutCount(), 3);
    }

    void anUnusualPortIsShown()
    {
        m_site->rows->add({.address = "10.0.0.3", .mac = "m7", .type = "IPC"});
        QJsonObject other = m_site->rows->ipv4.constLast().toJsonObject();
        other.insert("ipport", "10.0.0.3:8000");
        m_site->rows->ipv4.last() = other;
        m_model->resetItems("removeuninit", "");
        DeviceTreeRows rows;
        rows.setTree(m_model.get());
        QStringList labels;
        for (int row = 1; row < 4; ++row)
            labels.append(rows.index(row).data(DeviceTreeRows::LabelRole).toString());
        QCOMPARE(labels, QStringList({"10.0.0.3:8000", "10.0.0.3", "10.0.0.5"}));
        QCOMPARE(rows.deviceAt(2), "10.0.0.3:37777");
    }

    void ticksAndResultsRemainAfterARebuild()
    {
        const QModelIndex device = m_model->index(0, 0, m_model->index(0, 0));
        QCOMPARE(m_model->devicesToWatch().size(), m_model->deviceCount());
        m_model->setData(device, true, OVTreeModel::IsCheckedRole);
        m_model->setData(device, 999, OVTreeModel::CopyRetRole);
        m_model->resetItems("search", "SD");
        m_model->resetItems("removeuninit", "");
        QCOMPARE(m_model->checkedDevices(), QStringList("10.0.0.3:37777"));
        QCOMPARE(m_model->devicesToWatch(),
                 QVariantList({QVariantMap{{"ipport", "10.0.0.3:37777"}, {"name", "大厅"}}}));
        QCOMPARE(state(0), Qt::PartiallyChecked);
        QCOMPARE(m_model->index(0, 0, m_model->index(0, 0)).data(OVTreeModel::CopyRetRole), 999);

        // They follow the device to its new address, and do not pass to a device with the old one.
        QJsonObject moved = m_site->rows->ipv4.at(3).toJsonObject();
        moved.insert("ipport", "10.0.0.9:37777");
        m_site->rows->ipv4[3] = moved;
        m_site->rows->add({.address = "10.0.0.3", .mac = "m9", .type = "IPC"});
        m_model->resetItems("removeuninit", "");
        QCOMPARE(m_model->checkedDevices(), QStringList("10.0.0.9:37777"));
        QCOMPARE(m_model->index(0, 0, m_model->index(0, 0)).data(OVTreeModel::CopyRetRole), -1);
    }

    void devicesWithoutAMacAreTickedIndividually()
    {
        for (int device = 0; device < 2; ++device)
            m_site->rows->add({.address = "10.0.0.7", .mac = "", .type = "SD"});
        QJsonObject second = m_site->rows->ipv4.constLast().toJsonObject();
        second.insert("duplicate", 1); // as the store distinguishes them
        m_site->rows->ipv4.last() = second;
        m_model->resetItems("removeuninit", "");
        const QModelIndex group = m_model->index(1, 0);
        m_model->setData(m_model->index(2, 0, group), true, OVTreeModel::IsCheckedRole);
        m_model->resetItems("removeuninit", "");
        QCOMPARE(state(1, 1), Qt::Unchecked);
        QCOMPARE(state(1, 2), Qt::Checked);
    }

    void aResultIsShownAtItsDevice()
    {
        m_model->setResult("10.0.0.5:37777", 999);
        m_model->setResult("10.9.9.9:1", 0);
        m_site->rows->add(
            {.address = "10.0.0.2", .mac = "m9", .type = "IPC"}); // in conflict with a device of the type SD
        m_model->resetItems("removeuninit", "");
        m_model->setResult("10.0.0.2:37777", 5);
        QCOMPARE(m_model->index(0, 0, m_model->index(0, 0)).data(OVTreeModel::CopyRetRole), 5);
        QCOMPARE(m_model->index(0, 0, m_model->index(1, 0)).data(OVTreeModel::CopyRetRole), 5);
        const QModelIndex device = m_model->index(2, 0, m_model->index(0, 0));
        QCOMPARE(device.data(OVTreeModel::CopyRetRole), 999);
        m_model->resetItems("search", "SD"); // hidden
        m_model->clearResults();
        m_model->resetItems("removeuninit", "");
        QCOMPARE(m_model->index(2, 0, m_model->index(0, 0)).data(OVTreeModel::CopyRetRole),
                 int(OVTreeModel::NoResult));
    }

    void rowsOfClosedGroupsAreHidden()
    {
        DeviceTreeRows rows;
        const QAbstractItemModelTester tester(&rows);
        rows.setTree(m_model.get());
        const auto titles = [&rows] {
            QStringList list;
            for (int row = 0; row < rows.rowCount(); ++row)
                list.append(rows.index(row).data(DeviceTreeRows::TitleRole).toString().section('.', -1));
            return list.join(' ');
        };
        QCOMPARE(titles(), "IPC 3:37777 5:37777 SD 2:37777 PC-NVR 1:37777 Other 1:37777 6:37777");
        QCOMPARE(rows.groupRowOf(4), 3);
        const QString third = rows.identityAt(2);
        QCOMPARE(rows.rowOf(third), 2);
        QCOMPARE(rows.rowOf(rows.identityAt(3)), 3);
        QCOMPARE(rows.deviceAt(2), "10.0.0.5:37777");
        QCOMPARE(rows.deviceAt(3), "");
        rows.setOpen(0, false);
        rows.setOpen(0, false);
        QCOMPARE(titles(), "IPC SD 2:37777 PC-NVR 1:37777 Other 1:37777 6:37777");
        QCOMPARE(rows.rowOf(third), -1);
        m_model->resetItems("nofilter", ""); // the group remains closed
        QCOMPARE(titles(), "IPC SD 2:37777 PC-NVR 1:37777 Other 1:37777 6:37777");
        QCOMPARE(rows.index(0).data(DeviceTreeRows::CountRole).toInt(), 3);

        QSignalSpy changed(&rows, &QAbstractItemModel::dataChanged);
        rows.toggleTick(0); // the group's row only: its devices are hidden
        QCOMPARE(changed.size(), 1);
        QCOMPARE(m_model->checkedCount(), 3);
        rows.setOpen(0, true);
        QCOMPARE(titles(), "IPC 3:37777 4:37777 5:37777 SD 2:37777 PC-NVR 1:37777 Other 1:37777 6:37777");
        rows.toggleTick(2);
        QCOMPARE(rows.index(0).data(DeviceTreeRows::TickRole).toInt(), int(Qt::PartiallyChecked));
        changed.clear();
        m_model->setResult("10.0.0.6:37777", 0);
        QCOMPARE(changed.size(), 1);
        QCOMPARE(changed.first().first().toModelIndex().row(), 10);
        QCOMPARE(rows.index(1).data(DeviceTreeRows::DetailRole).toString(), "大厅 · B-2230-IR");
        QCOMPARE(rows.index(3).data(DeviceTreeRows::DetailRole).toString(), "Gate b-2230-IR");

        rows.setOpen(1, false); // not a group
        rows.setOpen(99, false);
        rows.toggleTick(-1);
        QCOMPARE(rows.rowCount(), 11);
        m_model.reset();
        QCOMPARE(rows.rowCount(), 0);
        m_tester.reset();
    }
};

QTEST_GUILESS_MAIN(TestTreeModel)
#include "tst_treemodel.moc"
