#include "device/dh/internal/csvdevicelist.h"

#include "device/dh/internal/devicelisttable.h"

#include <QCoreApplication>
#include <QIODevice>
#include <QStringDecoder>

namespace {

constexpr qint64 maximumLineLength = 65'536; // in bytes
constexpr QByteArrayView byteOrderMark("\xEF\xBB\xBF");

/// Takes what ends a line away from it.
void removeLineEnd(QByteArray &line)
{
    for (const char end : {'\n', '\r'}) {
        if (line.endsWith(end))
            line.chop(1);
    }
}

} // namespace

QByteArray csvOf(const std::vector<DeviceListLine> &lines)
{
    QByteArray text;
    for (const ListColumnName &name : listColumnNames())
        text += name.header.toUtf8() + ',';
    text.back() = '\n';
    for (const DeviceListLine &line : lines) {
        for (const QString &value : line.values)
            text += value.toUtf8() + ',';
        text.back() = '\n';
    }
    return text;
}

DeviceListContents readCsv(QIODevice &file)
{
    DeviceListContents contents;
    DeviceListTable table(contents);
    for (int number = 1; !file.atEnd(); ++number) {
        QByteArray bytes = file.readLine(maximumLineLength);
        const bool isWhole = bytes.endsWith('\n') || file.atEnd();
        if (!isWhole) {
            contents.refuse(QCoreApplication::translate("DeviceList", "第 %1 行过长").arg(number));
            return contents;
        }
        if (number == 1 && bytes.startsWith(byteOrderMark))
            bytes.remove(0, byteOrderMark.size());
        removeLineEnd(bytes);
        QStringDecoder decoder(QStringDecoder::Utf8);
        const QString line = decoder.decode(bytes);
        if (decoder.hasError()) {
            contents.refuse(QCoreApplication::translate("DeviceList", "第 %1 行不是UTF-8编码").arg(number));
            return contents;
        }
        if (!table.addRow(number, QStringView(line).split(QLatin1Char(','))))
            return contents;
    }
    table.end();
    return contents;
}
