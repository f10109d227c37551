#include "device/dh/lists/encryptedlist.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QtEndian>

#include <limits>
#include <memory>
#include <optional>
#include <utility>

#include <openssl/crypto.h>
#include <openssl/evp.h>
#include <openssl/rand.h>

namespace {

constexpr QByteArrayView listMagic("DEVLIST");
constexpr char listVersion = 1;
constexpr QByteArrayView algorithms("\1\1\0\0", 4); ///< derivation, cipher, and two unused bytes
constexpr qsizetype iterationsOffset = 12;
constexpr qsizetype saltOffset = 16;
constexpr qsizetype saltSize = 16;
constexpr qsizetype nonceOffset = saltOffset + saltSize;
constexpr qsizetype nonceSize = 12;
constexpr qsizetype keySize = 32;
static_assert(nonceOffset + nonceSize == EncryptedList::headerSize);

const QString devicesKey = QStringLiteral("devices");

struct ContextFree
{
    void operator()(EVP_CIPHER_CTX *context) const { EVP_CIPHER_CTX_free(context); }
};
using CipherContext = std::unique_ptr<EVP_CIPHER_CTX, ContextFree>;

unsigned char *bytesOf(QByteArray &bytes)
{
    return reinterpret_cast<unsigned char *>(bytes.data());
}

const unsigned char *bytesOf(QByteArrayView bytes)
{
    return reinterpret_cast<const unsigned char *>(bytes.data());
}

/// Secret bytes, which are cleared at the end. No other QByteArray may share them.
class SecretBytes
{
public:
    explicit SecretBytes(QByteArray &&bytes) : m_bytes(std::move(bytes)) {}
    explicit SecretBytes(qsizetype size) : m_bytes(size, Qt::Uninitialized) {}
    ~SecretBytes() { OPENSSL_cleanse(m_bytes.data(), static_cast<std::size_t>(m_bytes.size())); }
    Q_DISABLE_COPY_MOVE(SecretBytes)

    [[nodiscard]] const QByteArray &bytes() const { return m_bytes; }
    [[nodiscard]] QByteArray &bytes() { return m_bytes; }

private:
    QByteArray m_bytes;
};

/// A derived key.
class ListKey
{
public:
    ListKey(const QString &passphrase, QByteArrayView salt, std::uint32_t iterations) : m_key(keySize)
    {
        const SecretBytes secret(passphrase.normalized(QString::NormalizationForm_C).toUtf8());
        const QByteArray &text = secret.bytes();
        m_isValid = PKCS5_PBKDF2_HMAC(text.constData(), static_cast<int>(text.size()), bytesOf(salt),
                                      static_cast<int>(salt.size()), static_cast<int>(iterations),
                                      EVP_sha256(), static_cast<int>(keySize), bytesOf(m_key.bytes())) == 1;
    }

    [[nodiscard]] bool isValid() const { return m_isValid; }
    [[nodiscard]] const unsigned char *bytes() const { return bytesOf(QByteArrayView(m_key.bytes())); }

private:
    SecretBytes m_key;
    bool m_isValid = false;
};

/// The authentication tag and the result of an encryption; nullopt if libcrypto fails.
std::optional<QByteArray> sealed(const QByteArray &header, const QByteArray &text, const ListKey &key)
{
    const CipherContext context(EVP_CIPHER_CTX_new());
    QByteArray result(text.size() + EncryptedList::tagSize, Qt::Uninitialized);
    int length = 0;
    const bool isDone =
        context && key.isValid() && text.size() < std::numeric_limits<int>::max() &&
        EVP_EncryptInit_ex2(context.get(), EVP_aes_256_gcm(), key.bytes(),
                            bytesOf(QByteArrayView(header).sliced(nonceOffset)), nullptr) == 1 &&
        EVP_EncryptUpdate(context.get(), nullptr, &length, bytesOf(QByteArrayView(header)),
                          static_cast<int>(header.size())) == 1 &&
        EVP_EncryptUpdate(context.get(), bytesOf(result), &length, bytesOf(QByteArrayView(text)),
                          static_cast<int>(text.size())) == 1 &&
        EVP_EncryptFinal_ex(context.get(), bytesOf(result) + length, &length) == 1 &&
        EVP_CIPHER_CTX_ctrl(context.get(), EVP_CTRL_GCM_GET_TAG, static_cast<int>(EncryptedList::tagSize),
                            result.data() + text.size()) == 1;
    return isDone ? std::optional(result) : std::nullopt;
}

/// Decrypts to `text`, which has the size of `cipher`. Returns false if the tag does not match: the text must
/// then not be used.
bool open(QByteArrayView header, QByteArrayView cipher, QByteArray tag, const ListKey &key, QByteArray &text)
{
    const CipherContext context(EVP_CIPHER_CTX_new());
    int length = 0;
    int rest = 0;
    return context && key.isValid() &&
           EVP_DecryptInit_ex2(context.get(), EVP_aes_256_gcm(), key.bytes(),
                               bytesOf(header.sliced(nonceOffset)), nullptr) == 1 &&
           EVP_DecryptUpdate(context.get(), nullptr, &length, bytesOf(header),
                             static_cast<int>(header.size())) == 1 &&
           EVP_DecryptUpdate(context.get(), bytesOf(text), &length, bytesOf(cipher),
                             static_cast<int>(cipher.size())) == 1 &&
           EVP_CIPHER_CTX_ctrl(context.get(), EVP_CTRL_GCM_SET_TAG, static_cast<int>(tag.size()),
                               tag.data()) == 1 &&
           EVP_DecryptFinal_ex(context.get(), bytesOf(text) + length, &rest) == 1;
}

/// Returns false, with a refusal, if the text is not that of encryptedListOf().
bool addLines(DeviceListContents &contents, const QByteArray &text)
{
    const auto refuse = [&contents] {
        return contents.refuse(QCoreApplication::translate("DeviceList", "加密列表的内容无效"));
    };
    const QJsonValue devices = QJsonDocument::fromJson(text).object().value(devicesKey);
    if (!devices.isArray())
        return refuse();
    const QJsonArray list = devices.toArray();
    for (const auto &value : list) {
        const QJsonArray fields = value.toArray();
        if (fields.size() != listColumnCount)
            return refuse();
        DeviceListLine line = {.number = static_cast<int>(contents.lines.size()) + 1, .values = {}};
        for (int column = 0; column < listColumnCount; ++column) {
            const auto name = static_cast<ListColumn>(column);
            line[name] = listText(name, fields.at(column).toString());
        }
        if (!contents.add(std::move(line)))
            return false;
    }
    return true;
}

} // namespace

