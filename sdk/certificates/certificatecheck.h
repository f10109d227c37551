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
/// certificates, so the public key decides instead of a certificate authority; host name and validity are not
/// checked. The handshake ends at a refused key, before the first byte of a request is sent.
///
/// One object for the transfers of one handle to one peer. Used by the thread of the transfers. It must
/// outlive every transfer of the handle.
class CertificateCheck
{
public:
    /// `decision` must outlive the object. If it is null, every certificate is refused.
    CertificateCheck(const CertificateDecision *decision, TlsPeer peer);
    CertificateCheck(const CertificateCheck &) = delete;
    CertificateCheck &operator=(const CertificateCheck &) = delete;

    /// Sets the options of `curlHandle`, a CURL pointer. The handle then uses HTTP/1.1, and resumes no TLS
    /// sessions. To be repeated after curl_easy_reset(), which clears the options. If the TLS library of
    /// libcurl lacks the option, the handle keeps the check by certificate authorities, which refuses the
    /// devices' own certificates.
    void attachTo(void *curlHandle);

    /// The verdict of the last handshake if it was ended by its certificate: Unknown or Changed. Nothing if
    /// the certificate was accepted or none has been checked.
    [[nodiscard]] std::optional<CertificateVerdict> refusal() const { return m_refusal; }

    /// Called by libcurl during the handshake with the certificate of the device; null for none. Returns
    /// false to end the handshake, and sets refusal(). A certificate whose key cannot be read is refused as
    /// Unknown.
    [[nodiscard]] bool accepts(const x509_st *shown);

private:
    const CertificateDecision *m_decision; ///< not owned
    const TlsPeer m_peer;
    std::optional<CertificateVerdict> m_refusal;
};

} // namespace sdk
