#pragma once

#include <QByteArray>
#include <QObject>

/// The cipher AES in the common modes of operation (FIPS-197, SP 800-38A) on byte arrays, by libcrypto. Used
/// for the passwords that the application stores.
///
/// An object is immutable and keeps no text and no key. Its operations may be called on any thread.
class AESEncryption : public QObject
{
    Q_OBJECT
public:
    /// Size of the key in bits: 128, 192 or 256.
    enum Level
    {
        AES128 = 0,
        AES192 = 1,
        AES256 = 2,
    };
    Q_ENUM(Level)

    enum Mode
    {
        ECB = 0,
        CBC = 1,
        CFB = 2, ///< with feedback of complete blocks (CFB128)
        OFB = 3,
    };
    Q_ENUM(Mode)

    /// The bytes that extend a text to complete blocks. PKCS7 and ISO add a block to a text of complete
    /// blocks, so that their padding can be removed unambiguously. ZERO cannot: zero bytes at the end of the
    /// text are lost.
    enum Padding
    {
        ZERO = 0,  ///< zero bytes
        PKCS7 = 1, ///< bytes that each hold their number
        ISO = 2,   ///< ISO/IEC 7816-4: 0x80, then zero bytes
    };
    Q_ENUM(Padding)

    static constexpr int blockLength = 16; ///< bytes

    AESEncryption(Level level, Mode mode, Padding padding, QObject *parent = nullptr);

    /// Length in bytes of the keys of this object's level: 16, 24 or 32.
    [[nodiscard]] int keyLength() const;

    /// The cipher text of `text` with its padding, which is added in every mode. `iv` is the initialisation
    /// vector, which the mode ECB ignores. On failure empty: when the length of `key` is not keyLength(),
    /// when `iv` is not one block long in another mode than ECB, when the padded text has 2 GiB or more, or
    /// when libcrypto fails. Also empty for an empty text with the padding ZERO.
    [[nodiscard]] QByteArray encode(const QByteArray &text, const QByteArray &key,
                                    const QByteArray &iv = QByteArray()) const;

    /// The plain text of `cipherText`, still with its padding, see removePadding(). Empty in the same cases
    /// as encode(), and when `cipherText` does not consist of complete blocks. A wrong key is not detected.
    [[nodiscard]] QByteArray decode(const QByteArray &cipherText, const QByteArray &key,
                                    const QByteArray &iv = QByteArray()) const;

    /// `text` without the padding at its end. The padding is not verified: bytes of an unpadded text that
    /// look like padding are removed as well, at most all of them. ISO removes the last byte 0x80 and all
    /// bytes after it.
    [[nodiscard]] QByteArray removePadding(const QByteArray &text) const;

private:
    [[nodiscard]] QByteArray cipherName() const;
    [[nodiscard]] bool accepts(const QByteArray &key, const QByteArray &iv) const;
    [[nodiscard]] QByteArray padded(const QByteArray &text) const;

    const Level m_level;
    const Mode m_mode;
    const Padding m_padding;
};
