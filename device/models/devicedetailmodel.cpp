#include "device/models/devicedetailmodel.h"

#include "device/store/devicerow.h"
#include "device/store/logging.h"
#include "files/filereplacement.h"

#include <algorithm>

DeviceDetailModel::DeviceDetailModel(QObject *parent) : QAbstractListModel(parent) {}

int DeviceDetailModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_shown.size());
}

QVariant DeviceDetailModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const DeviceDetailLine &line = m_shown.at(index.row());
    switch (role) {
    case GroupRole:
        return line.group;
    case LabelRole:
        return line.label;
    case ValueRole:
        return line.value;
    default:
        return {};
    }
}

QHash<int, QByteArray> DeviceDetailModel::roleNames() const
{
    return {{GroupRole, "group"}, {LabelRole, "label"}, {ValueRole, "value"}};
}

void DeviceDetailModel::setSearchText(const QString &searchText)
{
    if (m_searchText == searchText)
        return;
    m_searchText = searchText;
    Q_EMIT searchTextChanged();
    show();
}

QString DeviceDetailModel::fileName() const
{
    QString name = m_detail.value(DeviceRowKey::ipport).toString();
    for (QChar &character : name) {
        if (!character.isLetterOrNumber() && character != QLatin1Char('.') && character != QLatin1Char('-'))
            character = QLatin1Char('_');
    }
    return (name.isEmpty() ? QStringLiteral("device") : name) + QStringLiteral(".txt");
}

void DeviceDetailModel::load(const QVariantMap &detail)
{
    m_detail.clear();
    m_searchText.clear();
    Q_EMIT searchTextChanged();
    add(detail);
}

void DeviceDetailModel::add(const QVariantMap &detail)
{
    m_detail.insert(detail);
    m_lines = DeviceDetail::linesOf(m_detail);
    show();
}

QString DeviceDetailModel::lineText(int row) const
{
    return row >= 0 && row < rowCount() ? m_shown.at(row).text() : QString();
}

bool DeviceDetailModel::write(const QString &path) const
{
    const QString failure = replaceFile(path, text().toUtf8());
    if (!failure.isEmpty())
        qCWarning(logDevice).noquote() << "cannot write the details" << path << '-' << failure;
    return failure.isEmpty();
}

void DeviceDetailModel::show()
{
    const QString wanted = m_searchText.trimmed();
    beginResetModel();
    m_shown.clear();
    std::copy_if(m_lines.cbegin(), m_lines.cend(), std::back_inserter(m_shown),
                 [&wanted](const DeviceDetailLine &line) {
                     return line.text().contains(wanted, Qt::CaseInsensitive) ||
                            line.group.contains(wanted, Qt::CaseInsensitive);
                 });
    endResetModel();
    Q_EMIT linesChanged();
}
