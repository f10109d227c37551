#include "favourites/aesencryption.h"

#include "favourites/internal/aesblockcipher.h"

#include <algorithm>

namespace {

using Block = AesBlockCipher::Block;

static_assert(AESEncryption::blockLength == int(AesBlockCipher::blockSize));

constexpr char isoMark = '\x80';

AesBlockCipher cipherOf(const QByteArray &key)
{
    return AesBlockCipher(
        {reinterpret_cast<const std::uint8_t *>(key.constData()), static_cast<std::size_t>(key.size())});
}

Block blockAt(const QByteArray &text, qsizetype position)
{
    Block block;
    std::copy_n(text.cbegin() + position, block.size(), block.begin());
    return block;
}

void add(Block &block, const Block &other)
{
    for (std::size_t i = 0; i < block.size(); ++i)
        block[i] ^= other[i];
}

/// Replaces each block of `text` by what `change` makes of it.
template<typename Change>
void forEachBlock(QByteArray &text, const Change &change)
{
    for (qsizetype position = 0; position < text.size(); position += AESEncryption::blockLength) {
        Block block = blockAt(text, position);
        change(block);
        std::copy(block.begin(), block.end(), text.begin() + position);
    }
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
    if (!accepts(key, iv))
        return QByteArray();
    const AesBlockCipher cipher = cipherOf(key);
    Block chain = m_mode == ECB ? Block() : blockAt(iv, 0);
    QByteArray result = padded(text);
    forEachBlock(result, [&](Block &block) {
        switch (m_mode) {
        case ECB:
            cipher.encrypt(block);
            break;
        case CBC:
            add(block, chain);
            cipher.encrypt(block);
            chain = block;
            break;
        case CFB:
            cipher.encrypt(chain);
            add(block, chain);
            chain = block;
            break;
        case OFB:
            cipher.encrypt(chain);
            add(block, chain);
            break;
        }
    });
    return result;
}

QByteArray AESEncryption::decode(const QByteArray &cipherText, const QByteArray &key,
                                 const QByteArray &iv) const
{
    if (!accepts(key, iv) || cipherText.size() % blockLength != 0)
        return QByteArray();
    const AesBlockCipher cipher = cipherOf(key);
    Block chain = m_mode == ECB ? Block() : blockAt(iv, 0);
    QByteArray result = cipherText;
    forEachBlock(result, [&](Block &block) {
        const Block enciphered = block;
        switch (m_mode) {
        case ECB:
            cipher.decrypt(block);
            break;
        case CBC:
            cipher.decrypt(block);
            add(block, chain);
            chain = enciphered;
            break;
        case CFB:
            cipher.encrypt(chain);
            add(block, chain);
            chain = enciphered;
            break;
        case OFB:
            cipher.encrypt(chain);
            add(block, chain);
            break;
        }
    });
    return result;
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

QByteArray AESEncryption::padded(const QByteArray &text) const
{
    const qsizetype missing = blockLength - text.size() % blockLength; // 1 to a whole block
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
