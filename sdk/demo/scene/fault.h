// The faults of simulated devices.
#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace sdk::demo {

enum class Fault
{
    NoAnswer,              ///< no response to searches, logins and requests
    LateAnswer,            ///< search responses are sent `number` ms after the device's latency
    AnswerTwice,           ///< every search response is sent twice
    WrongPassword,         ///< no password is accepted
    AccountLocked,         ///< the account locks after `number` wrong passwords
    AccountLoggedIn,       ///< every account has a session already
    NotInitialised,        ///< the device reports that it is not initialised
    RefusesInitialisation, ///< refuses the initialisation
    RefusesAddressChange,  ///< refuses a new address
    RefusesItem,           ///< refuses to write item `number`
    WithholdsItem,         ///< does not report item `number`
    RefusesBitRatesAbove,  ///< refuses bit rates above `number` kbit/s
    RefusesConfiguration,  ///< refuses the configuration named `text`
    DropsStreamAfter,      ///< ends the stream after `number` frames
    FirstPictureLate,      ///< the stream starts `number` ms late
    RebootTakes,           ///< a reboot takes `number` s
    UpgradeFailsAt,        ///< an upgrade fails at `number` % of the transfer, with 100 while writing
    OddBytes,              ///< strings contain control characters, markup, line breaks and invalid UTF-8
    OverLongTexts,         ///< strings fill their fields to the last byte, without a terminating zero
    RefusesSetting,        ///< refuses to write setting `number`
    RefusesReboot,         ///< refuses to reboot
    RefusesReset,          ///< refuses a reset to factory settings
    RefusesPasswordChange, ///< refuses a new password
    RefusesCapabilities,   ///< refuses queries of its capabilities
    OddCapabilities,       ///< reports counts out of range, unknown bits and sizes of 0
    OddConfiguration,      ///< the configuration named `text` is not JSON
    OverLongConfiguration, ///< the configuration named `text` is larger than any buffer
    RefusesChannelStates,  ///< refuses queries of its channel states
    UpgradeBusy,           ///< another upgrade is running
    UpgradeHangsAt,        ///< an upgrade stops making progress at the same points as UpgradeFailsAt
    UpgradeKeepsVersion,   ///< has the old version after an upgrade
    UpgradeNeverReturns,   ///< stays offline after an upgrade
    UpgradeTakes,          ///< the transfer of a firmware file takes `number` s
    RefusesUpgradeStop,    ///< refuses to stop an upgrade during the transfer
    SlowAnswers,           ///< responds to logins and requests `number` ms late
    RefusesConnections,    ///< the device's ports are closed; searches get responses
    PasswordChangesAfter,  ///< accepts a password `number` times, then has other passwords
    Sha256Last,            ///< offers Digest with MD5 first, then with SHA-256
    // HTTP responses to an accepted login:
    HttpLate,         ///< are sent `number` ms late
    HttpSlow,         ///< are sent at one byte a second for `number` s, then without delay
    HttpBroken,       ///< end in the middle
    HttpNoStatusLine, ///< have no status line and no headers
    HttpHuge,         ///< are `number` megabytes long
    HttpRedirects,    ///< redirect the client
};

/// The parameter of a fault.
enum class FaultValue
{
    None,
    Number, ///< FaultSetting::number, 0 or more (upgrades at %: 0 to 100, HttpHuge: 0 to 1024)
    Text,   ///< FaultSetting::text, not empty
};

struct FaultSetting
{
    Fault fault;
    int number = 0;
    QString text = {};
};

/// The name of `fault` in scenes: "noResponse".
[[nodiscard]] QString faultName(Fault fault);

/// The fault with `name` in scenes; nullopt for an unknown name.
[[nodiscard]] std::optional<Fault> faultNamed(const QString &name);

[[nodiscard]] FaultValue faultValue(Fault fault);

/// The largest valid FaultSetting::number of `fault`.
[[nodiscard]] int maximumFaultNumber(Fault fault);

/// The names of all faults, in the order of the enumeration.
[[nodiscard]] QStringList knownFaultNames();

} // namespace sdk::demo
