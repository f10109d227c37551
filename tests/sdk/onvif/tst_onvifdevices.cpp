// The network library's interface with devices of a simulated site on real sockets. Runs inside the site's
// network (scripts/lab).
#include "sdk/blocktext.h"
#include "sdk/camerablocks.h"
#include "sdk/configrecords.h"
#include "sdk/configtext/configtext.h"
#include "sdk/encodeblocks.h"
#include "sdk/onvif/onvifnetlibrary.h"
#include "sdk/systemrecords.h"
#include "tests/datatable.h"
#include "tests/sdk/netlogin.h"
#include "tests/sdk/onvif/searchresponses.h"
#include "tests/sdk/realdatawatcher.h"

#include <QTemporaryDir>

#include <mutex>

using namespace Qt::StringLiterals;
using namespace sdk;
using namespace std::chrono_literals;

namespace {

const char *const account = "admin";
const char *const password = "Office-2024";

template<typename Item>
Item itemOf(std::int32_t stream = 0)
{
    Item item{};
    item.size = sizeof(item);
    if constexpr (requires { item.stream; })
        item.stream = stream;
    return item;
}

quint32 code(NetError error)
{
    return static_cast<quint32>(error);
}

/// The phases of an upgrade in their order.
class UpgradePhases
{
public:
    static void take(std::int64_t, const UpgradeProgress *progress, void *user)
    {
        auto *self = static_cast<UpgradePhases *>(user);
        const std::scoped_lock lock(self->m_mutex);
        const int phase = static_cast<int>(progress->phase);
        if (self->m_phases.isEmpty() || self->m_phases.last() != phase)
            self->m_phases.append(phase);
    }

    [[nodiscard]] QList<int> phases() const
    {
        const std::scoped_lock lock(m_mutex);
        return m_phases;
    }

private:
    mutable std::mutex m_mutex;
    QList<int> m_phases;
};

} // namespace

class OnvifDevicesTest : public QObject
{
    Q_OBJECT
private:
    onvif::OnvifNetLibrary m_net;
    QByteArray m_lastError;

    const char *lastError()
    {
        m_lastError = QByteArray::number(m_net.NetGetLastError(), 16);
        return m_lastError.constData();
    }

    LLONG login(const char *address, const char *secret = password)
    {
        return logIn(m_net, address, account, secret);
    }

    /// Empty while the device is offline.
    QString versionOf(const char *address)
    {
        const LLONG handle = login(address);
        DeviceAttributes attributes{};
        std::uint32_t returned = 0;
        m_net.NetQueryConfig(handle, QueryCommand::DeviceAttributes, 0, &attributes, sizeof(attributes),
                             returned, 3000ms);
        m_net.NetLogout(handle);
        return SearchResponses::textOf(attributes.softwareVersion);
    }

    template<typename Record>
    std::optional<Record> configuration(LLONG handle, const char *name, int channel = -1)
    {
        std::array<char, 32768> text{};
        std::int32_t error = 0;
        Record record{};
        if (!m_net.NetGetNewConfig(handle, name, channel, text.data(), text.size(), error, 5000ms) ||
            !unpackConfigText(name, text.data(), &record, sizeof(record)))
            return std::nullopt;
        return record;
    }

    template<typename Record>
    bool setConfiguration(LLONG handle, const char *name, const Record &record, int channel = -1)
    {
        const auto text = packConfigText(name, &record, sizeof(record));
        return text && setConfigurationText(handle, name, *text, channel);
    }

    bool setConfigurationText(LLONG handle, const char *name, const QByteArray &text, int channel = -1)
    {
        std::int32_t error = 0;
        return m_net.NetSetNewConfig(handle, name, channel, text.constData(),
                                     static_cast<std::uint32_t>(text.size()), error, 5000ms);
    }

private Q_SLOTS:
    void initTestCase() { QVERIFY(m_net.NetInit()); }

    void cleanupTestCase() { m_net.NetCleanup(); }

