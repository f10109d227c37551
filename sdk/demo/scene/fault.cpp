#include "sdk/demo/scene/fault.h"

#include <array>
#include <limits>

namespace sdk::demo {

namespace {

struct FaultEntry
{
    Fault fault;
    const char *name;
    FaultValue value;
};

// In the order of the enumeration, so that a fault is its own index.
constexpr std::array faultEntries = {
    FaultEntry{Fault::NoAnswer, "noAnswer", FaultValue::None},
    FaultEntry{Fault::LateAnswer, "lateAnswer", FaultValue::Number},
    FaultEntry{Fault::AnswerTwice, "answerTwice", FaultValue::None},
    FaultEntry{Fault::WrongPassword, "wrongPassword", FaultValue::None},
    FaultEntry{Fault::AccountLocked, "accountLocked", FaultValue::Number},
    FaultEntry{Fault::AccountLoggedIn, "accountLoggedIn", FaultValue::None},
    FaultEntry{Fault::NotInitialised, "notInitialised", FaultValue::None},
    FaultEntry{Fault::RefusesInitialisation, "refusesInitialisation", FaultValue::None},
    FaultEntry{Fault::RefusesAddressChange, "refusesAddressChange", FaultValue::None},
    FaultEntry{Fault::RefusesItem, "refusesItem", FaultValue::Number},
    FaultEntry{Fault::WithholdsItem, "withholdsItem", FaultValue::Number},
    FaultEntry{Fault::RefusesBitRatesAbove, "refusesBitRatesAbove", FaultValue::Number},
    FaultEntry{Fault::RefusesConfiguration, "refusesConfiguration", FaultValue::Text},
    FaultEntry{Fault::DropsStreamAfter, "dropsStreamAfter", FaultValue::Number},
    FaultEntry{Fault::FirstPictureLate, "firstPictureLate", FaultValue::Number},
    FaultEntry{Fault::RebootTakes, "rebootTakes", FaultValue::Number},
    FaultEntry{Fault::UpgradeFailsAt, "upgradeFailsAt", FaultValue::Number},
    FaultEntry{Fault::OddBytes, "oddBytes", FaultValue::None},
    FaultEntry{Fault::OverLongTexts, "overLongTexts", FaultValue::None},
    FaultEntry{Fault::RefusesSetting, "refusesSetting", FaultValue::Number},
    FaultEntry{Fault::RefusesReboot, "refusesReboot", FaultValue::None},
    FaultEntry{Fault::RefusesReset, "refusesReset", FaultValue::None},
    FaultEntry{Fault::RefusesPasswordChange, "refusesPasswordChange", FaultValue::None},
    FaultEntry{Fault::RefusesCapabilities, "refusesCapabilities", FaultValue::None},
    FaultEntry{Fault::OddCapabilities, "oddCapabilities", FaultValue::None},
    FaultEntry{Fault::OddConfiguration, "oddConfiguration", FaultValue::Text},
    FaultEntry{Fault::OverLongConfiguration, "overLongConfiguration", FaultValue::Text},
    FaultEntry{Fault::RefusesChannelStates, "refusesChannelStates", FaultValue::None},
    FaultEntry{Fault::UpgradeBusy, "upgradeBusy", FaultValue::None},
    FaultEntry{Fault::UpgradeHangsAt, "upgradeHangsAt", FaultValue::Number},
    FaultEntry{Fault::UpgradeKeepsVersion, "upgradeKeepsVersion", FaultValue::None},
    FaultEntry{Fault::UpgradeNeverReturns, "upgradeNeverReturns", FaultValue::None},
    FaultEntry{Fault::UpgradeTakes, "upgradeTakes", FaultValue::Number},
    FaultEntry{Fault::RefusesUpgradeStop, "refusesUpgradeStop", FaultValue::None},
    FaultEntry{Fault::SlowAnswers, "slowAnswers", FaultValue::Number},
    FaultEntry{Fault::RefusesConnections, "refusesConnections", FaultValue::None},
    FaultEntry{Fault::PasswordChangesAfter, "passwordChangesAfter", FaultValue::Number},
    FaultEntry{Fault::Sha256Last, "sha256Last", FaultValue::None},
    FaultEntry{Fault::HttpLate, "httpLate", FaultValue::Number},
    FaultEntry{Fault::HttpSlow, "httpSlow", FaultValue::Number},
    FaultEntry{Fault::HttpBroken, "httpBroken", FaultValue::None},
    FaultEntry{Fault::HttpNoStatusLine, "httpNoStatusLine", FaultValue::None},
    FaultEntry{Fault::HttpHuge, "httpHuge", FaultValue::Number},
    FaultEntry{Fault::HttpRedirects, "httpRedirects", FaultValue::None},
};

constexpr bool indexedByFault()
{
    for (std::size_t index = 0; index < faultEntries.size(); ++index) {
        if (static_cast<std::size_t>(faultEntries[index].fault) != index)
            return false;
    }
    return faultEntries.back().fault == Fault::HttpRedirects;
}
static_assert(indexedByFault());

const FaultEntry &entryOf(Fault fault)
{
    return faultEntries[static_cast<std::size_t>(fault)];
}

} // namespace

QString faultName(Fault fault)
{
    return QString::fromLatin1(entryOf(fault).name);
}

std::optional<Fault> faultNamed(const QString &name)
{
    for (const FaultEntry &entry : faultEntries) {
        if (name == QLatin1String(entry.name))
            return entry.fault;
    }
    return std::nullopt;
}

FaultValue faultValue(Fault fault)
{
    return entryOf(fault).value;
}

int maximumFaultNumber(Fault fault)
{
    if (fault == Fault::UpgradeFailsAt || fault == Fault::UpgradeHangsAt)
        return 100;
    if (fault == Fault::HttpHuge)
        return 1024;
    return std::numeric_limits<int>::max();
}

QStringList knownFaultNames()
{
    QStringList names;
    for (const FaultEntry &entry : faultEntries)
        names.append(QString::fromLatin1(entry.name));
    return names;
}

} // namespace sdk::demo