QByteArray encryptedListOf(const std::vector<DeviceListLine> &lines, const QString &passphrase)
{
    QJsonArray devices;
    for (const DeviceListLine &line : lines) {
        QJsonArray fields;
        for (const QString &value : line.values)
            fields.append(value);
        devices.append(fields);
    }
    QByteArray header = listMagic.toByteArray() + listVersion + algorithms.toByteArray();
    header.resize(EncryptedList::headerSize);
    qToBigEndian(EncryptedList::iterations, header.data() + iterationsOffset);
    if (RAND_bytes(bytesOf(header) + saltOffset, static_cast<int>(saltSize + nonceSize)) != 1)
        return {};
    const ListKey key(passphrase, QByteArrayView(header).sliced(saltOffset, saltSize),
                      EncryptedList::iterations);
    const SecretBytes text(QJsonDocument(QJsonObject{{devicesKey, devices}}).toJson(QJsonDocument::Compact));
    const std::optional<QByteArray> lineBytes = sealed(header, text.bytes(), key);
    return lineBytes ? header + *lineBytes : QByteArray();
}

DeviceListContents readEncryptedList(const QByteArray &file, const QString &passphrase)
{
    DeviceListContents contents;
    const auto refuse = [&contents](const char *reason) {
        contents.refuse(QCoreApplication::translate("DeviceList", reason));
        return contents;
    };
    if (file.size() < EncryptedList::headerSize + EncryptedList::tagSize || !file.startsWith(listMagic))
        return refuse(QT_TRANSLATE_NOOP("DeviceList", "文件不是加密的设备列表，或者不完整"));
    const QByteArrayView header = QByteArrayView(file).first(EncryptedList::headerSize);
    if (header.at(listMagic.size()) != listVersion ||
        header.sliced(listMagic.size() + 1, algorithms.size()) != algorithms)
        return refuse(QT_TRANSLATE_NOOP("DeviceList", "加密列表的版本不受支持"));
    const auto iterations = qFromBigEndian<std::uint32_t>(header.data() + iterationsOffset);
    if (iterations < EncryptedList::leastIterations || iterations > EncryptedList::mostIterations)
        return refuse(QT_TRANSLATE_NOOP("DeviceList", "加密列表的参数无效"));
    contents.isPassphraseRefused = passphrase.isEmpty();
    if (passphrase.isEmpty())
        return refuse(QT_TRANSLATE_NOOP("DeviceList", "列表已加密，需要密码短语"));
    const ListKey key(passphrase, header.sliced(saltOffset, saltSize), iterations);
    const QByteArrayView cipher =
        QByteArrayView(file).sliced(EncryptedList::headerSize).chopped(EncryptedList::tagSize);
    SecretBytes text(cipher.size());
    if (!open(header, cipher, file.last(EncryptedList::tagSize), key, text.bytes())) {
        contents.isPassphraseRefused = true;
        return refuse(QT_TRANSLATE_NOOP("DeviceList", "密码短语错误，或者文件已损坏"));
    }
    addLines(contents, text.bytes());
    return contents;
}