    void reportsTheReasonOfAFailedLogin_data()
    {
        const auto row = dataTable<QByteArray, QByteArray, quint32>({"address", "secret", "error"});
        row("wrong password", "192.168.1.103", "wrong", code(NetError::WrongPassword));
        row("wrong password, other login", "192.168.1.104", "wrong", code(NetError::WrongPassword));
        row("factory-new", "192.168.1.108", password, code(NetError::NotSupported));
        row("no device", "192.168.1.199", password, code(NetError::ConnectTimeout));
    }

    void reportsTheReasonOfAFailedLogin()
    {
        QFETCH(QByteArray, address);
        QFETCH(QByteArray, secret);
        QFETCH(quint32, error);
        QCOMPARE(login(address.constData(), secret.constData()), 0);
        QCOMPARE(m_net.NetGetLastError(), error);
    }

    void readsADevice()
    {
        const LLONG handle = login("192.168.1.101");
        QVERIFY2(handle > 0, lastError());
        DeviceAttributes attributes{};
        std::uint32_t returned = 0;
        QVERIFY(m_net.NetQueryConfig(handle, QueryCommand::DeviceAttributes, 0, &attributes,
                                     sizeof(attributes), returned, 3000ms));
        QCOMPARE(SearchResponses::textOf(attributes.mac), u"02:1a:c5:00:40:25"_s);
        QCOMPARE(attributes.videoInputs, 1);
        const auto network = configuration<NetworkRecord>(handle, "Network");
        QVERIFY(network);
        QCOMPARE(SearchResponses::textOf(network->address), u"192.168.1.101"_s);
        QCOMPARE(SearchResponses::textOf(network->subnetMask), u"255.255.255.0"_s);
        QVERIFY(!configuration<AutoMaintainRecord>(handle, "AutoMaintain"));
        QCOMPARE(m_net.NetGetLastError(), code(NetError::NotSupported));
        QVERIFY(m_net.NetLogout(handle));
        QVERIFY(!m_net.NetLogout(handle));
    }

    void setsClockZoneAndServer()
    {
        const LLONG handle = login("192.168.1.103");
        QVERIFY(handle > 0);
        NtpRecord ntp{};
        ntp.enabled = 1;
        ntp.timeZone = 13; // eight hours ahead
        setBlockText(ntp.address, "192.168.1.1");
        QVERIFY(setConfiguration(handle, "NTP", ntp));
        const auto read = configuration<NtpRecord>(handle, "NTP");
        QVERIFY(read && read->enabled == 1 && read->timeZone == 13);
        QCOMPARE(SearchResponses::textOf(read->address), u"192.168.1.1"_s);

        LocalesRecord locales{};
        locales.daylightSavingEnabled = 1;
        locales.begin = {.month = 3, .week = 2, .day = 0, .hour = 2, .minute = 30};
        locales.end = {.month = 11, .week = DaylightSavingPoint::lastWeek, .day = 6, .hour = 3, .minute = 0};
        QVERIFY(setConfiguration(handle, "Locales", locales));
        const auto rule = configuration<LocalesRecord>(handle, "Locales");
        QVERIFY(rule && rule->daylightSavingEnabled == 1 && rule->begin.month == 3 && rule->begin.week == 2 &&
                rule->begin.minute == 30 && rule->end.week == DaylightSavingPoint::lastWeek &&
                rule->end.day == 6);

        // A text without all keys leaves the other settings as they are.
        QVERIFY(!setConfigurationText(handle, "Locales", R"({"Locales": {"endMonth": 0}})"));
        QCOMPARE(m_net.NetGetLastError(), code(NetError::InvalidValue));
        QVERIFY(setConfigurationText(handle, "Locales", R"({"Locales": {"endMonth": 10}})"));
        QVERIFY(setConfigurationText(handle, "NTP", R"({"NTP": {"enabled": true}})"));
        const auto changed = configuration<LocalesRecord>(handle, "Locales");
        QVERIFY(changed && changed->daylightSavingEnabled == 1 && changed->begin.month == 3 &&
                changed->end.month == 10 && changed->end.day == 6);
        const auto kept = configuration<NtpRecord>(handle, "NTP");
        QVERIFY(kept && kept->enabled == 1 && kept->timeZone == 13);
        QCOMPARE(SearchResponses::textOf(kept->address), u"192.168.1.1"_s);

        const TimeRecord wanted = {.year = 2031, .month = 5, .day = 6, .hour = 7, .minute = 8, .second = 9};
        QVERIFY(m_net.NetSetDeviceSetting(handle, DeviceSetting::Time, -1, &wanted, sizeof(wanted), 3000ms));
        TimeRecord shown{};
        std::uint32_t returned = 0;
        QVERIFY(m_net.NetQueryConfig(handle, QueryCommand::Time, 0, &shown, sizeof(shown), returned, 3000ms));
        QVERIFY(shown.year == 2031 && shown.day == 6 && shown.hour == 7 && shown.minute == 8);
        m_net.NetLogout(handle);
        // The token of a login follows the device's clock, which now differs by years.
        const LLONG again = login("192.168.1.103");
        QVERIFY(again > 0);
        m_net.NetLogout(again);
    }

