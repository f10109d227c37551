// Error codes that operations of the network library leave for NetGetLastError.
#pragma once

#include <cstdint>

namespace sdk {

/// Codes that callers tell apart. Others exist: what is not named here is some other failure.
enum class NetError : std::uint32_t
{
    None = 0,
    NetworkFailure = 0x80000002,   ///< the request could not be sent or its answer not be read
    ProtocolMismatch = 0x80000003, ///< the device speaks another version of the protocol
    NotSupported = 0x80000013,     ///< the device refuses this kind of request as it stands
    UnusableFile = 0x80000017,     ///< a file of this computer cannot be read
    WrongPassword = 0x80000064,
    NoSuchAccount = 0x80000065,
    AccountLoggedIn = 0x80000067,        ///< the account has a session already
    AccountLocked = 0x80000068,          ///< too many wrong passwords
    ConnectTimeout = 0x8000006B,         ///< nothing answers at the address
    ConnectFailed = 0x8000006C,          ///< the address answers and refuses
    WrongPasswordSecure = 0x80000096,    ///< as WrongPassword, said by the newer kind of login
    WrongPasswordTriesLeft = 0x80000097, ///< the same, with tries left before the account locks
    AccountLoggedInSecure = 0x80000098,
    DeviceBusy = 0x800000A0,      ///< the device is at something that it cannot leave
    FirmwareRefused = 0x800000A1, ///< the device does not take this firmware
    UpgradeFailed = 0x800000A2,   ///< the device gave its upgrade up
    Refused = 0x800000A3,         ///< the device understands the request and does not fulfil it
    InvalidValue = 0x800000A4,    ///< the device does not take a value of the request
    SessionEnded = 0x800000A5,    ///< the device no longer accepts the login of the session
    UnknownCertificate =
        0x800000A6, ///< nobody has agreed to the key of the device's certificate; nothing was sent
    ChangedCertificate = 0x800000A7, ///< the device shows another key than the stored one; nothing was sent
    Cancelled = 0x800000A8,          ///< NetCancelCalls, or a CallStop of the caller, has ended the call
    AddressInUse = 0x800000A9,       ///< another device answers at the address
    Unconfirmed = 0x800000AA,        ///< the device has taken the request; nothing proves that it acts by it
};

} // namespace sdk
