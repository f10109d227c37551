// The check of a device's certificate during the handshake of a TLS connection.
#pragma once

#include "sdk/certificates/certificatedecision.h"

#include <optional>
#include <string>

struct x509_st;

namespace sdk {

/// The peer of a connection, as far as the caller knows it.
struct TlsPeer
{
    std::string address = {}; ///< numeric, without brackets, or a name
    int port = 443;
    std::string identity = {}; ///< MAC or UUID of the device; empty if unknown
};

/// Makes a handle of libcurl accept only the certificates that the decision trusts. Devices create their own
/// certificates, so the public key decides instead of a certificate authority. The handshake ends at a
/// refused key, before the first byte of a request is sent.
///
/// Used by the thread of the transfers. It must outlive every transfer of the handle.
class CertificateCheck
{
public:
    /// Without a decision every certificate is refused.
    CertificateCheck(const CertificateDecision *decision, TlsPeer peer);
    CertificateCheck(const CertificateCheck &) = delete;
    CertificateCheck &operator=(const CertificateCheck &) = delete;

    /// Sets the options of a handle of libcurl; after curl_easy_reset() again.
    void attachTo(void *curlHandle);

    /// The verdict that ended the last handshake; nothing if no handshake was ended by its certificate.
    [[nodiscard]] std::optional<CertificateVerdict> refusal() const { return m_refusal; }

    /// Called during the handshake with the certificate of the device; null for none.
    [[nodiscard]] bool accepts(const x509_st *shown);

private:
    const CertificateDecision *m_decision; ///< not owned
    const TlsPeer m_peer;
    std::optional<CertificateVerdict> m_refusal;
};

} // namespace sdk