    void changesEncodeSettings()
    {
        const LLONG handle = login("192.168.1.140");
        QVERIFY(handle > 0);
        EncodeCapabilities capabilities{};
        capabilities.size = sizeof(capabilities);
        const EncodeCapabilityInput input = {
            .size = sizeof(input), .reserved1 = 0, .channel = 0, .reserved2 = 0, .text = ""};
        QVERIFY(m_net.NetQueryCapabilities(handle, CapabilityQuery::Encode, &input, &capabilities, 5000ms));
        const EncodeCapabilityBlock &main = capabilities.blocks[0];
        QVERIFY((main.compressionMask >> compressionH264 & 1) != 0);
        QVERIFY(main.sizesByCompression[compressionH264].count > 1);
        const auto missing = [&capabilities](StreamKind kind) {
            return capabilities.blocks[static_cast<std::size_t>(kind)].missingValues;
        };
        const auto bit = [](EncodeValue value) {
            return 1U << static_cast<unsigned>(value);
        };
        const std::uint32_t switches = bit(EncodeValue::StreamSwitch) | bit(EncodeValue::AudioSwitch);
        QCOMPARE(missing(StreamKind::MainNormal) & ~bit(EncodeValue::BitRateControl), switches);
        QCOMPARE(missing(StreamKind::MainMotion), bit(EncodeValue::Stream));

        auto format = itemOf<VideoFormatItem>(streamNumber(StreamKind::MainNormal));
        const auto item = static_cast<std::uint32_t>(EncodeItem::VideoFormat);
        QVERIFY(m_net.NetGetItem(handle, item, 0, &format, sizeof(format), 5000ms));
        const FrameSize size = main.sizesByCompression[compressionH264].sizes[1];
        format.compression = compressionH264;
        format.width = size.width;
        format.height = size.height;
        format.bitRate = 1024;
        format.frameRate = 10;
        QVERIFY(m_net.NetSetItem(handle, item, 0, &format, sizeof(format), 5000ms));
        auto read = itemOf<VideoFormatItem>(streamNumber(StreamKind::MainNormal));
        QVERIFY(m_net.NetGetItem(handle, item, 0, &read, sizeof(read), 5000ms));
        QCOMPARE(QSize(read.width, read.height), QSize(size.width, size.height));
        QCOMPARE(read.bitRate, 1024);
        QCOMPARE(read.frameRate, 10.0F);

        format.width = 12345;
        QVERIFY(!m_net.NetSetItem(handle, item, 0, &format, sizeof(format), 5000ms));
        QCOMPARE(m_net.NetGetLastError(), code(NetError::InvalidValue));
        m_net.NetLogout(handle);
    }

