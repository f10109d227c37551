// Error codes of the network library, as NetGetLastError returns them.
#pragma once

#include <cstdint>

namespace sdk {

/// Codes that callers distinguish. A library may return other codes: callers handle them as a failure without
/// a known reason.
enum class NetError : std::uint32_t
{
    None = 0,
    NetworkFailure = 0x80000002,   ///< the request could not be sent, or its response could not be read
    ProtocolMismatch = 0x80000003, ///< the device speaks another version of the protocol
    NotSupported =
        0x80000013, ///< the device does not support the request, or refuses it in its present state
    UnusableFile = 0x80000017,           ///< a file of the host cannot be read
    WrongPassword = 0x80000064,          ///< some devices report it for an unknown account as well
    NoSuchAccount = 0x80000065,          ///< the device does not have the account
    AccountLoggedIn = 0x80000067,        ///< the account has a session already
    AccountLocked = 0x80000068,          ///< too many wrong passwords
    ConnectTimeout = 0x8000006B,         ///< no response from the address
    ConnectFailed = 0x8000006C,          ///< the address refuses the connection
    WrongPasswordSecure = 0x80000096,    ///< as WrongPassword; returned by NetLoginSecure
    WrongPasswordTriesLeft = 0x80000097, ///< as WrongPasswordSecure, with tries left before the account locks
    AccountLoggedInSecure = 0x80000098,  ///< as AccountLoggedIn; returned by NetLoginSecure
    DeviceBusy = 0x800000A0,             ///< the device runs an operation that cannot be interrupted
    FirmwareRefused = 0x800000A1,        ///< the device does not accept this firmware
    UpgradeFailed = 0x800000A2,          ///< the device has cancelled its upgrade
    Refused = 0x800000A3,                ///< the device understands the request and refuses it
    InvalidValue = 0x800000A4,           ///< the device does not accept a value of the request
    SessionEnded = 0x800000A5,           ///< the device no longer accepts the login of the session
    UnknownCertificate =
        0x800000A6, ///< the user has not accepted the key of the device's certificate; nothing was sent
    ChangedCertificate = 0x800000A7, ///< the device's key differs from the stored one; nothing was sent
    Cancelled = 0x800000A8,          ///< the call was ended by NetCancelCalls or by a CallStop of the caller
    AddressInUse = 0x800000A9,       ///< another device responds at the address
    Unconfirmed = 0x800000AA, ///< the device has accepted the request, or may have received it, but its
                              ///< effect could not be confirmed
};

} // namespace sdk
