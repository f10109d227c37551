#include "sdk/demo/internal/searchanswers.h"

#include "sdk/blocktext.h"

namespace sdk::demo {

namespace {

// What careless administrators and broken firmware leave in texts: a control character, a line break, markup
// and a place holder, half of a three-byte letter and bytes that never stand in UTF-8.
constexpr char oddBytes[] = "\x07<b>%1&amp;</b>\r\n\t\xE4\xB8\xFF\xFE\xC0";

/// Writes texts into fields as the device's faults have it.
class FieldWriter
{
public:
    explicit FieldWriter(const SceneDevice &device)
        : m_oddBytes(device.hasFault(Fault::OddBytes)), m_overLong(device.hasFault(Fault::OverLongTexts))
    {
    }

    template<std::size_t size>
    void write(std::array<char, size> &field, const QString &text) const
    {
        QByteArray bytes = text.toLocal8Bit();
        if (m_oddBytes)
            bytes.append(oddBytes);
        if (m_overLong)
            fill(field, bytes);
        else
            setBlockText(field, std::string_view(bytes.constData(), static_cast<std::size_t>(bytes.size())));
    }

private:
    /// Repeats the text to the last byte: no terminating zero, and as a rule half a letter at the end.
    template<std::size_t size>
    static void fill(std::array<char, size> &field, QByteArray bytes)
    {
        if (bytes.isEmpty())
            bytes = "?";
        for (std::size_t place = 0; place < size; ++place)
            field[place] = bytes.at(static_cast<qsizetype>(place) % bytes.size());
    }

    bool m_oddBytes;
    bool m_overLong;
};

template<std::size_t size>
void writePlain(std::array<char, size> &field, const QString &text)
{
    const QByteArray bytes = text.toLocal8Bit();
    setBlockText(field, std::string_view(bytes.constData(), static_cast<std::size_t>(bytes.size())));
}

} // namespace

SearchAnswer searchAnswer(const SceneDevice &device, int ipVersion, const QString &localAddress)
{
    SearchAnswer answer = {};
    answer.size = sizeof(SearchAnswer);
    writePlain(answer.localAddress, localAddress);

    SearchDeviceInformation &information = answer.device;
    information.ipVersion = ipVersion;
    information.port = device.port;
    if (ipVersion == 6) {
        writePlain(information.address, device.ipv6);
        writePlain(information.subnetMask, QString::number(device.ipv6PrefixLength));
    } else {
        writePlain(information.address, device.address);
        writePlain(information.subnetMask, device.mask);
        writePlain(information.gateway, device.gateway);
    }
    // Addresses and MAC stay whole whatever the faults: a device that lost them could not be told apart.
    writePlain(information.mac, device.mac);

    const FieldWriter writer(device);
    writer.write(information.deviceType, device.type);
    writer.write(information.detailModel, device.model);
    writer.write(information.deviceName, device.name);
    writer.write(information.softwareVersion, device.version);
    writer.write(information.serialNumber, device.serial);

    information.httpPort = static_cast<std::uint16_t>(device.httpPort);
    information.dhcpEnabled = device.dhcp ? 1 : 0;
    const InitialisationBits state =
        device.hasFault(Fault::NotInitialised) ? InitialisationBits::Uninitialised : device.initialisation;
    information.initialisationState = static_cast<std::uint8_t>(state);
    information.passwordResetWay = device.resetWay;
    return answer;
}

} // namespace sdk::demo
