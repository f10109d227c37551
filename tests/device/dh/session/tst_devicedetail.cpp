// The details of a device: from a search, and from a login that does not affect the current session.
#include "device/models/devicedetailmodel.h"
#include "tests/datatable.h"
#include "tests/device/dh/configsite.h"

using sdk::demo::Fault;
using sdk::demo::SceneDevice;

namespace {

SceneDevice recorder()
{
    SceneDevice device = configDevice(1, "NVR", 4);
    device.mask = "255.255.255.0";
    device.model = "R-4116";
    device.version = "2.840.1";
    device.channels[3].connected = false;
    device.capabilities = {{"disks", 2}, {"alarmInputs", 8}};
    return device;
}

} // namespace

class TestDeviceDetail : public QObject
{
    Q_OBJECT
private:
    std::unique_ptr<ConfigSite> m_site;
    SceneDevice m_device = recorder();

    QVariantMap read() const { return m_site->factory->readDeviceDetail("dh", ipportOf(m_device)); }

    static QString valueOf(const DeviceDetailModel &model, const QString &label)
    {
        for (int row = 0; row < model.rowCount(); ++row) {
            if (model.lineText(row).startsWith(label + ": "))
                return model.lineText(row).mid(label.size() + 2);
        }
        return {};
    }

private Q_SLOTS:
    void init() { m_site = std::make_unique<ConfigSite>(QList<SceneDevice>{m_device}); }
    void cleanup() { m_site.reset(); }

    void aLoginReportsPortsChannelsAndDisks()
    {
        QCOMPARE(m_site->login(m_device), 0);
        const QVariant handle = m_site->get("loginHandle");
        DeviceDetailModel model;
        model.load({{"ipport", ipportOf(m_device)}, {"password", "secret1"}, {"username", "admin"}});
        model.add(read());
        QCOMPARE(valueOf(model, "RTSP端口"), "554");
        QCOMPARE(valueOf(model, "通道数"), "4");
        QCOMPARE(valueOf(model, "已连接通道"), "3");
        QCOMPARE(valueOf(model, "硬盘数"), "2");
        QCOMPARE(valueOf(model, "版本号"), "v2.840.1");
        QCOMPARE(valueOf(model, "HTTPS端口"), ""); // off
        QVERIFY(!model.text().contains("secret1"));

        QCOMPARE(m_site->get("loginHandle"), handle);
        QCOMPARE(m_site->asked("NetLogout").size(), 1); // of the separate login
        QCOMPARE(m_site->factory->getDeviceChannelData("dh", "channelNames", 0).size(), 4);
    }

    void aFailedLoginReportsItsReason()
    {
        m_site->site->setFault(m_device.mac, {.fault = Fault::WrongPassword, .number = 0, .text = {}});
        QCOMPARE(read(), QVariantMap({{"loginResult", 2}}));
        QCOMPARE(m_site->factory->readDeviceDetail("other", "x"), QVariantMap());
    }

    void linesAreSearchedByGroupLabelAndValue()
    {
        DeviceDetailModel model;
        model.load({{"ipport", "[fe80::1]:37777"}, {"model", "B-2230"}, {"httpport", 80}, {"state", true}});
        const int all = model.rowCount();
        QCOMPARE(valueOf(model, "IPv6地址"), "fe80::1");
        QCOMPARE(valueOf(model, "服务端口"), "37777");
        model.setSearchText(" b-22");
        QCOMPARE(model.rowCount(), 1);
        QCOMPARE(model.lineText(0), "型号: B-2230");
        model.setSearchText("端口");
        QCOMPARE(model.rowCount(), 2);
        model.setSearchText("nothing");
        QCOMPARE(model.rowCount(), 0);
        QCOMPARE(model.totalCount(), all);
        QCOMPARE(model.lineText(0), "");
        model.load({});
        QCOMPARE(model.totalCount(), 0);
    }
};

QTEST_GUILESS_MAIN(TestDeviceDetail)
#include "tst_devicedetail.moc"
