#include "device/dh/internal/devicelistimport.h"

#include "device/devicerow.h"
#include "device/devicestore.h"
#include "device/dh/internal/devicelistvalues.h"
#include "device/dh/rowlogin.h"
#include "device/p2pports.h"

#include <QCoreApplication>
#include <QHash>

#include <algorithm>
#include <utility>

/// Where a line says that its device is.
struct DeviceListImport::Target
{
    QString address; ///< or the P2P ID
    int port = 0;    ///< the device's own
    ReachedBy reachedBy = ReachedBy::Address;

    [[nodiscard]] QString way() const { return address + QLatin1Char(':') + QString::number(port); }
};

namespace {

constexpr int defaultPort = 37777;
constexpr int highestPort = 65535;
constexpr std::array credentials = {ListColumn::Username, ListColumn::Password};

/// One spelling for all that mean the same address.
QString spelled(const QString &mac)
{
    return mac.toLower().replace(QLatin1Char('-'), QLatin1Char(':'));
}

/// The port of a line, which need not name one; nothing when what it names is none.
std::optional<int> portOf(const DeviceListLine &line)
{
    const QString &text = line[ListColumn::DevicePort];
    if (text.isEmpty())
        return defaultPort;
    bool isNumber = false;
    const int port = text.toInt(&isNumber);
    return isNumber && port >= 1 && port <= highestPort ? std::optional(port) : std::nullopt;
}

/// An IPv4 address or the name of a host.
bool isHost(const QString &address)
{
    return std::all_of(address.begin(), address.end(), [](QChar letter) {
        const bool isLetter = letter.unicode() < 0x80 && letter.isLetterOrNumber();
        return isLetter || letter == QLatin1Char('.') || letter == QLatin1Char('-') ||
               letter == QLatin1Char('_');
    });
}

bool isLoopback(const QString &address)
{
    return address == ListWord::serviceAddress;
}

/// What makes a line unusable before anything is asked; empty when nothing does.
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

ImportFailure failureOf(LoginResult result)
{
    return {.result = result, .reason = resultName(resultCode(result))};
}

} // namespace

DeviceListImport::DeviceListImport(DeviceStore &store, sdk::SdkLibraries libraries)
    : m_store(store), m_libraries(std::move(libraries))
{
}

QString DeviceListImport::refusalOf(const std::vector<DeviceListLine> &lines)
{
    QHash<QString, int> numbers;
    for (const DeviceListLine &line : lines) {
        const QString mac = spelled(line[ListColumn::Mac]);
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

std::optional<ImportFailure> DeviceListImport::add(const DeviceListLine &line, P2PPorts *ports)
{
    if (const QString fault = faultOf(line); !fault.isEmpty())
        return ImportFailure{.result = LoginResult::Unknown, .reason = fault};

    // Device software on this computer is listed as P2P too, by its loopback address; no ID looks like that.
    const QString &address = line[ListColumn::IPAddress];
    const bool p2p = line[ListColumn::AddMode] == ListWord::byP2P && !isLoopback(address);
    const Target target = {.address = address,
                           .port = portOf(line).value_or(defaultPort),
                           .reachedBy = p2p ? ReachedBy::P2P : ReachedBy::Address};
    if (m_ways.contains(target.way()))
        return failureOf(LoginResult::AlreadyListed);
    int webPort = 0;
    if (!p2p)
        return logIn(line, target, target.port, webPort);

    const int localPort = ports ? ports->portFor(target.address, target.port, 0) : 0;
    if (localPort <= 0) {
        const QString fault = ports ? ports->faultText() : QString();
        const QString reason = QCoreApplication::translate("DeviceList", "无法建立P2P通道");
        return ImportFailure{.result = LoginResult::NetworkFailure,
                             .reason = fault.isEmpty() ? reason : reason + QStringLiteral(": ") + fault};
    }
    // The port of a device that the table has already, or that is worked with, stays whatever comes of this.
    const bool inUse =
        ports->isKnown(localPort) || !m_store.rowAt(QStringLiteral("127.0.0.1:%1").arg(localPort)).isEmpty();
    std::optional<ImportFailure> failure = logIn(line, target, localPort, webPort);
    if (failure && !inUse)
        ports->release(localPort);
    else if (!failure)
        ports->pair(localPort, ports->portFor(target.address, webPort, 0));
    return failure;
}

/// Logs in at `port`, which with P2P is the local end of the tunnel. Sets the port of the device's web page.
std::optional<ImportFailure> DeviceListImport::logIn(const DeviceListLine &line, const Target &target,
                                                     int port, int &webPort)
{
    RowLoginOutcome outcome = loginForRow(m_libraries, {.address = target.address,
                                                        .account = line[ListColumn::Username],
                                                        .password = line[ListColumn::Password],
                                                        .port = port,
                                                        .reachedBy = target.reachedBy,
                                                        .devicePort = QString::number(target.port)});
    if (outcome.result != LoginResult::Success)
        return failureOf(outcome.result);
    // Two lines may lead to one device: the list may have said nothing of the MAC, or something else.
    const QString mac = spelled(outcome.row.value(DeviceRowKey::mac).toString());
    if (!mac.isEmpty() && m_macs.contains(mac))
        return failureOf(LoginResult::AlreadyListed);

    completeFrom(outcome.row, line, outcome.record.has_value());
    // A device that tells no MAC does not take the row of the one that the list names.
    if (mac.isEmpty() && !m_store.row(outcome.row.value(DeviceRowKey::mac).toString()).isEmpty())
        outcome.row.insert(DeviceRowKey::mac, QString());
    webPort = outcome.row.value(DeviceRowKey::httpport).toInt();
    m_ways.insert(target.way());
    m_macs.insert(mac);
    keepRow(m_store, outcome);
    return std::nullopt;
}
