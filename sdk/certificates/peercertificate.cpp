#include "sdk/certificates/peercertificate.h"

#include "sdk/blocktext.h"

#include <openssl/asn1.h>
#include <openssl/evp.h>
#include <openssl/x509.h>

#include <algorithm>
#include <array>
#include <ctime>
#include <memory>
#include <string>
#include <string_view>

namespace sdk {

namespace {

struct OpenSslDeleter
{
    void operator()(unsigned char *bytes) const { OPENSSL_free(bytes); }
};
using OpenSslBytes = std::unique_ptr<unsigned char, OpenSslDeleter>;

/// The fingerprint of the complete SubjectPublicKeyInfo: it does not change when a device renews its
/// certificate with the same key.
std::string keyFingerprint(const X509 *certificate)
{
    unsigned char *encoded = nullptr;
    const int length = i2d_X509_PUBKEY(X509_get_X509_PUBKEY(certificate), &encoded);
    const OpenSslBytes owner(encoded);
    std::array<unsigned char, EVP_MAX_MD_SIZE> digest{};
    unsigned int digestLength = 0;
    if (length <= 0 || EVP_Digest(encoded, static_cast<std::size_t>(length), digest.data(), &digestLength,
                                  EVP_sha256(), nullptr) != 1)
        return {};
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string text;
    for (unsigned int index = 0; index < digestLength; ++index) {
        if (index > 0)
            text += ':';
        text += digits[digest[index] >> 4];
        text += digits[digest[index] & 0xF];
    }
    return text;
}

std::string commonName(const X509 *certificate)
{
    const X509_NAME *subject = X509_get_subject_name(certificate);
    const int index = X509_NAME_get_index_by_NID(subject, NID_commonName, -1);
    if (index < 0)
        return {};
    unsigned char *bytes = nullptr;
    const int length =
        ASN1_STRING_to_UTF8(&bytes, X509_NAME_ENTRY_get_data(X509_NAME_get_entry(subject, index)));
    if (length < 0)
        return {};
    const OpenSslBytes owner(bytes);
    std::string text(reinterpret_cast<const char *>(bytes), static_cast<std::size_t>(length));
    // The name comes from the device: it must not break the line that displays it.
    std::replace_if(
        text.begin(), text.end(),
        [](char character) { return static_cast<unsigned char>(character) < ' ' || character == 0x7f; }, ' ');
    return text;
}

std::string timeText(const ASN1_TIME *time)
{
    std::tm moment{};
    if (!time || ASN1_TIME_to_tm(time, &moment) != 1)
        return {};
    std::array<char, 32> text{};
    const std::size_t length = std::strftime(text.data(), text.size(), "%Y-%m-%d %H:%M:%S", &moment);
    return {text.data(), length};
}

} // namespace

DeviceCertificate readPeerCertificate(const x509_st *certificate)
{
    DeviceCertificate read{};
    read.size = sizeof(read);
    setBlockText(read.fingerprint, keyFingerprint(certificate));
    setBlockText(read.subject, commonName(certificate));
    setBlockText(read.validFrom, timeText(X509_get0_notBefore(certificate)));
    setBlockText(read.validUntil, timeText(X509_get0_notAfter(certificate)));
    return read;
}

} // namespace sdk
