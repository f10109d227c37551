#include "device/models/devicetablemodel.h"

#include "device/models/modelkeys.h"
#include "device/registry/devicefactory.h"
#include "device/registry/devicefamily.h"
#include "device/registry/upgradetools.h"
#include "device/store/devicefilter.h"
#include "device/store/devicerow.h"

#include <algorithm>
#include <array>
#include <utility>

namespace {

enum Role
{
    CheckedRole = Qt::UserRole,
    NumRole,
    ConflictRole,
    RowIdentityRole,
    AbsentRole,
    FirstKeyRole, ///< FirstKeyRole + n is rowKeys[n]
};

/// Keys whose values are copied from the row.
constexpr std::array rowKeys = {
    DeviceRowKey::state,
    DeviceRowKey::name,
    DeviceRowKey::type,
    DeviceRowKey::model,
    DeviceRowKey::ipport,
    DeviceRowKey::mac,
    DeviceRowKey::vision,
    DeviceRowKey::res,
    DeviceRowKey::operate,
    DeviceRowKey::filepath,
    DeviceRowKey::upgrade,
    DeviceRowKey::upgraderes,
    DeviceRowKey::url,
    DeviceRowKey::result,
    DeviceRowKey::httpport,
    DeviceRowKey::upgradetext,
    noteKey,
    SiteKey::group,
};

} // namespace

DeviceTableModel::DeviceTableModel(QObject *parent) : QAbstractListModel(parent) {}

int DeviceTableModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

QVariant DeviceTableModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const DeviceTableRow &row = m_rows.at(index.row());
    switch (role) {
    case CheckedRole:
        return checkedIdentities().contains(row.identity);
    case NumRole:
        return QString::number(index.row() + 1);
    case ConflictRole:
        return row.conflict;
    case RowIdentityRole:
        return row.identity;
    case AbsentRole:
        return row.isAbsent;
    default:
        break;
    }
    const int key = role - FirstKeyRole;
    return key >= 0 && key < int(rowKeys.size()) ? row.value(rowKeys[key]) : QVariant();
}

bool DeviceTableModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid) || role != CheckedRole)
        return false;
    setChecked(index.row(), value.toBool());
    return true;
}

QHash<int, QByteArray> DeviceTableModel::roleNames() const
{
    QHash<int, QByteArray> names = {
        {CheckedRole, "checked"},      {NumRole, "num"},       {ConflictRole, "conflict"},
        {RowIdentityRole, "identity"}, {AbsentRole, "absent"},
    };
    for (std::size_t key = 0; key < rowKeys.size(); ++key)
        names.insert(FirstKeyRole + static_cast<int>(key),
                     QByteArray(rowKeys[key].data(), rowKeys[key].size()));
    return names;
}

CDeviceFactory *DeviceTableModel::deviceFactory() const
{
    return m_deviceFactory;
}

void DeviceTableModel::setDeviceFactory(CDeviceFactory *deviceFactory)
{
    if (m_deviceFactory == deviceFactory)
        return;
    m_deviceFactory = deviceFactory;
    Q_EMIT deviceFactoryChanged();
    refresh();
}

void DeviceTableModel::setShowInitialised(bool show)
{
    if (std::exchange(m_showInitialised, show) != show)
        applyFilter();
}

void DeviceTableModel::setShowUninitialised(bool show)
{
    if (std::exchange(m_showUninitialised, show) != show)
        applyFilter();
}

void DeviceTableModel::setIpv6(bool ipv6)
{
    if (std::exchange(m_ipv6, ipv6) != ipv6)
        applyFilter();
}

void DeviceTableModel::setOddAddressesFirst(bool first)
{
    if (std::exchange(m_oddAddressesFirst, first) != first)
        applyFilter();
}

void DeviceTableModel::setSearchText(const QString &searchText)
{
    if (std::exchange(m_searchText, searchText) != searchText)
        applyFilter();
}

void DeviceTableModel::setFailedMarks(FailedMarks *marks)
{
    m_failedMarks.follow(marks, this, &DeviceTableModel::failedMarksChanged, &DeviceTableModel::updateMarks);
}

void DeviceTableModel::setNotes(DeviceNotes *notes)
{
    if (m_notes == notes)
        return;
    if (m_notes)
        m_notes->disconnect(this);
    m_notes = notes;
    if (m_notes)
        connect(m_notes, &DeviceNotes::changed, this, &DeviceTableModel::refresh);
    Q_EMIT notesChanged();
    refresh();
}

