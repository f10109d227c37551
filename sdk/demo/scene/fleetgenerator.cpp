#include "sdk/demo/scene/fleetgenerator.h"

#include <QHash>
#include <QRandomGenerator>

#include <array>

using namespace Qt::StringLiterals;

namespace sdk::demo {

namespace {

constexpr quint32 seed = 20240229;
constexpr int shortestLatency = 40;
constexpr int longestGeneratedLatency = 2540;

/// One kind of device and its share in percent.
struct Kind
{
    const char *type;
    const char *model;
    int share;
    int mostChannels;
};

constexpr std::array kinds = {
    Kind{"IPC", "B-22%1-IR", 58, 1},    Kind{"NVR", "R-4%1-16P", 14, 64}, Kind{"SD", "P-63%1-X25", 9, 1},
    Kind{"SVR", "E-51%1-HD", 6, 32},    Kind{"ITC", "T-93%1-L2", 4, 1},   Kind{"PC-NVR", "W-10%1", 3, 64},
    Kind{"Matrix", "M-70%1-4K", 2, 16}, Kind{"Other", "X-%1", 4, 1},
};

constexpr std::array locations = {u"Gate", u"Parking", u"Lobby", u"Warehouse", u"Façade", u"Lagerhalle",
                                  u"东门", u"停车场",  u"大厅",  u"仓库",      u"电梯",   u"走廊"};
constexpr std::array locationSides = {u"", u" North", u" South", u" 北", u" 南", u" Ost"};

class Dice
{
public:
    /// From `lowest` to `highest`, both included.
    int number(int lowest, int highest) { return m_random.bounded(lowest, highest + 1); }
    bool oncein(int count) { return number(1, count) == 1; }
    template<typename List>
    const auto &oneOf(const List &list)
    {
        return list[static_cast<std::size_t>(number(0, static_cast<int>(list.size()) - 1))];
    }

private:
    QRandomGenerator m_random{seed};
};

const Kind &randomKind(Dice &dice)
{
    int rest = dice.number(1, 100);
    for (const Kind &kind : kinds) {
        rest -= kind.share;
        if (rest <= 0)
            return kind;
    }
    return kinds.back();
}

/// Unique for every index: 10.16.0.1, 10.16.0.2, ...; .0 and .255 are left out.
QString addressAt(int index)
{
    constexpr int hostsPerBlock = 254;
    const int block = index / hostsPerBlock;
    return u"10.%1.%2.%3"_s.arg(16 + block / 256).arg(block % 256).arg(1 + index % hostsPerBlock);
}

QString macAt(int index)
{
    const QString digits = u"%1"_s.arg(0x100000 + index, 6, 16, QLatin1Char('0'));
    return u"02:1a:c5:%1:%2:%3"_s.arg(digits.first(2), digits.sliced(2, 2), digits.last(2));
}

InitialisationBits randomState(Dice &dice)
{
    const int state = dice.number(1, 100);
    if (state <= 15)
        return InitialisationBits::Uninitialised;
    return state <= 20 ? InitialisationBits::NotReported : InitialisationBits::Initialised;
}

/// Lists of channels and accounts, whose memory the devices share until one is changed.
class SharedLists
{
public:
    QList<SceneChannel> channels(int count)
    {
        QList<SceneChannel> &list = m_channels[count];
        if (list.isEmpty())
            list.resize(count);
        return list;
    }
    const QList<SceneAccount> &accounts() const { return m_accounts; }

private:
    QHash<int, QList<SceneChannel>> m_channels; // by the number of channels
    const QList<SceneAccount> m_accounts = {{u"admin"_s, u"Installer-2024"_s}};
};

SceneDevice deviceAt(int index, Dice &dice, SharedLists &lists)
{
    const Kind &kind = randomKind(dice);
    SceneDevice device;
    device.mac = macAt(index);
    device.address = addressAt(index);
    device.mask = u"255.0.0.0"_s;
    device.gateway = u"10.0.0.1"_s;
    device.dhcp = dice.oncein(6);
    device.port = dice.oncein(20) ? dice.number(9000, 9099) : 8800;
    device.httpPort = dice.oncein(20) ? 8080 : 80;
    device.type = QString::fromLatin1(kind.type);
    device.model = QString::fromLatin1(kind.model).arg(dice.number(10, 99));
    device.name = u"%1%2 %3"_s.arg(dice.oneOf(locations), dice.oneOf(locationSides)).arg(index + 1);
    device.version = u"2.%1.%2"_s.arg(dice.number(400, 880)).arg(dice.number(0, 9));
    device.serial =
        u"%1%2"_s.arg(dice.number(0x10000, 0xFFFFF), 5, 16).arg(index, 7, 10, QLatin1Char('0')).toUpper();
    device.initialisation = randomState(dice);
    device.resetWay = static_cast<std::uint8_t>(dice.number(0, 3));
    device.channels = lists.channels(kind.mostChannels == 1 ? 1 : 4 * dice.number(1, kind.mostChannels / 4));
    if (device.initialisation != InitialisationBits::Uninitialised)
        device.accounts = lists.accounts();
    device.latency = std::chrono::milliseconds(dice.number(shortestLatency, longestGeneratedLatency));
    device.knowsFirstSearch = !dice.oncein(10);
    return device;
}

} // namespace

Scene FleetGenerator::generate(int count)
{
    count = std::clamp(count, 1, maximumSceneDevices);
    Scene scene;
    scene.title = u"Fleet of %1 devices"_s.arg(count);
    scene.localAddress = u"10.0.0.2"_s;
    scene.devices.reserve(count);
    Dice dice;
    SharedLists lists;
    for (int index = 0; index < count; ++index)
        scene.devices.append(deviceAt(index, dice, lists));
    return scene;
}

} // namespace sdk::demo
