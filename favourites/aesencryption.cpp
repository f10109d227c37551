#include "favourites/aesencryption.h"

#include <algorithm>
#include <array>
#include <limits>
#include <memory>

#include <openssl/evp.h>

namespace {

constexpr char isoMark = '\x80';

enum class Direction
{
    Decrypt = 0,
    Encrypt = 1,
};

struct CipherFree
{
    void operator()(EVP_CIPHER *cipher) const { EVP_CIPHER_free(cipher); }
    void operator()(EVP_CIPHER_CTX *context) const { EVP_CIPHER_CTX_free(context); }
};

const unsigned char *bytesOf(const QByteArray &bytes)
{
    return reinterpret_cast<const unsigned char *>(bytes.constData());
}

/// Encrypts or decrypts complete blocks with the cipher of that name in libcrypto. Empty when libcrypto
/// fails.
QByteArray processed(const QByteArray &cipherName, const QByteArray &blocks, const QByteArray &key,
                     const QByteArray &iv, Direction direction)
{
    const std::unique_ptr<EVP_CIPHER, CipherFree> cipher(
        EVP_CIPHER_fetch(nullptr, cipherName.constData(), nullptr));
    const std::unique_ptr<EVP_CIPHER_CTX, CipherFree> context(EVP_CIPHER_CTX_new());
    if (!cipher || !context || blocks.size() > std::numeric_limits<int>::max())
        return QByteArray();
    QByteArray result(blocks.size(), Qt::Uninitialized);
    int length = 0;
    // Without padding, the complete blocks are all processed by the update.
    const bool isDone = EVP_CipherInit_ex2(context.get(), cipher.get(), bytesOf(key), bytesOf(iv),
                                           static_cast<int>(direction), nullptr) == 1 &&
                        EVP_CIPHER_CTX_set_padding(context.get(), 0) == 1 &&
                        EVP_CipherUpdate(context.get(), reinterpret_cast<unsigned char *>(result.data()),
                                         &length, bytesOf(blocks), static_cast<int>(blocks.size())) == 1;
    return isDone && length == result.size() ? result : QByteArray();
}

} // namespace

AESEncryption::AESEncryption(Level level, Mode mode, Padding padding, QObject *parent)
    : QObject(parent), m_level(level), m_mode(mode), m_padding(padding)
{
}

int AESEncryption::keyLength() const
{
    return 16 + 8 * int(m_level);
}

QByteArray AESEncryption::encode(const QByteArray &text, const QByteArray &key, const QByteArray &iv) const
{
    return accepts(key, iv) ? processed(cipherName(), padded(text), key, iv, Direction::Encrypt)
                            : QByteArray();
}

QByteArray AESEncryption::decode(const QByteArray &cipherText, const QByteArray &key,
                                 const QByteArray &iv) const
{
    if (!accepts(key, iv) || cipherText.size() % blockLength != 0)
        return QByteArray();
    return processed(cipherName(), cipherText, key, iv, Direction::Decrypt);
}

QByteArray AESEncryption::removePadding(const QByteArray &text) const
{
    qsizetype length = text.size();
    switch (m_padding) {
    case ZERO:
        while (length > 0 && text.at(length - 1) == '\0')
            --length;
        break;
    case PKCS7:
        if (length > 0)
            length -= std::min<qsizetype>(length, static_cast<uchar>(text.back()));
        break;
    case ISO:
        if (const qsizetype mark = text.lastIndexOf(isoMark); mark >= 0)
            length = mark;
        break;
    }
    return text.first(length);
}

bool AESEncryption::accepts(const QByteArray &key, const QByteArray &iv) const
{
    return key.size() == keyLength() && (m_mode == ECB || iv.size() == blockLength);
}

/// The name of this object's level and mode in libcrypto.
QByteArray AESEncryption::cipherName() const
{
    static constexpr std::array<const char *, 4> modes = {"ECB", "CBC", "CFB", "OFB"};
    return "AES-" + QByteArray::number(8 * keyLength()) + '-' + modes.at(static_cast<std::size_t>(m_mode));
}

QByteArray AESEncryption::padded(const QByteArray &text) const
{
    const qsizetype missing = blockLength - text.size() % blockLength; // 1 to blockLength
    switch (m_padding) {
    case ZERO:
        return missing == blockLength ? text : text + QByteArray(missing, '\0');
    case PKCS7:
        return text + QByteArray(missing, static_cast<char>(missing));
    case ISO:
        return text + isoMark + QByteArray(missing - 1, '\0');
    }
    return text;
}