void DeviceTableModel::setKnownDevices(KnownDevices *known)
{
    if (m_known == known)
        return;
    if (m_known)
        m_known->disconnect(this);
    m_known = known;
    if (m_known)
        connect(m_known, &KnownDevices::changed, this, &DeviceTableModel::refresh);
    Q_EMIT knownDevicesChanged();
    refresh();
}

void DeviceTableModel::addNotes(QVariantList &list) const
{
    if (!m_notes || m_notes->count() == 0)
        return;
    for (QVariant &row : list) {
        QJsonObject values = row.toJsonObject();
        const QString note = m_notes->noteOf(values);
        if (note.isEmpty())
            continue;
        values.insert(noteKey, note);
        row = values;
    }
}

void DeviceTableModel::setOnlyFailed(bool only)
{
    if (std::exchange(m_onlyFailed, only) == only)
        return;
    m_failedMarks.setOperation({});
    applyFilter();
}

void DeviceTableModel::setFailedOperation(const QString &operation)
{
    if (m_failedMarks.setOperation(operation))
        applyFilter();
}

void DeviceTableModel::updateMarks()
{
    if (m_onlyFailed && m_failedMarks.isEmpty())
        setOnlyFailed(false);
    else if (m_failedMarks.settleOperation())
        applyFilter();
    else if (m_onlyFailed)
        refresh();
    else if (m_deviceFactory)
        countFailed(readList());
    if (!m_rows.isEmpty())
        Q_EMIT dataChanged(index(0), index(rowCount() - 1));
}

void DeviceTableModel::applyFilter()
{
    Q_EMIT filterChanged();
    refresh();
}

QVariantList DeviceTableModel::readList() const
{
    const QString all = RowFilter::all;
    return m_ipv6 ? m_deviceFactory->filterDataIPV6(dhFamily, all)
                  : m_deviceFactory->filterData(dhFamily, all);
}

QList<DeviceTableRow> DeviceTableModel::readRows()
{
    // One read for all values: rows may be added or changed between two reads.
    QVariantList list = readList();
    uncheckRemoved(list);
    countFailed(list);
    m_listedCount = static_cast<int>(list.size());
    if (m_known)
        m_known->complete(list, m_ipv6);
    addNotes(list);
    m_totalCount = static_cast<int>(list.size());
    QList<DeviceTableRow> rows =
        deviceTableRows(list,
                        {.showInitialised = m_showInitialised,
                         .showUninitialised = m_showUninitialised,
                         .searchText = m_searchText,
                         .onlyThose = m_onlyFailed ? &m_failedMarks : nullptr},
                        {.key = m_sortKey,
                         .direction = m_sortOrder,
                         .oddAddresses = m_oddAddressesFirst ? DeviceOrder::OddAddresses::AsZero
                                                             : DeviceOrder::OddAddresses::Last});
    m_conflictCount = static_cast<int>(
        std::count_if(rows.cbegin(), rows.cend(), [](const DeviceTableRow &row) { return row.conflict; }));
    return rows;
}

void DeviceTableModel::uncheckRemoved(const QVariantList &list)
{
    if (checkedIdentities().isEmpty())
        return;
    checkedIdentities() = namesOf(list).intersect(checkedIdentities());
}

void DeviceTableModel::countFailed(const QVariantList &list)
{
    const bool hasMarks = !m_failedMarks.isEmpty();
    const auto isFailed = [&](const QVariant &row) {
        return hasMarks && m_failedMarks.contains(rowName(row.toJsonObject()));
    };
    const auto count = static_cast<int>(std::count_if(list.cbegin(), list.cend(), isFailed));
    if (std::exchange(m_failedCount, count) != count)
        Q_EMIT failedCountChanged();
}

void DeviceTableModel::refresh()
{
    if (!m_deviceFactory)
        return;
    replaceRows(readRows());
    countChecked();
    Q_EMIT countChanged();
}