    void changesTheImage()
    {
        const LLONG handle = login("192.168.1.106");
        QVERIFY(handle > 0);
        CameraCapabilities capabilities{};
        capabilities.size = sizeof(capabilities);
        const CameraCapabilityInput input = {.size = sizeof(input), .channel = 0};
        QVERIFY(m_net.NetQueryCapabilities(handle, CapabilityQuery::Camera, &input, &capabilities, 5000ms));
        QVERIFY((capabilities.groups & 1) != 0);
        QVERIFY((capabilities.missingValues >> static_cast<unsigned>(CameraValue::Hue) & 1) != 0);

        auto frame = itemOf<PictureItem>();
        const auto item = static_cast<std::uint32_t>(CameraItem::Picture);
        QVERIFY(m_net.NetGetItem(handle, item, 0, &frame, sizeof(frame), 5000ms));
        frame.brightness = frame.brightness == 30 ? 70 : 30;
        QVERIFY(m_net.NetSetItem(handle, item, 0, &frame, sizeof(frame), 5000ms));
        auto read = itemOf<PictureItem>();
        QVERIFY(m_net.NetGetItem(handle, item, 0, &read, sizeof(read), 5000ms));
        QCOMPARE(read.brightness, frame.brightness);
        QCOMPARE(read.contrast, frame.contrast);

        auto balance = itemOf<WhiteBalanceItem>();
        const auto balanceItem = static_cast<std::uint32_t>(CameraItem::WhiteBalance);
        QVERIFY(m_net.NetGetItem(handle, balanceItem, 0, &balance, sizeof(balance), 5000ms));
        balance.type = 4;
        balance.gainRed = 20;
        QVERIFY(m_net.NetSetItem(handle, balanceItem, 0, &balance, sizeof(balance), 5000ms));
        auto manual = itemOf<WhiteBalanceItem>();
        QVERIFY(m_net.NetGetItem(handle, balanceItem, 0, &manual, sizeof(manual), 5000ms));
        QVERIFY(manual.type == 4 && manual.gainRed == 20 && manual.gainBlue == balance.gainBlue);
        m_net.NetLogout(handle);
    }

