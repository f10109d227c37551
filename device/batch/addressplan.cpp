#include "device/batch/addressplan.h"

#include "device/models/modelkeys.h"
#include "device/store/devicerow.h"
#include "device/store/ipv4address.h"

AddressPlan::AddressPlan(QObject *parent) : BatchPreview(parent) {}

void AddressPlan::setStartAddress(const QString &startAddress)
{
    change(m_startAddress, startAddress);
}

void AddressPlan::setMask(const QString &mask)
{
    change(m_mask, mask);
}

void AddressPlan::setGateway(const QString &gateway)
{
    change(m_gateway, gateway);
}

void AddressPlan::setSameAddress(bool sameAddress)
{
    change(m_sameAddress, sameAddress);
}

void AddressPlan::setDhcp(bool dhcp)
{
    change(m_dhcp, dhcp);
}

bool AddressPlan::isGatewayOutside() const
{
    const std::optional<std::uint32_t> start = ipv4Number(m_startAddress);
    const std::optional<std::uint32_t> mask = ipv4Number(m_mask);
    const std::optional<std::uint32_t> gateway = ipv4Number(m_gateway);
    return start && gateway && mask && isSubnetMask(*mask) && (*gateway & *mask) != (*start & *mask);
}

void AddressPlan::prepare()
{
    const std::optional<std::uint32_t> start = ipv4Number(m_startAddress);
    m_numbers.clear();
    m_timesGiven.clear();
    QSet<QString> leaving; // devices that will leave their address
    std::uint32_t step = 0;
    for (int row = 0; row < rowCount(); ++row) {
        if (!start || !isChecked(row)) {
            m_numbers.append(std::nullopt);
            continue;
        }
        m_numbers.append(*start + step); // wraps around after the highest address
        step += m_sameAddress ? 0 : 1;
        // A device that will not be changed keeps its address.
        if (hindranceOf(row).isEmpty()) {
            ++m_timesGiven[*m_numbers.constLast()];
            leaving.insert(identityOf(deviceAt(row)));
        }
    }
    m_taken.clear();
    for (const ListedDevice &device : listedDevices()) {
        if (leaving.contains(device.identity))
            continue;
        const QString &ipport = device.ipport;
        if (const auto address = ipv4Number(QStringView(ipport).left(ipport.lastIndexOf(QLatin1Char(':')))))
            m_taken.insert(*address, device.description);
    }
}

QString AddressPlan::hindranceOf(int row) const
{
    // The request needs the MAC or UUID that the device itself has reported.
    const QString hindrance = BatchPreview::hindranceOf(row);
    const QVariantMap device = deviceAt(row);
    const bool isNameless =
        device.value(DeviceRowKey::mac).toString().isEmpty() && !identityOf(device).startsWith(uuidPrefix);
    return hindrance.isEmpty() && isNameless ? tr("没有MAC，不会修改") : hindrance;
}

AddressPlan::Issue AddressPlan::issueOf(int row) const
{
    if (!hindranceOf(row).isEmpty())
        return NotChanged;
    const std::optional<std::uint32_t> number = numberOf(row);
    if (m_dhcp || !number)
        return NoIssue;
    if (m_taken.contains(*number))
        return TakenByOther;
    if (m_timesGiven.value(*number) > 1)
        return TakenInBatch;
    if (ipv4Number(m_gateway) == number)
        return IsGateway;
    const std::optional<std::uint32_t> mask = ipv4Number(m_mask);
    if (!mask || !isSubnetMask(*mask))
        return NoIssue; // the mask field shows that the mask is invalid
    if ((*number & *mask) != (ipv4Number(m_startAddress).value_or(0) & *mask))
        return OutsideSubnet;
    const std::uint32_t host = *number & ~*mask;
    return host == 0 || host == ~*mask ? NoDeviceAddress : NoIssue;
}

QString AddressPlan::textOf(Issue issue)
{
    switch (issue) {
    case TakenByOther:
        return tr("与其他设备冲突");
    case TakenInBatch:
        return tr("与本批设备冲突");
    case IsGateway:
        return tr("与网关地址相同");
    case OutsideSubnet:
        return tr("超出起始IP的网段");
    case NoDeviceAddress:
        return tr("网络地址或广播地址");
    default:
        return {};
    }
}

BatchPreview::Judgement AddressPlan::judgementOf(int row) const
{
    const Issue issue = issueOf(row);
    if (issue == NotChanged)
        return {.kind = Skipped, .note = hindranceOf(row)};
    return {.kind = issue == NoIssue ? Planned : Warned,
            .action = m_dhcp ? QStringLiteral("DHCP") : addressOf(row),
            .note = textOf(issue),
            .isConflict = issue == TakenByOther || issue == TakenInBatch};
}

std::optional<std::uint32_t> AddressPlan::numberOf(int row) const
{
    return row >= 0 && row < m_numbers.size() ? m_numbers.at(row) : std::nullopt;
}

QString AddressPlan::addressOf(int row) const
{
    const std::optional<std::uint32_t> number = numberOf(row);
    return number ? ipv4Text(*number) : QString();
}

QStringList AddressPlan::addresses() const
{
    QStringList addresses;
    for (int row = 0; row < rowCount(); ++row) {
        if (isChecked(row))
            addresses.append(addressOf(row));
    }
    return addresses;
}

QString AddressPlan::otherDeviceAt(int row) const
{
    const std::optional<std::uint32_t> number = numberOf(row);
    return number ? m_taken.value(*number) : QString();
}

QVariantMap AddressPlan::valuesOf(int row) const
{
    QVariantMap values = BatchPreview::valuesOf(row);
    values.insert(RowKey::issue, isChecked(row) ? issueOf(row) : NoIssue);
    return values;
}
