#include "commandline/systemsettings.h"

#include "device/forms/systemtools.h"
#include "device/registry/systemkeys.h"

#include <QDateTime>

#include <algorithm>
#include <map>

using namespace Qt::StringLiterals;

namespace commandline {

namespace {

constexpr int usualNtpPort = 123;
constexpr int usualNtpPeriod = 60; // minutes
constexpr int highestPort = 65535;
constexpr int everyDay = 7;

using Values = std::map<QString, QString>;

QString valueOf(const Values &values, const QString &name, const QString &otherwise = {})
{
    const auto found = values.find(name);
    return found == values.cend() ? otherwise : found->second;
}

std::optional<int> numberIn(const QString &text, int minimum, int maximum)
{
    bool isNumber = false;
    const int number = text.toInt(&isNumber);
    return isNumber && number >= minimum && number <= maximum ? std::optional(number) : std::nullopt;
}

QString addTime(const Values &values, SystemPlan &plan)
{
    const QString time = valueOf(values, u"time"_s);
    if (time == "now"_L1) {
        plan.steps.append({.command = SystemCommand::setTimeByPC, .data = {}});
        return {};
    }
    if (!QDateTime::fromString(time, u"yyyy-MM-dd HH:mm:ss"_s).isValid())
        return u"time is \"now\" or \"yyyy-mm-dd hh:mm:ss\""_s;
    plan.steps.append({.command = SystemCommand::setTimeByManual, .data = {{SystemDataKey::time, time}}});
    return {};
}

/// The record contains server, port, period and time zone: the device gets all of them.
QString addNtp(const Values &values, SystemPlan &plan)
{
    const QString server = valueOf(values, u"ntp.server"_s);
    const bool isOn = server != "off"_L1;
    const std::optional<int> port =
        numberIn(valueOf(values, u"ntp.port"_s, QString::number(usualNtpPort)), 1, highestPort);
    const std::optional<int> period =
        numberIn(valueOf(values, u"ntp.period"_s, QString::number(usualNtpPeriod)), 1, highestPort);
    const int zone = SystemTools().timeZoneIndex(valueOf(values, u"ntp.timeZone"_s));
    if (server.isEmpty() || zone < 0)
        return u"ntp.server and ntp.timeZone (as in UTC+08:00) are set together"_s;
    if (isOn && !SystemTools().isHost(server))
        return u"ntp.server is a host or \"off\""_s;
    if (!port || !period)
        return u"ntp.port and ntp.period are numbers from 1 to 65535"_s;
    plan.steps.append({.command = SystemCommand::ntpConfig,
                       .data = {{SystemDataKey::timeZone, zone},
                                {SystemDataKey::ntpSet, isOn},
                                {SystemDataKey::ntpServer, isOn ? server : QString()},
                                {SystemDataKey::ntpPort, *port},
                                {SystemDataKey::updatePeriod, *period}}});
    return {};
}

QString addStandard(const Values &values, SystemPlan &plan)
{
    const qsizetype standard = choiceIndex({u"PAL"_s, u"NTSC"_s}, valueOf(values, u"videoStandard"_s));
    if (standard < 0)
        return u"videoStandard is PAL or NTSC"_s;
    plan.steps.append({.command = SystemCommand::videoStandard,
                       .data = {{SystemDataKey::videoStandard, static_cast<int>(standard) + 1}}});
    return {};
}

QString addReboot(const Values &values, SystemPlan &plan)
{
    const QStringList days = {u"sunday"_s,   u"monday"_s, u"tuesday"_s,  u"wednesday"_s,
                              u"thursday"_s, u"friday"_s, u"saturday"_s, u"daily"_s};
    const QString day = valueOf(values, u"reboot.day"_s);
    const QString time = valueOf(values, u"reboot.time"_s, u"02:00"_s);
    const qsizetype index = day == "off"_L1 ? everyDay : choiceIndex(days, day);
    if (index < 0)
        return u"reboot.day is off, daily or a day of the week in English"_s;
    if (!QTime::fromString(time, u"hh:mm"_s).isValid())
        return u"reboot.time is \"hh:mm\""_s;
    plan.steps.append({.command = SystemCommand::autoMaintain,
                       .data = {{SystemDataKey::week, static_cast<int>(index)},
                                {SystemDataKey::time, time},
                                {SystemDataKey::autoReboot, day != "off"_L1}}});
    return {};
}

bool hasPrefix(const Values &values, const QString &prefix)
{
    return std::any_of(values.cbegin(), values.cend(),
                       [&prefix](const auto &value) { return value.first.startsWith(prefix); });
}

} // namespace

const std::vector<SettingInfo> &systemSettings()
{
    static const std::vector<SettingInfo> settings = {
        {.name = u"name"_s,
         .values = "of channel 1 of cameras; {n} is a number, {model} the model,\n"
                   "                            {ip4} the last number of the address"_L1},
        {.name = u"time"_s, .values = "\"now\" (that of this host) or \"yyyy-mm-dd hh:mm:ss\""_L1},
        {.name = u"ntp.server"_s, .values = "host or \"off\"; together with ntp.timeZone"_L1},
        {.name = u"ntp.timeZone"_s, .values = "as in UTC+08:00"_L1},
        {.name = u"ntp.port"_s, .values = "(123)"_L1},
        {.name = u"ntp.period"_s, .values = "minutes (60)"_L1},
        {.name = u"videoStandard"_s, .values = "PAL, NTSC"_L1},
        {.name = u"reboot.day"_s, .values = "off, daily, sunday, monday, ..."_L1},
        {.name = u"reboot.time"_s, .values = "hh:mm (02:00); together with reboot.day"_L1},
    };
    return settings;
}

SystemPlan systemPlan(const QList<Assignment> &assignments)
{
    SystemPlan plan;
    Values values;
    for (const Assignment &assignment : assignments)
        values[assignment.name] = assignment.value;
    plan.name = valueOf(values, u"name"_s);
    if (values.contains(u"name"_s) && plan.name.trimmed().isEmpty())
        plan.error = u"name is empty"_s;
    if (plan.error.isEmpty() && hasPrefix(values, u"time"_s))
        plan.error = addTime(values, plan);
    if (plan.error.isEmpty() && hasPrefix(values, u"ntp."_s))
        plan.error = addNtp(values, plan);
    if (plan.error.isEmpty() && hasPrefix(values, u"videoStandard"_s))
        plan.error = addStandard(values, plan);
    if (plan.error.isEmpty() && hasPrefix(values, u"reboot."_s))
        plan.error = addReboot(values, plan);
    return plan;
}

} // namespace commandline
