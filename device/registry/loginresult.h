// Result codes of operations on a device, as rows and the scene carry them.
#pragma once

#include <QString>

#include <cstdint>

/// How a request to a device ended.
enum class LoginResult : int
{
    Unknown = -1, ///< nothing was asked yet
    Success = 0,
    NoSuchAccount = 1,
    WrongPassword = 2,
    AccountLocked = 3,
    AccountLoggedIn = 4,
    NetworkFailure = 5,
    ProtocolMismatch = 6,
    NotInitialised = 7,
    NotSupported = 12, ///< the one failure that the add-device dialog says nothing about
    AlreadyListed = 13,
    Upgrading = 14,          ///< nothing was asked: the device's firmware is being upgraded
    NotDone = 15,            ///< nothing was asked: the batch ended before it came to the device
    SessionEnded = 16,       ///< the device no longer accepts the login that the request was sent with
    InvalidValue = 17,       ///< the device does not take a value of the request
    UnknownCertificate = 18, ///< nothing was sent: the user has not agreed to the device's certificate
    ChangedCertificate = 19, ///< nothing was sent: the device shows another certificate than the stored one
    Cancelled = 20,          ///< the request was cancelled
    AddressInUse = 21,       ///< another device answers at the address
    Unconfirmed = 22,        ///< the device has taken the request, and nothing proves that it acts by it
    Refused = 999,           ///< the device has understood the request and does not fulfil it
};

/// The result for a failed operation of the network library, whose last error is `libraryError`, with or
/// without its high bit. Never Success: an error that is not known counts as a network failure.
[[nodiscard]] LoginResult loginResultOf(std::uint32_t libraryError);

/// Whether an error of the network library, with or without its high bit, says that the device did not
/// answer, and not that it refused.
[[nodiscard]] bool isDeviceAway(std::uint32_t libraryError);

/// Whether such an error says that nothing more can be asked in the session: the device is away, or it no
/// longer accepts the login.
[[nodiscard]] bool isSessionLost(std::uint32_t libraryError);

/// Whether an error of the network library, with or without its high bit, says that the device does not
/// accept the login: it must not be sent again unless the user gives it.
[[nodiscard]] bool isLoginRefused(std::uint32_t libraryError);

/// The result as rows hold it.
[[nodiscard]] constexpr int resultCode(LoginResult result)
{
    return static_cast<int>(result);
}

// Results of operations that have more to say than a login.

inline constexpr int upgradeFileUnusable = 992; ///< nothing was sent
inline constexpr int upgradeFailed = 993;       ///< the device gave it up, has not come back, or is as before
inline constexpr int upgradeUnconfirmed = 994;  ///< the device is back, and its version proves nothing
inline constexpr int deviceBusy = 995;

/// The result of a snapshot whose channel has no camera, or whose file cannot be written.
inline constexpr int snapshotFailed = 996;

/// The result of a request that the device has understood and does not fulfil.
inline constexpr int refusedByDevice = resultCode(LoginResult::Refused);

/// What a result code means, in the user's language. Codes that nobody has given a meaning are named by
/// number.
[[nodiscard]] QString resultName(int code);