    void showsALiveStream()
    {
        const LLONG handle = login("192.168.1.101");
        QVERIFY(handle > 0);
        QCOMPARE(m_net.NetStartRealStream(handle, 5, 0, LiveStreamKind::Main), 0);
        const std::int64_t stream = m_net.NetStartRealStream(handle, 0, 0, LiveStreamKind::Main);
        QVERIFY2(stream > 0, lastError());
        RealDataWatcher watcher;
        QVERIFY(m_net.NetSetRealDataCallback(stream, &RealDataWatcher::take, &watcher, 1));
        QVERIFY(m_net.NetStreamFollowUp(stream, 0, 0));
        QTRY_VERIFY_WITH_TIMEOUT(watcher.bytes().size() > 100'000, 20000);
        QVERIFY(watcher.bytes().startsWith("\x1a\x45\xdf\xa3")); // the container's beginning
        QVERIFY(m_net.NetStopRealStream(stream));
        QVERIFY(!m_net.NetStopRealStream(stream));
        m_net.NetLogout(handle);
    }

    void changesAPassword()
    {
        const LLONG handle = login("192.168.1.104");
        QVERIFY(handle > 0);
        ModifyPasswordInput input{};
        input.size = sizeof(input);
        setBlockText(input.account, account);
        setBlockText(input.oldPassword, password);
        setBlockText(input.newPassword, "Another-2025");
        QVERIFY(m_net.NetModifyPassword(handle, input, 5000ms));
        QVERIFY(configuration<NetworkRecord>(handle, "Network")); // the session continues
        m_net.NetLogout(handle);
        QCOMPARE(login("192.168.1.104"), 0);
        const LLONG again = login("192.168.1.104", "Another-2025");
        QVERIFY(again > 0);
        m_net.NetLogout(again);
    }

    void aPasswordThatWasChangedEndsTheSession()
    {
        const LLONG first = login("192.168.1.102");
        const LLONG second = login("192.168.1.102");
        QVERIFY(first > 0 && second > 0);
        ModifyPasswordInput input{};
        input.size = sizeof(input);
        setBlockText(input.account, account);
        setBlockText(input.oldPassword, password);
        setBlockText(input.newPassword, "Another-2025");
        QVERIFY(m_net.NetModifyPassword(second, input, 5000ms));
        for (int call = 0; call < 2; ++call) { // the second one sends nothing
            QVERIFY(!configuration<NetworkRecord>(first, "Network"));
            QCOMPARE(m_net.NetGetLastError(), code(NetError::SessionEnded));
        }
        m_net.NetLogout(first);
        m_net.NetLogout(second);
    }

    void initialisesADevice()
    {
        InitDeviceAccountInput input{};
        input.size = sizeof(input);
        setBlockText(input.address, "192.168.1.109");
        input.port = 80;
        setBlockText(input.account, account);
        setBlockText(input.password, password);
        DeviceRequestOutput output{.size = sizeof(output)};
        QVERIFY2(m_net.NetInitDeviceAccount(input, output, 5000ms, ""), lastError());
        QVERIFY(!m_net.NetInitDeviceAccount(input, output, 5000ms, ""));
        QCOMPARE(m_net.NetGetLastError(), code(NetError::NotSupported));
        const LLONG handle = login("192.168.1.109");
        QVERIFY(handle > 0);
        m_net.NetLogout(handle);
    }

    void givesAnAddress()
    {
        ModifyDeviceInput input{};
        input.size = sizeof(input);
        input.device = SearchResponses::found(m_net, u"192.168.1.130"_s);
        QVERIFY(input.device.port == 80);
        input.device.currentAddress = input.device.address;
        setBlockText(input.device.address, "192.168.1.230");
        setBlockText(input.device.subnetMask, "255.255.255.0");
        setBlockText(input.device.gateway, "192.168.1.1");
        setBlockText(input.device.account, account);
        setBlockText(input.device.password, password);
        DeviceRequestOutput output{.size = sizeof(output)};
        QVERIFY2(m_net.NetModifyDeviceBySearch(input, output, 8000ms), lastError());
        LLONG handle = 0;
        QTRY_VERIFY_WITH_TIMEOUT((handle = login("192.168.1.230")) > 0, 30000);
        const auto network = configuration<NetworkRecord>(handle, "Network");
        QVERIFY(network && blockText(network->gateway) == "192.168.1.1" && network->dhcpEnabled == 0);
        m_net.NetLogout(handle);

        setBlockText(input.device.password, "wrong");
        setBlockText(input.device.currentAddress, "192.168.1.131");
        QVERIFY(!m_net.NetModifyDeviceBySearch(input, output, 8000ms));
        QCOMPARE(m_net.NetGetLastError(), code(NetError::WrongPassword));
    }

    void upgradesFirmware()
    {
        QTemporaryDir folder;
        QFile file(folder.filePath(u"firmware.bin"_s));
        QVERIFY(file.open(QFile::WriteOnly));
        file.write("BRELM-FIRMWARE 1\nmodel=B-2105-F\nversion=9.100.0\n\n");
        file.write(QByteArray(300'000, 'x'));
        file.close();
        const LLONG handle = login("192.168.1.105");
        QVERIFY(handle > 0);
        UpgradePhases phases;
        const std::int64_t upgrade = m_net.NetStartUpgrade(handle, file.fileName().toLocal8Bit().constData(),
                                                           &UpgradePhases::take, &phases, 5000ms);
        QVERIFY2(upgrade > 0, lastError());
        QTRY_VERIFY_WITH_TIMEOUT(phases.phases().contains(static_cast<int>(UpgradePhase::Done)), 60000);
        QVERIFY(m_net.NetStopUpgrade(upgrade));
        // The device reboots when it has written the file. Its sessions end, although it would accept the
        // login.
        QTRY_COMPARE_WITH_TIMEOUT(versionOf("192.168.1.105"), u"9.100.0"_s, 60000);
        QVERIFY(!m_net.NetIsDeviceAlive(handle, 5000ms));
        QCOMPARE(m_net.NetGetLastError(), code(NetError::NetworkFailure));
        m_net.NetLogout(handle);
    }
};

QTEST_GUILESS_MAIN(OnvifDevicesTest)
#include "tst_onvifdevices.moc"
