#include "sdk/certificates/certificatecheck.h"

#include "sdk/blocktext.h"
#include "sdk/certificates/peercertificate.h"

#include <curl/curl.h>
#include <openssl/ssl.h>
#include <openssl/x509_vfy.h>

#include <utility>

namespace sdk {

namespace {

int verify(X509_STORE_CTX *chain, void *check)
{
    const bool isAccepted = static_cast<CertificateCheck *>(check)->accepts(X509_STORE_CTX_get0_cert(chain));
    X509_STORE_CTX_set_error(chain, isAccepted ? X509_V_OK : X509_V_ERR_APPLICATION_VERIFICATION);
    return isAccepted ? 1 : 0;
}

CURLcode prepareContext(CURL *, void *context, void *check)
{
    auto *tls = static_cast<SSL_CTX *>(context);
    SSL_CTX_set_verify(tls, SSL_VERIFY_PEER, nullptr);
    SSL_CTX_set_cert_verify_callback(tls, &verify, check);
    // A later handshake on the connection could show another key.
    SSL_CTX_set_options(tls, SSL_OP_NO_RENEGOTIATION);
    return CURLE_OK;
}

} // namespace

CertificateCheck::CertificateCheck(const CertificateDecision *decision, TlsPeer peer)
    : m_decision(decision), m_peer(std::move(peer))
{
}

void CertificateCheck::attachTo(void *curlHandle)
{
    // If the TLS library does not support this option, the usual check by certificate authorities remains.
    if (curl_easy_setopt(curlHandle, CURLOPT_SSL_CTX_FUNCTION, &prepareContext) != CURLE_OK)
        return;
    curl_easy_setopt(curlHandle, CURLOPT_SSL_CTX_DATA, static_cast<void *>(this));
    curl_easy_setopt(curlHandle, CURLOPT_SSL_VERIFYPEER, 0L);
    curl_easy_setopt(curlHandle, CURLOPT_SSL_VERIFYHOST, 0L);
    // A resumed session shows no certificate.
    curl_easy_setopt(curlHandle, CURLOPT_SSL_SESSIONID_CACHE, 0L);
    curl_easy_setopt(curlHandle, CURLOPT_HTTP_VERSION, static_cast<long>(CURL_HTTP_VERSION_1_1));
}

bool CertificateCheck::accepts(const X509 *shown)
{
    m_refusal = CertificateVerdict::Unknown;
    if (!m_decision || !shown)
        return false;
    DeviceCertificate certificate = readPeerCertificate(shown);
    if (blockText(certificate.fingerprint).empty())
        return false;
    certificate.port = m_peer.port;
    setBlockText(certificate.address, m_peer.address);
    setBlockText(certificate.identity, m_peer.identity);
    const CertificateVerdict verdict = m_decision->verdictOn(certificate);
    if (verdict == CertificateVerdict::Trusted)
        m_refusal.reset();
    else
        m_refusal = verdict;
    return verdict == CertificateVerdict::Trusted;
}

} // namespace sdk
