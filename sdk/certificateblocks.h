// Certificates of devices that are accessed over TLS.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace sdk {

/// The certificate that a device has presented during a TLS handshake. Strings end with a zero.
struct DeviceCertificate
{
    std::uint32_t size;               ///< sizeof(DeviceCertificate)
    std::int32_t port;                ///< of the TLS connection
    std::array<char, 64> address;     ///< of the TLS connection
    std::array<char, 64> identity;    ///< MAC of the device, or its UUID if a search found no MAC; empty if
                                      ///< neither is known, and for CGI commands and web pages
    std::array<char, 96> fingerprint; ///< SHA-256 of the public key (SubjectPublicKeyInfo as DER): 32 bytes
                                      ///< as "AB:CD:..."
    std::array<char, 128> subject;    ///< common name; chosen by the device, so no proof of its identity
    std::array<char, 32> validFrom;   ///< "2026-11-26 13:30:00" UTC; empty if unreadable
    std::array<char, 32> validUntil;  ///< the same
    std::array<std::uint8_t, 88> reserved;
};
static_assert(sizeof(DeviceCertificate) == 512);
static_assert(offsetof(DeviceCertificate, fingerprint) == 136);

/// The result of comparing the key of a certificate with the stored keys. Trusted lets the request continue.
/// Unknown ends it with NetError::UnknownCertificate, Changed with NetError::ChangedCertificate; nothing of
/// the request is sent then.
enum class CertificateVerdict : std::int32_t
{
    Trusted = 0,
    Unknown = 1, ///< no key is stored for this device
    Changed = 2, ///< another key is stored for this device
};

/// Returns the verdict on the certificate of a device. Called during the TLS handshake, before any byte of
/// the request is sent, on the thread that sends the request. Several calls may run at the same time.
/// `certificate` is valid during the call only. `user` is the argument with which the handler was set, by
/// NetSetCertificateHandler or for CGI commands and web pages. Must not block.
using CertificateHandler = CertificateVerdict (*)(const DeviceCertificate *certificate, void *user);

} // namespace sdk
