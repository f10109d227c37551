#include "favourites/favouritefile.h"

#include "favourites/logging.h"
#include "files/filereplacement.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>

namespace {

constexpr QLatin1StringView passwordFieldKey("password");

std::optional<QByteArray> readFile(const QString &path)
{
    const QString name = QFileInfo(path).fileName();
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        qCWarning(logFavourites) << "无法打开文件:" << name << "-" << file.errorString();
        return std::nullopt;
    }
    // The size on disk is not used: a file may grow while it is read, and special files have no size.
    QByteArray text = file.read(maximumFavouriteSize + 1);
    if (text.size() > maximumFavouriteSize) {
        qCWarning(logFavourites) << "文件过大:" << name;
        return std::nullopt;
    }
    if (text.isEmpty()) {
        qCWarning(logFavourites) << "文件为空:" << name;
        return std::nullopt;
    }
    return text;
}

std::optional<QJsonObject> parseObject(const QByteArray &text, const QString &name)
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(text, &error);
    if (error.error != QJsonParseError::NoError) {
        qCWarning(logFavourites) << "JSON解析错误 (" << name << "):" << error.errorString() << "at offset"
                                 << error.offset;
        return std::nullopt;
    }
    if (!document.isObject()) {
        qCWarning(logFavourites) << "JSON根元素不是对象:" << name;
        return std::nullopt;
    }
    return document.object();
}

} // namespace

std::optional<QJsonObject> readFavourite(const QString &path)
{
    const std::optional<QByteArray> text = readFile(path);
    return text ? parseObject(*text, QFileInfo(path).fileName()) : std::nullopt;
}

QString cipherIn(const QString &path)
{
    if (!QFile::exists(path))
        return {};
    const std::optional<QJsonObject> favourite = readFavourite(path);
    return favourite ? favourite->value(passwordFieldKey).toString() : QString();
}

void removeCipher(const QString &path, const QString &cipher)
{
    if (cipher.isEmpty() || cipherIn(path) != cipher)
        return;
    std::optional<QByteArray> text = readFile(path);
    const QByteArray quoted = '"' + cipher.toLatin1() + '"';
    if (!text || text->count(quoted) != 1)
        return;
    const QString failure = replaceFile(path, text->replace(quoted, "\"\""), FileReaders::Owner);
    if (!failure.isEmpty())
        qCWarning(logFavourites) << "无法打开文件:" << path << "-" << failure;
}

QString secretFileOf(const QString &path)
{
    return QDir::cleanPath(QFileInfo(path).absoluteFilePath());
}
