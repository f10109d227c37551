#include "device/dh/lists/devicelistfile.h"

#include "device/dh/lists/csvdevicelist.h"
#include "device/dh/lists/encryptedlist.h"
#include "device/dh/lists/xlsxdevicelist.h"
#include "device/dh/lists/xmldevicelist.h"
#include "device/registry/listprotection.h"
#include "device/store/logging.h"
#include "files/filereplacement.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

#include <algorithm>

namespace {

constexpr qint64 maximumFileSize = 128LL * 1024 * 1024;

enum class ListFormat
{
    Xlsx,
    Csv,
    Encrypted,
    Xml,
};

ListFormat formatOf(const QString &path)
{
    const QString suffix = QFileInfo(path).suffix().toLower();
    if (suffix == QLatin1String("xlsx"))
        return ListFormat::Xlsx;
    if (suffix == encryptedListSuffix)
        return ListFormat::Encrypted;
    return suffix == QLatin1String("csv") ? ListFormat::Csv : ListFormat::Xml;
}

bool hasPassword(const std::vector<DeviceListLine> &lines)
{
    return std::any_of(lines.begin(), lines.end(),
                       [](const DeviceListLine &line) { return !line[ListColumn::Password].isEmpty(); });
}

bool writeWorkbook(const QString &path, const std::vector<DeviceListLine> &lines)
{
    const bool isNew = !QFileInfo::exists(path);
    const QString failure = hasPassword(lines) ? reserveForOwner(path) : QString();
    if (!failure.isEmpty())
        qCWarning(logDevice).noquote() << "cannot write the device list" << path << '-' << failure;
    const bool isWritten = failure.isEmpty() && writeXlsx(path, lines);
    if (!isWritten && isNew)
        QFile::remove(path);
    return isWritten;
}

bool writeText(const QString &path, const QByteArray &text, FileReaders readers)
{
    const QString failure = replaceFile(path, text, readers);
    if (!failure.isEmpty())
        qCWarning(logDevice).noquote() << "cannot write the device list" << path << '-' << failure;
    return failure.isEmpty();
}

/// Reads back what a file with these lines would contain.
DeviceListContents readBack(ListFormat format, const std::vector<DeviceListLine> &lines)
{
    DeviceListContents contents;
    QBuffer file;
    switch (format) {
    case ListFormat::Xlsx:
    case ListFormat::Encrypted:
        // Both keep every character. Truncation and trimming are the same in all formats.
        for (const DeviceListLine &line : lines)
            contents.add(line);
        for (DeviceListLine &line : contents.lines) {
            for (int column = 0; column < listColumnCount; ++column) {
                QString &text = line[static_cast<ListColumn>(column)];
                text = listText(static_cast<ListColumn>(column), QString::fromUtf8(text.toUtf8()));
            }
        }
        return contents;
    case ListFormat::Csv:
        file.setData(csvOf(lines));
        break;
    case ListFormat::Xml:
        file.setData(xmlOf(lines));
        break;
    }
    file.open(QIODevice::ReadOnly);
    return format == ListFormat::Csv ? readCsv(file) : readXml(file);
}

bool isReadBack(ListFormat format, const std::vector<DeviceListLine> &lines)
{
    const DeviceListContents back = readBack(format, lines);
    return std::equal(lines.begin(), lines.end(), back.lines.begin(), back.lines.end(),
                      [](const DeviceListLine &written, const DeviceListLine &read) {
                          return written.values == read.values &&
                                 std::all_of(read.values.begin(), read.values.end(),
                                             [](const QString &text) { return faultOfText(text).isEmpty(); });
                      });
}

/// Whether one value of a line is read back unchanged. The line needs an address to be valid.
bool isReadBack(ListFormat format, ListColumn column, const QString &text)
{
    DeviceListLine line;
    line[ListColumn::IPAddress] = QStringLiteral("0");
    line[column] = text;
    return isReadBack(format, {line});
}

/// The first character of a value that is not read back unchanged; otherwise the space at its start or end.
QString lostCharacter(ListFormat format, ListColumn column, const QString &text)
{
    for (const char32_t code : text.toUcs4()) {
        QString character = QString::fromUcs4(&code, 1);
        if (!isReadBack(format, column, QLatin1Char('0') + character + QLatin1Char('0')))
            return character;
    }
    if (text.front().isSpace())
        return text.front();
    return text.back().isSpace() ? QString(text.back()) : QString();
}

DeviceListContents refusal(const QString &reason)
{
    DeviceListContents contents;
    contents.refuse(reason);
    return contents;
}

} // namespace

bool writeDeviceList(const QString &path, const std::vector<DeviceListLine> &lines, const QString &passphrase)
{
    const ListFormat format = formatOf(path);
    // An encrypted list in a readable format, or the reverse, would not protect the passwords.
    const bool isProtected =
        format == ListFormat::Encrypted ? passphrase.size() >= shortestPassphrase : passphrase.isEmpty();
    if (!isProtected) {
        qCWarning(logDevice).noquote() << "the passphrase does not fit the format of" << path;
        return false;
    }
    const FileReaders readers = hasPassword(lines) ? FileReaders::Owner : FileReaders::System;
    switch (format) {
    case ListFormat::Encrypted: {
        const QByteArray file = encryptedListOf(lines, passphrase);
        return !file.isEmpty() && writeText(path, file, FileReaders::System);
    }
    case ListFormat::Xlsx:
        return writeWorkbook(path, lines);
    case ListFormat::Csv:
        return writeText(path, csvOf(lines), readers);
    case ListFormat::Xml:
        return writeText(path, xmlOf(lines), readers);
    }
    return false;
}

std::vector<UnreadableText> unreadableTexts(const QString &fileName, const std::vector<DeviceListLine> &lines)
{
    const ListFormat format = formatOf(fileName);
    std::vector<UnreadableText> lost;
    const bool areAllReadBack = isReadBack(format, lines);
    for (std::size_t index = 0; index < lines.size() && lost.size() < maximumUnreadableTexts; ++index) {
        if (lines.at(index)[ListColumn::IPAddress].isEmpty())
            lost.push_back({.line = index, .column = ListColumn::IPAddress, .character = {}});
        if (areAllReadBack || isReadBack(format, {lines.at(index)}))
            continue;
        for (int number = 0; number < listColumnCount; ++number) {
            const auto column = static_cast<ListColumn>(number);
            const QString &text = lines.at(index)[column];
            if (lost.size() == maximumUnreadableTexts)
                return lost;
            if (!text.isEmpty() && !isReadBack(format, column, text))
                lost.push_back(
                    {.line = index, .column = column, .character = lostCharacter(format, column, text)});
        }
    }
    return lost;
}

DeviceListContents readDeviceList(const QString &path, const QString &passphrase)
{
    QFile file(path);
    // A folder or a pipe can be opened as well; reading a pipe would not end.
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
    case ListFormat::Encrypted:
        return readEncryptedList(file.read(maximumFileSize), passphrase);
    case ListFormat::Xml:
        break;
    }
    DeviceListContents contents = readXml(file);
    if (!contents.detail.isEmpty())
        qCWarning(logDevice).noquote() << contents.detail;
    return contents;
}
