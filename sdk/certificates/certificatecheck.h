// The check of a device's certificate during the handshake of a TLS connection.
#pragma once

#include "sdk/certificates/certificatedecision.h"

#include <optional>
#include <string>

struct x509_st;

namespace sdk {

/// Whom a connection leads to, as far as the caller knows.
struct TlsPeer
{
    std::string address = {}; ///< numeric, without brackets, or a name
    int port = 443;
    std::string identity = {}; ///< MAC or UUID of the device; empty if unknown
};

/// Makes a handle of libcurl accept the certificates that the decision trusts, and no others. Devices create
/// their own certificates, so no authority is asked: the public key decides. The handshake ends at a refused
/// key, before the first byte of a request is sent.
///
/// Belongs to the thread of the transfers. It must outlive every transfer of the handle.
class CertificateCheck
{
public:
    /// Without a decision every certificate is refused.
    CertificateCheck(const CertificateDecision *decision, TlsPeer peer);
    CertificateCheck(const CertificateCheck &) = delete;
    CertificateCheck &operator=(const CertificateCheck &) = delete;

    /// Sets the options of a handle of libcurl; after curl_easy_reset() again.
    void attachTo(void *curlHandle);

    /// Why the last handshake ended; nothing if none was ended for its certificate.
    [[nodiscard]] std::optional<CertificateVerdict> refusal() const { return m_refusal; }

    /// Called during the handshake with the certificate of the device; null for none.
    [[nodiscard]] bool accepts(const x509_st *shown);

private:
    const CertificateDecision *m_decision; ///< not owned
    const TlsPeer m_peer;
    std::optional<CertificateVerdict> m_refusal;
};

} // namespace sdk
