// Certificates of devices that are accessed over TLS.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace sdk {

/// The certificate that a device has presented. Strings end with a zero.
struct DeviceCertificate
{
    std::uint32_t size; ///< sizeof(DeviceCertificate)
    std::int32_t port;
    std::array<char, 64> address;
    std::array<char, 64> identity;    ///< the device's MAC, else its UUID; empty if the search knows neither
    std::array<char, 96> fingerprint; ///< SHA-256 of the public key: "AB:CD:..." of 32 bytes
    std::array<char, 128> subject;    ///< common name; chosen by the device
    std::array<char, 32> validFrom;   ///< "2026-11-26 13:30:00" UTC; empty if unreadable
    std::array<char, 32> validUntil;  ///< the same
    std::array<std::uint8_t, 88> reserved;
};
static_assert(sizeof(DeviceCertificate) == 512);
static_assert(offsetof(DeviceCertificate, fingerprint) == 136);

/// The result of comparing the key of a certificate with the stored keys. With Unknown or Changed the request
/// fails, each with an error of its own.
enum class CertificateVerdict : std::int32_t
{
    Trusted = 0,
    Unknown = 1, ///< no key is stored for this device
    Changed = 2, ///< another key is stored for this device
};

/// Called during the handshake of a TLS connection, before any byte of a request is sent, on the thread of
/// the request. Several calls may run at the same time. `certificate` is valid during the call only. Must not
/// block.
using CertificateHandler = CertificateVerdict (*)(const DeviceCertificate *certificate, void *user);

} // namespace sdk
