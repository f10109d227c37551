#include "cgi/answerkind.h"

#include <array>

namespace {

struct PictureFormat
{
    const char *contentType;
    const char *ending;
};

/// The first one that is found counts.
constexpr std::array pictureFormats = {
    PictureFormat{.contentType = "image/jpeg", .ending = ".jpg"},
    PictureFormat{.contentType = "image/png", .ending = ".png"},
    PictureFormat{.contentType = "image/gif", .ending = ".gif"},
    PictureFormat{.contentType = "image/bmp", .ending = ".bmp"},
    PictureFormat{.contentType = "image/svg", .ending = ".svg"},
    PictureFormat{.contentType = "image/webp", .ending = ".webp"},
};

} // namespace

AnswerKind answerKind(const QByteArray &headers)
{
    if (headers.contains("image/"))
        return AnswerKind::Picture;
    return headers.contains("octet-stream") ? AnswerKind::Recording : AnswerKind::Text;
}

QString answerFileEnding(const QByteArray &headers)
{
    switch (answerKind(headers)) {
    case AnswerKind::Text:
        return {};
    case AnswerKind::Recording:
        return QStringLiteral(".dav");
    case AnswerKind::Picture:
        break;
    }
    for (const PictureFormat &format : pictureFormats) {
        if (headers.contains(format.contentType))
            return QLatin1String(format.ending);
    }
    return QStringLiteral(".jpg");
}

QString answerFilePath(const QString &folder, const QDateTime &localTime, const QString &ending)
{
    return folder + QLatin1Char('/') + localTime.toString(QStringLiteral("yyyyMMddhhmmss")) + ending;
}
