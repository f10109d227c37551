#include "device/models/certificatelist.h"

#include "device/models/modelkeys.h"
#include "device/store/devicerow.h"

#include <algorithm>
#include <utility>

CertificateList::CertificateList(std::shared_ptr<CertificateStore> store, QObject *parent)
    : DialogRows(parent), m_store(std::move(store))
{
    // One queued event covers all refusals until it runs: thousands of devices may be refused within a
    // second.
    m_store->setListener([this] {
        if (!m_isNotified.exchange(true))
            QMetaObject::invokeMethod(
                this,
                [this] {
                    m_isNotified = false;
                    setHasNewRefusals(true);
                },
                Qt::QueuedConnection);
    });
}

CertificateList::~CertificateList()
{
    m_store->setListener({});
}

void CertificateList::setHasNewRefusals(bool hasNewRefusals)
{
    if (std::exchange(m_hasNewRefusals, hasNewRefusals) != hasNewRefusals)
        Q_EMIT hasNewRefusalsChanged();
}

void CertificateList::load()
{
    beginResetModel();
    m_rows.clear();
    const QList<RefusedCertificate> refused = m_store->refused();
    m_rows.reserve(refused.size());
    for (const RefusedCertificate &certificate : refused)
        m_rows.append({.certificate = certificate, .isChecked = !certificate.isChanged()});
    // Changed certificates first: the list may be long.
    std::stable_partition(m_rows.begin(), m_rows.end(),
                          [](const Row &row) { return row.certificate.isChanged(); });
    endResetModel();
    setHasNewRefusals(false);
    Q_EMIT rowsChanged();
    Q_EMIT checkedCountChanged();
}

QString CertificateList::agree()
{
    QList<RefusedCertificate> agreed;
    for (const Row &row : std::as_const(m_rows)) {
        if (row.isChecked)
            agreed.append(row.certificate);
    }
    return m_store->agree(agreed);
}

int CertificateList::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

int CertificateList::changedCount() const
{
    return static_cast<int>(std::count_if(m_rows.cbegin(), m_rows.cend(),
                                          [](const Row &row) { return row.certificate.isChanged(); }));
}

int CertificateList::checkedCount() const
{
    return static_cast<int>(
        std::count_if(m_rows.cbegin(), m_rows.cend(), [](const Row &row) { return row.isChecked; }));
}

Qt::CheckState CertificateList::checkState() const
{
    if (checkedCount() == 0)
        return Qt::Unchecked;
    const bool areAllChecked = std::all_of(m_rows.cbegin(), m_rows.cend(), [](const Row &row) {
        return row.isChecked || row.certificate.isChanged();
    });
    return areAllChecked ? Qt::Checked : Qt::PartiallyChecked;
}

void CertificateList::setRangeChecked(int first, int last, bool checked)
{
    first = std::max(first, 0);
    last = std::min(last, rowCount() - 1);
    if (first > last)
        return;
    for (int row = first; row <= last; ++row) {
        // Changed certificates are accepted one by one, after the user has seen each.
        if (!checked || first == last || !m_rows.at(row).certificate.isChanged())
            m_rows[row].isChecked = checked;
    }
    Q_EMIT dataChanged(index(first), index(last), {CheckedRole});
    Q_EMIT checkedCountChanged();
}

void CertificateList::setAllChecked(bool checked)
{
    for (Row &row : m_rows)
        row.isChecked = checked && !row.certificate.isChanged();
    if (!m_rows.isEmpty())
        Q_EMIT dataChanged(index(0), index(rowCount() - 1), {CheckedRole});
    Q_EMIT checkedCountChanged();
}

QVariantMap CertificateList::valuesOf(int row) const
{
    const RefusedCertificate &certificate = m_rows.at(row).certificate;
    const bool isIpv6 = certificate.address.contains(QLatin1Char(':'));
    const QString host =
        isIpv6 ? QLatin1Char('[') + certificate.address + QLatin1Char(']') : certificate.address;
    const QString device = QStringLiteral("%1:%2").arg(host).arg(certificate.port);
    const QString begin = certificate.validFrom.section(QLatin1Char(' '), 0, 0);
    const QString end = certificate.validUntil.section(QLatin1Char(' '), 0, 0);
    return {{RowKey::identity, device + certificate.identity},
            {DeviceRowKey::checked, m_rows.at(row).isChecked},
            {RowKey::device, device},
            {DeviceRowKey::mac, certificate.identity},
            {RowKey::subject, certificate.subject},
            {RowKey::validity,
             begin.isEmpty() && end.isEmpty() ? QString() : begin + QStringLiteral(" – ") + end},
            {RowKey::fingerprint, certificate.fingerprint},
            {RowKey::stored, certificate.storedFingerprint},
            {RowKey::changed, certificate.isChanged()}};
}
