// Result codes of operations on devices.
#pragma once

#include <QString>

#include <cstdint>

/// The result of a request to a device.
enum class LoginResult : int
{
    /// No request yet. As the outcome of a batch step: the device has accepted the login and waits for a
    /// further step (BatchReport::Waiting). Also the code of an unusable line in the list of failures of an
    /// import.
    Unknown = -1,
    Success = 0,
    NoSuchAccount = 1,
    WrongPassword = 2,
    AccountLocked = 3,
    AccountLoggedIn = 4, ///< the account has a session already
    NetworkFailure = 5,  ///< no response, and every failure without another code
    ProtocolMismatch = 6,
    NotInitialised = 7,
    NotSupported = 12,       ///< not supported by the device or the back end, or refused without a reason
    AlreadyListed = 13,      ///< no request: the list has a row with this address and port
    Upgrading = 14,          ///< no request: the firmware of the device is being upgraded
    NotDone = 15,            ///< the work ended before the turn of the device, or between two requests
    SessionEnded = 16,       ///< the device no longer accepts the session of the request
    InvalidValue = 17,       ///< the device does not accept a value of the request
    UnknownCertificate = 18, ///< no request: the user has not accepted the certificate of the device
    ChangedCertificate = 19, ///< no request: the certificate of the device differs from the accepted one
    Cancelled = 20,          ///< the request was cancelled
    AddressInUse = 21,       ///< another device responds at the address

    /// The device has accepted the request, or may have received it (its response was lost). The effect could
    /// not be confirmed.
    Unconfirmed = 22,
    Refused = 999, ///< the device has refused the request
};

/// The result of a failed operation of the network library. `libraryError` is its last error, with or without
/// its high bit. Never Success; NetworkFailure for every error without a LoginResult, also for a busy device,
/// a refused firmware and a failed upgrade.
[[nodiscard]] LoginResult loginResultOf(std::uint32_t libraryError);

/// Whether an error of the network library, with or without its high bit, means that the device is offline:
/// it did not respond. A refused connection does not count.
[[nodiscard]] bool isDeviceAway(std::uint32_t libraryError);

/// Whether such an error means that the session cannot be used any more: the device is offline, or it no
/// longer accepts the session.
[[nodiscard]] bool isSessionLost(std::uint32_t libraryError);

/// Whether such an error means that the device does not accept the account, or no longer the session. The
/// login must not be repeated unless the user enters the account again.
[[nodiscard]] bool isLoginRefused(std::uint32_t libraryError);

/// The result as the int in rows and maps.
[[nodiscard]] constexpr int resultCode(LoginResult result)
{
    return static_cast<int>(result);
}

// More result codes of operations, which are used in the same place as a LoginResult. Further codes are
// unusableLine (997) in deviceimport.h, commandFailed (998) of CGI commands, and 10 of encode and image
// settings whose capabilities are unknown.

/// The firmware file is missing, unreadable, damaged or for another model. No firmware was sent. For another
/// model, a login may have been made to read the model of the device.
inline constexpr int upgradeFileUnusable = 992;
/// Aborted by the device, without progress for too long, no response after the restart, or the version is the
/// old one.
inline constexpr int upgradeFailed = 993;
inline constexpr int upgradeUnconfirmed =
    994;                               ///< the device has restarted; its version does not prove the upgrade
inline constexpr int deviceBusy = 995; ///< the device refuses for now; a retry may succeed

/// The channel of a snapshot has no camera, or the file cannot be written.
inline constexpr int snapshotFailed = 996;

/// The device has refused the request.
inline constexpr int refusedByDevice = resultCode(LoginResult::Refused);

/// The meaning of a LoginResult or another result code, in the user's language. The text for an unknown code
/// contains its number.
[[nodiscard]] QString resultName(int code);
