#include "device/dh/lists/devicelistimport.h"

#include "device/dh/lists/devicelistvalues.h"
#include "device/store/devicerow.h"
#include "device/store/devicestore.h"

#include <QCoreApplication>
#include <QHash>

#include <algorithm>
#include <utility>

namespace {

constexpr int defaultPort = 37777;
constexpr int highestPort = 65535;
constexpr std::array credentials = {ListColumn::Username, ListColumn::Password};

/// Normalised spelling of a MAC.
QString normalised(const QString &mac)
{
    return mac.toLower().replace(QLatin1Char('-'), QLatin1Char(':'));
}

/// The port of a line; the default port if it is empty, nullopt if it is invalid.
std::optional<int> portOf(const DeviceListLine &line)
{
    const QString &text = line[ListColumn::DevicePort];
    if (text.isEmpty())
        return defaultPort;
    bool isNumber = false;
    const int port = text.toInt(&isNumber);
    return isNumber && port >= 1 && port <= highestPort ? std::optional(port) : std::nullopt;
}

/// Whether the text is an IPv4 address or a host name.
bool isHost(const QString &address)
{
    return std::all_of(address.begin(), address.end(), [](QChar character) {
        const bool isLetter = character.unicode() < 0x80 && character.isLetterOrNumber();
        return isLetter || character == QLatin1Char('.') || character == QLatin1Char('-') ||
               character == QLatin1Char('_');
    });
}

bool isLoopback(const QString &address)
{
    return address == ListWord::serviceAddress;
}

/// Why a line is invalid, in the user's language; empty if it is valid.
QString faultOf(const DeviceListLine &line)
{
    if (line.hasTooManyFields)
        return QCoreApplication::translate("DeviceList", "字段比表头多");
    for (const QString &value : line.values) {
        if (QString fault = faultOfText(value); !fault.isEmpty())
            return fault;
    }
    const QString &mode = line[ListColumn::AddMode];
    const bool p2p = mode == ListWord::byP2P;
    if (!p2p && !mode.isEmpty() && mode != ListWord::byAddress)
        return QCoreApplication::translate("DeviceList", "不支持的添加模式");
    const QString &address = line[ListColumn::IPAddress];
    if (address.isEmpty() || (!p2p && !isHost(address)))
        return QCoreApplication::translate("DeviceList", "设备地址无效");
    if (!portOf(line))
        return QCoreApplication::translate("DeviceList", "设备端口无效");
    if (std::any_of(credentials.begin(), credentials.end(),
                    [&line](ListColumn column) { return line[column].isEmpty(); }))
        return QCoreApplication::translate("DeviceList", "缺少用户名或密码");
    return {};
}

/// The device of a valid line.
DeviceToAdd deviceOf(const DeviceListLine &line)
{
    // Device software on the host is listed as P2P with the loopback address, which is not a P2P ID.
    const QString &address = line[ListColumn::IPAddress];
    return {.address = address,
            .port = portOf(line).value_or(defaultPort),
            .account = line[ListColumn::Username],
            .password = line[ListColumn::Password],
            .p2p = line[ListColumn::AddMode] == ListWord::byP2P && !isLoopback(address)};
}

QString targetOf(const DeviceToAdd &device)
{
    return device.address + QLatin1Char(':') + QString::number(device.port);
}

QString titleOf(const DeviceListLine &line)
{
    return deviceTitle(line[ListColumn::DeviceName].left(maximumListText),
                       line[ListColumn::Model].left(maximumListText));
}

StepOutcome alreadyListed()
{
    return {.result = resultCode(LoginResult::AlreadyListed), .text = {}};
}

} // namespace

DeviceListImport::DeviceListImport(RowAdding adding, std::vector<DeviceListLine> lines)
    : m_adding(std::move(adding)), m_lines(std::move(lines))
{
}

QString DeviceListImport::refusalOf(const std::vector<DeviceListLine> &lines)
{
    QHash<QString, int> numbers;
    for (const DeviceListLine &line : lines) {
        const QString mac = normalised(line[ListColumn::Mac]);
        if (mac.isEmpty())
            continue;
        const auto earlier = numbers.constFind(mac);
        if (earlier != numbers.cend())
            return QCoreApplication::translate("DeviceList", "第 %1 行与第 %2 行的MAC地址相同：%3")
                .arg(*earlier)
                .arg(line.number)
                .arg(line[ListColumn::Mac].left(maximumListText));
        numbers.insert(mac, line.number);
    }
    return {};
}

std::vector<ImportLine> DeviceListImport::plan(const std::shared_ptr<DeviceListImport> &import)
{
    std::vector<ImportLine> plan;
    plan.reserve(import->m_lines.size());
    QHash<std::pair<QString, QString>, qsizetype> accounts; // number of each account: no secret in `login`
    for (std::size_t index = 0; index < import->m_lines.size(); ++index) {
        const DeviceListLine &line = import->m_lines[index];
        const DeviceToAdd device = deviceOf(line);
        const QJsonObject row = import->m_adding.store().rowAt(targetOf(device));
        const std::pair account(device.account, device.password);
        const qsizetype login = accounts.value(account, accounts.size());
        accounts.insert(account, login);
        plan.push_back({.position = {.number = line.number, .address = device.address.left(maximumListText)},
                        .device = row.isEmpty() ? targetOf(device) : rowName(row),
                        .title = titleOf(line),
                        .login = QString::number(login),
                        .step = [import, index](const StepControl &control) {
                            return import->add(index, control);
                        }});
    }
    return plan;
}

StepOutcome DeviceListImport::add(std::size_t index, const StepControl &control)
{
    const DeviceListLine &line = m_lines[index];
    if (const QString fault = faultOf(line); !fault.isEmpty())
        return {.result = unusableLine, .text = fault};
    const DeviceToAdd device = deviceOf(line);
    {
        const std::lock_guard lock(m_mutex);
        if (m_addedTargets.contains(targetOf(device)))
            return alreadyListed();
    }
    StepOutcome outcome =
        m_adding.add(device, control, [this, &line](RowLoginOutcome &login) { return review(line, login); });
    if (outcome.result == resultCode(LoginResult::Success)) {
        const std::lock_guard lock(m_mutex);
        m_addedTargets.insert(targetOf(device));
    }
    return outcome;
}

std::optional<StepOutcome> DeviceListImport::review(const DeviceListLine &line, RowLoginOutcome &login)
{
    // Two lines may name the same device: the MAC in the list may be missing or wrong.
    const QString mac = normalised(login.row.value(DeviceRowKey::mac).toString());
    if (!mac.isEmpty()) {
        const std::lock_guard lock(m_mutex);
        if (m_macs.contains(mac))
            return alreadyListed();
        m_macs.insert(mac);
    }
    completeFrom(login.row, line, login.record.has_value());
    // A device that reports no MAC must not replace the row of the device with the MAC in the list.
    if (mac.isEmpty() && !m_adding.store().row(login.row.value(DeviceRowKey::mac).toString()).isEmpty())
        login.row.insert(DeviceRowKey::mac, QString());
    return std::nullopt;
}
