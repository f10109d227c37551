#include "sdk/demo/http/encryption.h"

#include <openssl/evp.h>
#include <openssl/ssl.h>
#include <openssl/x509.h>

#include <algorithm>
#include <csignal>
#include <limits>
#include <utility>

#include <signal.h>
#include <sys/socket.h>

namespace sdk::demo {

namespace {

constexpr long validity = 10L * 365 * 24 * 60 * 60; // seconds

struct KeyDeleter
{
    void operator()(EVP_PKEY *key) const { EVP_PKEY_free(key); }
};
using Key = std::unique_ptr<EVP_PKEY, KeyDeleter>;

struct CertificateDeleter
{
    void operator()(X509 *certificate) const { X509_free(certificate); }
};
using Certificate = std::unique_ptr<X509, CertificateDeleter>;

Certificate certificateOf(EVP_PKEY *key, const std::string &name)
{
    Certificate certificate(X509_new());
    if (!certificate)
        return nullptr;
    constexpr long version3 = 2;
    X509_set_version(certificate.get(), version3);
    ASN1_INTEGER_set(X509_get_serialNumber(certificate.get()), 1);
    X509_gmtime_adj(X509_getm_notBefore(certificate.get()), 0);
    X509_gmtime_adj(X509_getm_notAfter(certificate.get()), validity);
    X509_NAME *subject = X509_get_subject_name(certificate.get());
    X509_NAME_add_entry_by_txt(subject, "CN", MBSTRING_UTF8,
                               reinterpret_cast<const unsigned char *>(name.data()),
                               static_cast<int>(name.size()), -1, 0);
    X509_set_issuer_name(certificate.get(), subject);
    X509_set_pubkey(certificate.get(), key);
    return X509_sign(certificate.get(), key, EVP_sha256()) > 0 ? std::move(certificate) : nullptr;
}

int lengthOf(std::size_t size)
{
    return static_cast<int>(std::min(size, static_cast<std::size_t>(std::numeric_limits<int>::max())));
}

} // namespace

std::shared_ptr<const DeviceKey> DeviceKey::make(const std::string &name)
{
    const Key key(EVP_PKEY_Q_keygen(nullptr, nullptr, "EC", "P-256"));
    const Certificate certificate = key ? certificateOf(key.get(), name) : nullptr;
    const std::shared_ptr<SSL_CTX> context(SSL_CTX_new(TLS_server_method()), &SSL_CTX_free);
    if (!certificate || !context || SSL_CTX_use_PrivateKey(context.get(), key.get()) != 1 ||
        SSL_CTX_use_certificate(context.get(), certificate.get()) != 1)
        return nullptr;
    return std::shared_ptr<const DeviceKey>(new DeviceKey(context));
}

EncryptedStream::EncryptedStream(int socket, std::shared_ptr<const DeviceKey> key)
    : m_socket(socket), m_key(std::move(key)), m_tls(SSL_new(m_key->context()))
{
    if (m_tls)
        SSL_set_fd(m_tls, socket);
}

EncryptedStream::~EncryptedStream()
{
    SSL_free(m_tls);
}

bool EncryptedStream::accept()
{
    sigset_t signals;
    sigemptyset(&signals);
    sigaddset(&signals, SIGPIPE);
    pthread_sigmask(SIG_BLOCK, &signals, nullptr); // the library does not suppress the signal
    return m_tls && SSL_accept(m_tls) == 1;
}

ssize_t EncryptedStream::receive(char *bytes, std::size_t size, std::chrono::milliseconds patience)
{
    // Bytes that are already decrypted do not make the socket readable.
    if (SSL_pending(m_tls) == 0 && !isReadable(m_socket, patience))
        return 0;
    return SSL_read(m_tls, bytes, lengthOf(size));
}

ssize_t EncryptedStream::send(const char *bytes, std::size_t size)
{
    return SSL_write(m_tls, bytes, lengthOf(size));
}

void EncryptedStream::finishSending()
{
    SSL_shutdown(m_tls);
    shutdown(m_socket, SHUT_WR);
}

} // namespace sdk::demo