void DeviceTableModel::replaceRows(QList<DeviceTableRow> rows)
{
    const qsizetype shown = m_rows.size();
    const bool grown =
        rows.size() >= shown && std::equal(m_rows.cbegin(), m_rows.cend(), rows.cbegin(),
                                           [](const DeviceTableRow &before, const DeviceTableRow &now) {
                                               return before.identity == now.identity;
                                           });
    if (!grown) {
        beginResetModel();
        m_rows = std::move(rows);
        updateRowIndex(0);
        endResetModel();
        return;
    }
    // Usual case during a search: rows are appended. Views keep their scroll position and delegates.
    int firstChanged = static_cast<int>(shown);
    int lastChanged = -1;
    for (int position = 0; position < static_cast<int>(shown); ++position) {
        if (m_rows.at(position) == rows.at(position))
            continue;
        firstChanged = std::min(firstChanged, position);
        lastChanged = position;
    }
    if (rows.size() > shown) {
        beginInsertRows(QModelIndex(), static_cast<int>(shown), static_cast<int>(rows.size() - 1));
        m_rows = std::move(rows);
        updateRowIndex(shown);
        endInsertRows();
    } else {
        m_rows = std::move(rows);
    }
    if (lastChanged >= firstChanged)
        Q_EMIT dataChanged(index(firstChanged), index(lastChanged));
}

void DeviceTableModel::updateRowIndex(qsizetype first)
{
    if (first == 0)
        m_rowByIdentity.clear();
    m_rowByIdentity.reserve(m_rows.size());
    for (qsizetype position = first; position < m_rows.size(); ++position)
        m_rowByIdentity.insert(m_rows.at(position).identity, static_cast<int>(position));
}

void DeviceTableModel::refreshDevice(const QString &mac)
{
    refreshDevices({mac});
}

void DeviceTableModel::refreshDevices(const QStringList &macs)
{
    int first = rowCount();
    int last = -1;
    for (const QString &mac : macs) {
        const int position = rowOf(mac);
        if (position < 0 || !m_deviceFactory)
            continue;
        QJsonObject row = m_deviceFactory->backEnd(dhFamily)->deviceRow(mac);
        if (m_known && !row.isEmpty())
            m_known->addValues(row, m_ipv6);
        QVariantList read = {row};
        addNotes(read);
        const QJsonObject values = read.constFirst().toJsonObject();
        if (!values.isEmpty()) // otherwise the device was deleted; the next refresh() removes the row
            m_rows[position].values = values;
        first = std::min(first, position);
        last = std::max(last, position);
    }
    if (last >= 0)
        Q_EMIT dataChanged(index(first), index(last)); // one signal: the view updates visible rows once
}

void DeviceTableModel::toggleSort(const QString &key)
{
    if (m_sortKey != key)
        setSort(key, Qt::AscendingOrder);
    else if (m_sortOrder == Qt::AscendingOrder)
        setSort(key, Qt::DescendingOrder);
    else
        setSort({}, Qt::AscendingOrder);
}

void DeviceTableModel::setSort(const QString &key, Qt::SortOrder order)
{
    if (m_sortKey == key && m_sortOrder == order)
        return;
    m_sortKey = key;
    m_sortOrder = order;
    Q_EMIT sortChanged();
    refresh();
}

void DeviceTableModel::setChecked(int row, bool checked)
{
    setRangeChecked(row, row, checked);
}

void DeviceTableModel::setRangeChecked(int first, int last, bool checked)
{
    first = std::max(first, 0);
    last = std::min(last, rowCount() - 1);
    if (first > last)
        return;
    for (int row = first; row <= last; ++row) {
        if (checked && m_rows.at(row).isAbsent)
            continue;
        if (checked)
            checkedIdentities().insert(m_rows.at(row).identity);
        else
            checkedIdentities().remove(m_rows.at(row).identity);
    }
    Q_EMIT dataChanged(index(first), index(last), {CheckedRole});
    countChecked();
}

void DeviceTableModel::setAllChecked(bool checked)
{
    setRangeChecked(0, rowCount() - 1, checked);
}

void DeviceTableModel::setCheckedDevices(const QStringList &identities)
{
    checkedIdentities() = QSet<QString>(identities.cbegin(), identities.cend());
    for (const DeviceTableRow &row : std::as_const(m_rows)) {
        if (row.isAbsent)
            checkedIdentities().remove(row.identity);
    }
    if (!m_rows.isEmpty())
        Q_EMIT dataChanged(index(0), index(rowCount() - 1), {CheckedRole});
    countChecked();
}

void DeviceTableModel::countChecked()
{
    m_checkedCount = 0;
    m_checkedUpgradingCount = 0;
    if (!checkedIdentities().isEmpty()) {
        for (const DeviceTableRow &row : std::as_const(m_rows)) {
            if (!checkedIdentities().contains(row.identity))
                continue;
            ++m_checkedCount;
            const int upgrade = row.value(DeviceRowKey::upgraderes).toInt();
            m_checkedUpgradingCount += UpgradeTools::isRunning(upgrade) ? 1 : 0;
        }
    }
    Q_EMIT checkedCountChanged();
}

