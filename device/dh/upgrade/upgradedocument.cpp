#include "device/dh/upgrade/upgradedocument.h"

#include "device/store/ipv4address.h"
#include "device/store/logging.h"
#include "sheets/keptworkbook.h"
#include "sheets/tablecells.h"

#include <QDir>
#include <QFileInfo>
#include <QHostAddress>
#include <QSet>

#include <algorithm>

namespace {

enum Column
{
    AddressColumn = 1,
    PortColumn,
    UserColumn,
    PasswordColumn,
    FileColumn,
    ResultColumn,
};

constexpr int defaultPort = 37777;

/// The port of a cell; the default port for an empty cell, 0 if invalid.
int portIn(const QString &cell)
{
    if (cell.isEmpty())
        return defaultPort;
    const qint64 number = sheets::wholeNumber(cell).value_or(0);
    const bool isPort = number >= 1 && number <= 65535 && cell.toDouble() == static_cast<double>(number);
    return isPort ? static_cast<int>(number) : 0;
}

/// The address of a cell in the spelling of rows; octets padded with zeros are accepted. Empty if invalid,
/// and for an ambiguous address like "10.0.0.010", which some applications read as octal.
QString addressIn(const QString &cell)
{
    const QHostAddress address(cell);
    if (address.protocol() == QAbstractSocket::IPv6Protocol) {
        bool isIpv4 = false;
        const quint32 number = address.toIPv4Address(&isIpv4); // "::ffff:10.0.0.1"
        return isIpv4 ? ipv4Text(number) : QLatin1Char('[') + address.toString() + QLatin1Char(']');
    }
    const std::optional<std::uint32_t> number = ipv4Number(cell);
    const QStringList octets = number ? cell.split(QLatin1Char('.')) : QStringList();
    const bool isAmbiguous = std::any_of(octets.cbegin(), octets.cend(), [](const QString &octet) {
        return octet.startsWith(QLatin1Char('0')) && octet.toInt() >= 8;
    });
    return number && !isAmbiguous ? ipv4Text(*number) : QString();
}

} // namespace

QStringList UpgradeDocument::requiredTitles()
{
    return {tr("IP"), tr("端口"), tr("用户名"), tr("密码"), tr("升级文件")};
}

QString UpgradeDocument::open(const QString &path)
{
    m_path = path;
    if (!m_excel.open(path)) {
        qCWarning(logDevice).noquote() << "cannot open the workbook:" << m_excel.errorText();
        return tr("文件打开失败");
    }
    if (!sheets::beginsWithTitles(m_excel, requiredTitles())) {
        m_excel.quit();
        return tr("文件格式错误");
    }
    if (lineCount() > maximumLines) {
        m_excel.quit();
        return tr("文档中的设备超过 %1 行，请分成多个文档").arg(maximumLines);
    }
    return {};
}

bool UpgradeDocument::isLine(int row)
{
    return !text(row, AddressColumn).isEmpty() || !text(row, FileColumn).isEmpty();
}

int UpgradeDocument::lineCount()
{
    int count = 0;
    const int last = sheets::lastUsedRow(m_excel);
    for (int row = 2; row <= last && count <= maximumLines; ++row)
        count += isLine(row) ? 1 : 0;
    return count;
}

std::vector<UpgradeDocumentLine> UpgradeDocument::lines()
{
    std::vector<UpgradeDocumentLine> found;
    QSet<QString> addresses;
    const int last = sheets::lastUsedRow(m_excel);
    for (int row = 2; row <= last; ++row) {
        if (!isLine(row))
            continue;
        found.push_back(line(row));
        UpgradeDocumentLine &added = found.back();
        if (added.refusal == UpgradeTools::None && addresses.contains(added.ipport))
            added.refusal = UpgradeTools::ListedTwice;
        addresses.insert(added.ipport);
    }
    return found;
}

UpgradeDocumentLine UpgradeDocument::line(int row)
{
    const QString addressText = text(row, AddressColumn);
    const QString address = addressIn(addressText);
    const int port = portIn(text(row, PortColumn));
    const QString file = text(row, FileColumn);
    UpgradeDocumentLine line;
    line.row = row;
    line.ipport = (address.isEmpty() ? addressText : address) + QLatin1Char(':') + QString::number(port);
    line.user = text(row, UserColumn);
    line.password = m_excel.cellText(row, PasswordColumn).value_or(QString());
    if (!file.isEmpty()) // accepts the separators of other systems
        line.file = QDir::cleanPath(
            QFileInfo(m_path).absoluteDir().absoluteFilePath(QDir::fromNativeSeparators(file)));
    if (address.isEmpty() || port == 0)
        line.refusal = UpgradeTools::LineUnusable;
    return line;
}

void UpgradeDocument::setResult(int row, const QString &result)
{
    if (!m_excel.setCellText(row, ResultColumn, result))
        qCWarning(logDevice).noquote()
            << "cannot write the result of row" << row << "-" << m_excel.errorText();
}

QString UpgradeDocument::keep()
{
    const QString original = m_path;
    m_isKept = keepWorkbook(m_excel, m_path, tr("结果"));
    if (!m_isKept)
        return tr("升级结果无法保存：%1").arg(m_excel.errorText());
    const QString path = QDir::toNativeSeparators(m_path);
    return m_path == original ? tr("升级结果已保存到文件：%1").arg(path)
                              : tr("原文件无法写入，可能已被打开或为只读。升级结果已另存为：%1").arg(path);
}

QString UpgradeDocument::text(int row, int column)
{
    return sheets::trimmedCellText(m_excel, row, column);
}

bool OpenedUpgradeDocument::isCurrent(const QString &localPath) const
{
    return document && path == localPath && changed == QFileInfo(localPath).lastModified();
}

OpenedUpgradeDocument openUpgradeDocument(const QString &localPath)
{
    OpenedUpgradeDocument opened = {.path = localPath};
    opened.changed = QFileInfo(localPath).lastModified();
    auto document = std::make_unique<UpgradeDocument>();
    opened.refusal = document->open(localPath);
    if (opened.refusal.isEmpty()) {
        opened.lines = document->lines();
        opened.document = std::move(document);
    }
    return opened;
}
