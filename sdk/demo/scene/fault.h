// What can be wrong with a simulated device.
#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace sdk::demo {

enum class Fault
{
    NoAnswer,              ///< nothing gets an answer: no search, no login, no request
    LateAnswer,            ///< search answers come `number` ms later than the device's latency
    AnswerTwice,           ///< every search answer comes twice
    WrongPassword,         ///< no password is accepted
    AccountLocked,         ///< the account locks after `number` wrong passwords
    AccountLoggedIn,       ///< every account has a session already
    NotInitialised,        ///< the device says that it waits for its first password
    RefusesInitialisation, ///< refuses its first account
    RefusesAddressChange,  ///< refuses a new address
    RefusesItem,           ///< refuses to write item `number`
    WithholdsItem,         ///< does not tell item `number`
    RefusesBitRatesAbove,  ///< refuses bit rates above `number` kbit/s
    RefusesConfiguration,  ///< refuses the configuration named `text`
    DropsStreamAfter,      ///< ends the stream after `number` pictures
    FirstPictureLate,      ///< the stream begins `number` ms late
    RebootTakes,           ///< a reboot takes the device away for `number` s
    UpgradeFailsAt,        ///< an upgrade fails at `number` % of the sending, at 100 in the writing
    OddBytes,              ///< texts hold control characters, markup, line breaks and invalid UTF-8
    OverLongTexts,         ///< texts fill their fields to the last byte, without a terminating zero
    RefusesSetting,        ///< refuses to write setting `number`
    RefusesReboot,         ///< refuses to reboot
    RefusesReset,          ///< refuses to become factory-new
    RefusesPasswordChange, ///< refuses a new password
    RefusesCapabilities,   ///< does not tell what it can do
    OddCapabilities,       ///< counts beyond every bound, bits that nobody knows, sizes of 0
    OddConfiguration,      ///< the configuration named `text` is no JSON
    OverLongConfiguration, ///< the configuration named `text` is larger than any buffer
    RefusesChannelStates,  ///< does not tell which channels have a camera
    UpgradeBusy,           ///< is at an upgrade already
    UpgradeHangsAt,        ///< an upgrade stands still there, as UpgradeFailsAt fails
    UpgradeKeepsVersion,   ///< comes back from an upgrade with the version that it had
    UpgradeNeverReturns,   ///< does not come back from an upgrade
    UpgradeTakes,          ///< a firmware file takes `number` s to be sent
    RefusesUpgradeStop,    ///< does not stop an upgrade, although nothing is written yet
    SlowAnswers,           ///< logins and requests are answered `number` ms late
    RefusesConnections,    ///< nothing listens at the device's ports; searches are answered
    PasswordChangesAfter,  ///< takes a password `number` times, then has other ones
    Sha256Last,            ///< asks for a login by Digest with MD5 first, then with SHA-256
    // Answers over HTTP to a right password:
    HttpLate,         ///< come `number` ms late
    HttpSlow,         ///< come at one byte a second for `number` s
    HttpBroken,       ///< end in the middle
    HttpNoStatusLine, ///< are the text alone
    HttpHuge,         ///< are `number` megabytes long
    HttpRedirects,    ///< send the client elsewhere
};

/// What a fault needs beside its name.
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

/// The name of `fault` in scenes: "noAnswer".
[[nodiscard]] QString faultName(Fault fault);

/// The fault that scenes call `name`; nothing for an unknown name.
[[nodiscard]] std::optional<Fault> faultNamed(const QString &name);

[[nodiscard]] FaultValue faultValue(Fault fault);

/// Largest FaultSetting::number that makes sense for `fault`.
[[nodiscard]] int maximumFaultNumber(Fault fault);

/// The names of all faults, in the order of the enumeration.
[[nodiscard]] QStringList knownFaultNames();

} // namespace sdk::demo