Qt::CheckState DeviceTableModel::checkState() const
{
    if (m_checkedCount == 0)
        return Qt::Unchecked;
    return m_checkedCount == presentCount() ? Qt::Checked : Qt::PartiallyChecked;
}

qsizetype DeviceTableModel::presentCount() const
{
    return std::count_if(m_rows.cbegin(), m_rows.cend(),
                         [](const DeviceTableRow &row) { return !row.isAbsent; });
}

QVariantMap DeviceTableModel::get(int row) const
{
    if (row < 0 || row >= rowCount())
        return {};
    QVariantMap values = m_rows.at(row).values.toVariantMap();
    values.insert(DeviceRowKey::checked, checkedIdentities().contains(m_rows.at(row).identity));
    values.insert(DeviceRowKey::num, QString::number(row + 1));
    values.insert(RowKey::identity, m_rows.at(row).identity);
    const bool isLost = m_rows.at(row).values.value(DeviceRowKey::lost).toBool();
    values.insert(RowKey::failure, m_failedMarks.messagesOf(m_rows.at(row).identity, isLost));
    values.insert(RowKey::absent, m_rows.at(row).isAbsent);
    values.insert(RowKey::onlyNotDone, m_failedMarks.isOnlyNotDone(m_rows.at(row).identity));
    return values;
}

int DeviceTableModel::rowOf(const QString &identity) const
{
    return m_rowByIdentity.value(identity, -1);
}

int DeviceTableModel::rowStarting(const QString &text, int from) const
{
    const int count = rowCount();
    for (int step = 0; step < count; ++step) {
        const int row = (std::max(from, 0) + step) % count;
        const DeviceTableRow &values = m_rows.at(row);
        if (values.value(DeviceRowKey::ipport).toString().startsWith(text, Qt::CaseInsensitive) ||
            values.value(DeviceRowKey::name).toString().startsWith(text, Qt::CaseInsensitive))
            return row;
    }
    return -1;
}

void DeviceTableModel::checkSimilar(int row, const QString &key)
{
    if (row < 0 || row >= rowCount())
        return;
    const QJsonValue wanted = m_rows.at(row).values.value(key);
    QStringList similar;
    for (const DeviceTableRow &values : std::as_const(m_rows)) {
        if (values.values.value(key) == wanted)
            similar.append(values.identity);
    }
    setCheckedDevices(similar);
}

QStringList DeviceTableModel::checkedMacs() const
{
    QStringList macs;
    for (const DeviceTableRow &row : m_rows) {
        if (checkedIdentities().contains(row.identity))
            macs.append(row.identity);
    }
    return macs;
}

QVariantList DeviceTableModel::checkedRows() const
{
    QVariantList rows;
    for (int row = 0; row < rowCount(); ++row) {
        if (checkedIdentities().contains(m_rows.at(row).identity))
            rows.append(get(row));
    }
    return rows;
}

QVariantList DeviceTableModel::checkedRowsWith(bool initialised) const
{
    QVariantList rows = checkedRows();
    rows.removeIf([initialised](const QVariant &row) {
        return row.toMap().value(DeviceRowKey::state).toBool() != initialised;
    });
    return rows;
}

int DeviceTableModel::deleteChecked()
{
    const QStringList names = checkedMacs();
    if (!m_deviceFactory)
        return 0;
    QList<QJsonObject> rows;
    for (const DeviceTableRow &row : std::as_const(m_rows)) {
        if (checkedIdentities().contains(row.identity))
            rows.append(row.values);
    }
    if (m_known)
        m_known->hide(rows, m_ipv6);
    QVariantMap deleted;
    for (const QString &name : names)
        deleted.insert(name, true);
    m_deviceFactory->setBatchDeleteDevice(dhFamily, deleted,
                                          m_ipv6 ? QStringLiteral("IPV6") : QStringLiteral("IPV4"));
    refresh();
    return static_cast<int>(std::count_if(names.cbegin(), names.cend(),
                                          [this](const QString &name) { return rowOf(name) >= 0; }));
}

QString DeviceTableModel::textOf(const QList<int> &rows) const
{
    QStringList lines;
    for (const int row : rows) {
        if (row >= 0 && row < rowCount())
            lines.append(m_rows.at(row).text());
    }
    return lines.join(QLatin1Char('\n'));
}
