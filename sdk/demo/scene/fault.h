// The faults of simulated devices: deviations from the usual behaviour, for demonstrations and tests.
#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace sdk::demo {

/// The comments state the behaviour of a device with the fault. `number` and `text` are those of
/// FaultSetting. "Refuses" means that the request fails and changes nothing.
enum class Fault
{
    NoAnswer,              ///< sends no response to searches, logins, requests and HTTP
    LateAnswer,            ///< search responses are sent `number` ms after the device's latency
    AnswerTwice,           ///< every search response is sent twice
    WrongPassword,         ///< no password is accepted
    AccountLocked,         ///< an account locks permanently after `number` wrong passwords in a row
    AccountLoggedIn,       ///< refuses logins: every account has a session already
    NotInitialised,        ///< is not initialised, and refuses logins
    RefusesInitialisation, ///< refuses the initialisation
    RefusesAddressChange,  ///< refuses a new address
    RefusesItem,           ///< refuses to write item `number` (EncodeItem, CameraItem, videoStandardItem)
    WithholdsItem,         ///< does not report item `number` (EncodeItem, CameraItem)
    RefusesBitRatesAbove,  ///< refuses bit rates above `number` kbit/s
    RefusesConfiguration,  ///< refuses to read and write the configuration named `text`
    DropsStreamAfter,      ///< ends each live stream after `number` frames
    FirstPictureLate,      ///< each live stream starts `number` ms late
    RebootTakes,           ///< a reboot takes `number` s
    UpgradeFailsAt,        ///< an upgrade fails at `number` % of the transfer; with 100 while writing
    OddBytes,              ///< strings contain control characters, markup, line breaks and invalid UTF-8
    OverLongTexts,         ///< strings fill their fields to the last byte, without a terminating zero
    RefusesSetting,        ///< refuses to write setting `number` (DeviceSetting)
    RefusesReboot,         ///< refuses to reboot
    RefusesReset,          ///< refuses a reset to factory settings
    RefusesPasswordChange, ///< refuses a new password
    RefusesCapabilities,   ///< refuses queries of its capabilities
    OddCapabilities,       ///< reports counts out of range, unknown bits and sizes of 0
    OddConfiguration,      ///< the configuration named `text` is not JSON
    OverLongConfiguration, ///< the configuration named `text` is larger than any buffer
    RefusesChannelStates,  ///< refuses queries of its channel states
    UpgradeBusy,           ///< refuses upgrades, as if another one were running
    UpgradeHangsAt,        ///< an upgrade stops making progress at the points of UpgradeFailsAt, without end
    UpgradeKeepsVersion,   ///< has the old version after an upgrade
    UpgradeNeverReturns,   ///< stays offline after an upgrade
    UpgradeTakes,          ///< the transfer of a firmware file takes `number` s
    RefusesUpgradeStop,    ///< refuses to stop an upgrade at any time
    SlowAnswers,           ///< responds to logins and requests `number` ms late; CGI commands are not delayed
    RefusesConnections,    ///< its ports are closed; it responds only to searches
    PasswordChangesAfter,  ///< accepts passwords `number` times (0 as 1); then "-2" is appended to them
    Sha256Last,            ///< offers Digest with MD5 first, then with SHA-256; only as a device of `site/`
    // HTTP responses to an accepted login:
    HttpLate,         ///< are sent `number` ms late
    HttpSlow,         ///< are sent at one byte a second for `number` s, then without delay
    HttpBroken,       ///< end in the middle of the body, and the connection closes
    HttpNoStatusLine, ///< have no status line and no headers, only a body
    HttpHuge,         ///< are `number` megabytes long
    HttpRedirects,    ///< redirect the client to another path of the device
};

/// The kind of parameter that a fault has.
enum class FaultValue
{
    None,
    Number, ///< FaultSetting::number, 0 or more (upgrades at %: 0 to 100, HttpHuge: 0 to 1024)
    Text,   ///< FaultSetting::text, not empty
};

/// A fault of a device, with its parameter. The member that faultValue() does not name is not used.
struct FaultSetting
{
    Fault fault;
    int number = 0;
    QString text = {};
};

/// The name of `fault` in scenes: "noAnswer".
[[nodiscard]] QString faultName(Fault fault);

/// The fault with `name` in scenes; nullopt for an unknown name.
[[nodiscard]] std::optional<Fault> faultNamed(const QString &name);

/// The kind of parameter of `fault`.
[[nodiscard]] FaultValue faultValue(Fault fault);

/// The largest valid FaultSetting::number of `fault`; the smallest is 0.
[[nodiscard]] int maximumFaultNumber(Fault fault);

/// The names of all faults, in the order of the enumeration.
[[nodiscard]] QStringList knownFaultNames();

} // namespace sdk::demo
