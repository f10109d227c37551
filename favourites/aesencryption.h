#pragma once

#include <QByteArray>
#include <QObject>

/// AES in the common modes of operation (FIPS-197, SP 800-38A), for texts that are held in memory as a whole.
///
/// Operations leave the object as it is and keep nothing of a text or key. They may be called on any thread.
class AESEncryption : public QObject
{
    Q_OBJECT
public:
    /// Size of the key; it settles the number of rounds: 10, 12 or 14.
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
        CFB = 2, ///< with feedback of whole blocks
        OFB = 3,
    };
    Q_ENUM(Mode)

    /// What fills a text up to whole blocks. All but zero bytes add a block to a text that fills its last
    /// one, which is what makes them removable without guessing.
    enum Padding
    {
        ZERO = 0,  ///< zero bytes
        PKCS7 = 1, ///< bytes that each hold the number of them
        ISO = 2,   ///< ISO/IEC 7816-4: 0x80, then zero bytes
    };
    Q_ENUM(Padding)

    static constexpr int blockLength = 16;

    AESEncryption(Level level, Mode mode, Padding padding, QObject *parent = nullptr);

    /// Length in bytes of the keys of this object's level: 16, 24 or 32.
    [[nodiscard]] int keyLength() const;

    /// The cipher text of `text` with its padding, in every mode. Empty when `key` has not the level's length
    /// or, in a mode other than ECB, `iv` is not one block long.
    [[nodiscard]] QByteArray encode(const QByteArray &text, const QByteArray &key,
                                    const QByteArray &iv = QByteArray()) const;

    /// What `cipherText` was made from, still with its padding. Empty in the cases of encode(), and when
    /// `cipherText` is not made of whole blocks.
    [[nodiscard]] QByteArray decode(const QByteArray &cipherText, const QByteArray &key,
                                    const QByteArray &iv = QByteArray()) const;

    /// `text` without the padding at its end. The padding is not verified: of bytes that never were padded,
    /// whatever looks like it goes, at most all of them.
    [[nodiscard]] QByteArray removePadding(const QByteArray &text) const;

private:
    [[nodiscard]] bool accepts(const QByteArray &key, const QByteArray &iv) const;
    [[nodiscard]] QByteArray padded(const QByteArray &text) const;

    const Level m_level;
    const Mode m_mode;
    const Padding m_padding;
};
