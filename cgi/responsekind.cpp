#include "cgi/responsekind.h"

#include <QStringDecoder>

#include <array>

namespace {

struct ImageFormat
{
    const char *contentType;
    const char *ending;
};

/// The first match is used.
constexpr std::array imageFormats = {
    ImageFormat{.contentType = "image/jpeg", .ending = ".jpg"},
    ImageFormat{.contentType = "image/png", .ending = ".png"},
    ImageFormat{.contentType = "image/gif", .ending = ".gif"},
    ImageFormat{.contentType = "image/bmp", .ending = ".bmp"},
    ImageFormat{.contentType = "image/svg", .ending = ".svg"},
    ImageFormat{.contentType = "image/webp", .ending = ".webp"},
};

/// "gbk" of "Content-Type: text/plain; charset=GBK" in the headers of the last response; empty without it.
QByteArray namedEncoding(const QByteArray &headers)
{
    const QByteArray text = headers.toLower();
    const qsizetype begin = qMax(0, text.lastIndexOf("\ncontent-type:") + 1);
    const QByteArray type = text.mid(begin).split('\n').constFirst();
    const QByteArray mark = QByteArrayLiteral("charset=");
    const qsizetype position = type.indexOf(mark);
    if (position < 0)
        return {};
    QByteArray name = type.mid(position + mark.size()).split(';').constFirst();
    return name.replace('"', "").trimmed();
}

/// Encodings with two or four bytes per character have zeroes even in plain text.
bool isUtf8(const QByteArray &body)
{
    return !body.contains('\0') && QByteArrayView(body).isValidUtf8();
}

} // namespace

ResponseKind responseKind(const QByteArray &headers)
{
    if (headers.contains("image/"))
        return ResponseKind::Image;
    return headers.contains("octet-stream") ? ResponseKind::Recording : ResponseKind::Text;
}

QString responseFileEnding(const QByteArray &headers)
{
    switch (responseKind(headers)) {
    case ResponseKind::Text:
        return {};
    case ResponseKind::Recording:
        return QStringLiteral(".dav");
    case ResponseKind::Image:
        break;
    }
    for (const ImageFormat &format : imageFormats) {
        if (headers.contains(format.contentType))
            return QLatin1String(format.ending);
    }
    return QStringLiteral(".jpg");
}

QString responseText(const QByteArray &headers, const QByteArray &body)
{
    if (isUtf8(body))
        return QString::fromUtf8(body);
    const auto marked = QStringConverter::encodingForData(body);
    QStringDecoder decoder =
        marked ? QStringDecoder(*marked) : QStringDecoder(namedEncoding(headers).constData());
    if (!decoder.isValid())
        return QString::fromUtf8(body);
    return decoder.decode(body);
}

QString responseFilePath(const QString &folder, const QDateTime &localTime, const QString &ending)
{
    return folder + QLatin1Char('/') + localTime.toString(QStringLiteral("yyyyMMddhhmmss")) + ending;
}
