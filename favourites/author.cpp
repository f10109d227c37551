#include "favourites/author.h"

#include "favourites/aesencryption.h"
#include "favourites/favouritefile.h"
#include "favourites/logging.h"
#include "files/filereplacement.h"
#include "secrets/secretvault.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QUrl>

#include <array>
#include <optional>
#include <utility>
#include <vector>

namespace {

// The values of a favourite for QML, in this order.
constexpr std::array listedKeys = {"type", "addr", "port", "username", "password", "note"};
constexpr qsizetype passwordIndex = 4;

SecretVault *passwordVault = nullptr;

struct KeyMaterial
{
    QByteArray key = QByteArray::fromHex("5C1E8B3F7A90D24E6B1F0C9A3D7E52B8");
    /// Unused in the mode of the password cipher; other modes need it.
    QByteArray iv = QByteArrayLiteral("kalbrisen402917");
};

const KeyMaterial &keyMaterial()
{
    static const KeyMaterial material;
    return material;
}

AESEncryption passwordCipher()
{
    return AESEncryption(AESEncryption::AES128, AESEncryption::ECB, AESEncryption::PKCS7);
}

QString localPath(const QString &path)
{
    const QString scheme = QStringLiteral("file:///");
    if (!path.startsWith(scheme))
        return path;
    const QString local = QUrl(path).toLocalFile();
    return local.startsWith(scheme) ? local.sliced(scheme.size()) : local;
}

/// The folder that a favourite is saved to. Empty for an empty path: passwords must not be stored in the
/// working folder.
QString saveFolder(const QString &path)
{
    if (path.isEmpty())
        return QString();
    const QFileInfo info(path);
    return info.isDir() ? path : info.absolutePath();
}

QString fileNameFor(const QString &addr, const QString &port)
{
    const QString plain = addr + QLatin1Char('_') + port;
    QString name;
    for (const QChar character : plain) {
        const bool separates = character == QLatin1Char('/') || character == QLatin1Char('\\');
        const bool hides = name.isEmpty() && character == QLatin1Char('.'); // also begins ".."
        if (separates || hides || character.isNull())
            name += QStringLiteral("%%1").arg(character.unicode(), 2, 16, QLatin1Char('0')).toUpper();
        else
            name += character;
    }
    return name + QStringLiteral(".json");
}

/// The text of a JSON object whose keys are in the given order, in the layout of Qt. QJsonObject would sort
/// the keys.
QByteArray objectText(const std::vector<std::pair<const char *, QString>> &entries)
{
    QByteArray text;
    for (const auto &[key, value] : entries) {
        const QByteArray entry =
            QJsonDocument(QJsonObject{{QLatin1String(key), value}}).toJson(QJsonDocument::Indented);
        const QByteArrayView line = QByteArrayView(entry).sliced(2).chopped(3); // without "{\n" and "\n}\n"
        text += (text.isEmpty() ? "{\n" : ",\n") + line.toByteArray();
    }
    return text + "\n}\n";
}

} // namespace

CAuthor::CAuthor(QObject *parent) : QObject(parent) {}

void CAuthor::setVault(SecretVault *vault)
{
    passwordVault = vault;
}

QString CAuthor::vaultCipher(const QString &path) const
{
    const QString password = passwordVault ? passwordVault->value(secretFileOf(path)) : QString();
    return password.isEmpty() ? QString() : AesEncrypt(password);
}

QString CAuthor::AesEncrypt(const QString &input) const
{
    const KeyMaterial &material = keyMaterial();
    return QString::fromLatin1(passwordCipher().encode(input.toUtf8(), material.key, material.iv).toBase64());
}

QString CAuthor::AesDecrypt(const QString &input) const
{
    const KeyMaterial &material = keyMaterial();
    const QByteArray cipherText = QByteArray::fromBase64(input.toLatin1());
    const AESEncryption cipher = passwordCipher();
    return QString::fromUtf8(cipher.removePadding(cipher.decode(cipherText, material.key, material.iv)));
}

void CAuthor::saveTextAsJson(const QString &inputPath, const QString &type, const QString &addr,
                             const QString &port, const QString &username, const QString &password,
                             const QString &note) const
{
    const QString path = localPath(inputPath);
    const QString folder = saveFolder(path);
    if (folder.isEmpty() || !QDir().mkpath(folder)) {
        qCWarning(logFavourites) << "无法创建目录:" << folder;
        return;
    }

    const QString file = QDir(folder).filePath(fileNameFor(addr, port));
    // A file with a password is newer than the vault.
    const bool isInVault = password == vaultCipher(file) && QFile::exists(file) && cipherIn(file).isEmpty();
    const QByteArray text = objectText({
        {"type", type},
        {"addr", addr},
        {"port", port},
        {"username", username},
        {"password", isInVault ? QString() : password},
        {"note", note},
        {"created", QDateTime::currentDateTime().toString(Qt::ISODate)},
        {"original_path", inputPath},
    });
    const QString failure = replaceFile(file, text, FileReaders::Owner);
    if (!failure.isEmpty()) {
        qCWarning(logFavourites) << "无法打开文件:" << file << "-" << failure;
        return;
    }
    qCDebug(logFavourites) << "文件已保存到:" << file;
    qCDebug(logFavourites) << "原始输入路径:" << inputPath;
    qCDebug(logFavourites) << "清理后路径:" << path;
    if (passwordVault && !isInVault && !password.isEmpty()) {
        passwordVault->keep({.file = secretFileOf(file),
                             .title = addr + QLatin1Char(':') + port,
                             .value = AesDecrypt(password)});
    }
}

QVariantMap CAuthor::readJsonFilesFromFolder(const QString &folderPath) const
{
    const QString path = localPath(folderPath);
    const QDir folder(path);
    if (path.isEmpty() || !folder.exists()) {
        qCWarning(logFavourites) << "文件夹不存在:" << path;
        return QVariantMap();
    }
    const QStringList names =
        folder.entryList({QStringLiteral("*.json")}, QDir::Files | QDir::NoDotAndDotDot);
    if (names.isEmpty()) {
        qCDebug(logFavourites) << "文件夹中没有找到JSON文件:" << path;
        return QVariantMap();
    }
    qCDebug(logFavourites) << "找到" << names.size() << "个JSON文件";

    QVariantMap favourites;
    for (const QString &name : names) {
        qCDebug(logFavourites) << "处理文件:" << name;
        const std::optional<QJsonObject> favourite = readFavourite(folder.filePath(name));
        if (!favourite)
            continue;
        QStringList values;
        for (const char *key : listedKeys)
            values.append(favourite->value(QLatin1String(key)).toString());
        if (values.at(passwordIndex).isEmpty())
            values.replace(passwordIndex, vaultCipher(folder.filePath(name)));
        favourites.insert(name, values);
    }
    return favourites;
}

bool CAuthor::deleteFile(const QString &filePath) const
{
    const QString path = localPath(filePath);
    if (!QFile::exists(path))
        return false;
    qCDebug(logFavourites) << "删除";
    const bool isInVault = passwordVault && cipherIn(path).isEmpty();
    if (!QFile::remove(path))
        return false;
    if (passwordVault && (isInVault || passwordVault->state() != SecretVault::State::Unavailable))
        passwordVault->remove(secretFileOf(path));
    return true;
}
