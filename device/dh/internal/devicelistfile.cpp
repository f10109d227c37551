#include "device/dh/internal/devicelistfile.h"

#include "device/dh/internal/csvdevicelist.h"
#include "device/dh/internal/xlsxdevicelist.h"
#include "device/dh/internal/xmldevicelist.h"
#include "device/logging.h"
#include "files/filereplacement.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QUrl>

namespace {

constexpr qint64 maximumFileSize = 128LL * 1024 * 1024;

enum class ListFormat
{
    Xlsx,
    Csv,
    Xml,
};

ListFormat formatOf(const QString &path)
{
    const QString suffix = QFileInfo(path).suffix().toLower();
    if (suffix == QLatin1String("xlsx"))
        return ListFormat::Xlsx;
    return suffix == QLatin1String("csv") ? ListFormat::Csv : ListFormat::Xml;
}

bool writeText(const QString &path, const QByteArray &text)
{
    const QString failure = replaceFile(path, text);
    if (!failure.isEmpty())
        qCWarning(logDevice).noquote() << "cannot write the device list" << path << '-' << failure;
    return failure.isEmpty();
}

DeviceListContents refusal(const QString &reason)
{
    DeviceListContents contents;
    contents.refuse(reason);
    return contents;
}

} // namespace

QString localPath(const QString &path)
{
    const QUrl url(path);
    return url.isLocalFile() ? url.toLocalFile() : path;
}

bool writeDeviceList(const QString &path, const std::vector<DeviceListLine> &lines)
{
    switch (formatOf(path)) {
    case ListFormat::Xlsx:
        return writeXlsx(path, lines);
    case ListFormat::Csv:
        return writeText(path, csvOf(lines));
    case ListFormat::Xml:
        return writeText(path, xmlOf(lines));
    }
    return false;
}

DeviceListContents readDeviceList(const QString &path)
{
    QFile file(path);
    // A folder or a pipe has a path too, and a pipe would never end.
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly)) {
        qCWarning(logDevice).noquote() << "Failed to open file:" << path;
        return refusal(QCoreApplication::translate("DeviceList", "无法打开文件"));
    }
    if (file.size() > maximumFileSize)
        return refusal(QCoreApplication::translate("DeviceList", "文件过大"));
    switch (formatOf(path)) {
    case ListFormat::Xlsx:
        return readXlsx(path);
    case ListFormat::Csv:
        return readCsv(file);
    case ListFormat::Xml:
        return readXml(file);
    }
    return {};
}
