#include "device/accounts/certificatestore.h"

#include "device/store/logging.h"
#include "files/filereplacement.h"
#include "sdk/blocktext.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

#include <utility>

namespace {

const QString listKey = QStringLiteral("certificates");
const QString identityKey = QStringLiteral("identity");
const QString addressKey = QStringLiteral("address");
const QString portKey = QStringLiteral("port");
const QString fingerprintKey = QStringLiteral("fingerprint");

template<std::size_t size>
QString textOf(const std::array<char, size> &field)
{
    const std::string_view text = sdk::blockText(field);
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

RefusedCertificate shownCertificate(const sdk::DeviceCertificate &certificate)
{
    return {.identity = textOf(certificate.identity).toLower(),
            .address = textOf(certificate.address),
            .port = certificate.port,
            .fingerprint = textOf(certificate.fingerprint),
            .subject = textOf(certificate.subject),
            .validFrom = textOf(certificate.validFrom),
            .validUntil = textOf(certificate.validUntil),
            .storedFingerprint = {}};
}

QString whereOf(const QString &address, int port)
{
    return address + QLatin1Char(' ') + QString::number(port);
}

/// The identity, else address and port.
QString keyOf(const RefusedCertificate &shown)
{
    return shown.identity.isEmpty() ? whereOf(shown.address, shown.port) : shown.identity;
}

bool isFingerprint(const QString &text)
{
    static const QRegularExpression pattern(
        QRegularExpression::anchoredPattern(QStringLiteral("([0-9A-F]{2}:){31}[0-9A-F]{2}")));
    return pattern.match(text).hasMatch();
}

} // namespace

CertificateStore::CertificateStore(const QString &path) : m_path(path)
{
    read();
}

void CertificateStore::Accepted::append(const Entry &entry)
{
    if (!entry.identity.isEmpty())
        byIdentity.insert(entry.identity, entries.size());
    byAddress.insert(whereOf(entry.address, entry.port), entries.size());
    entries.append(entry);
}

const CertificateStore::Entry *CertificateStore::Accepted::find(const RefusedCertificate &shown) const
{
    const qsizetype atAddress = byAddress.value(whereOf(shown.address, shown.port), -1);
    const qsizetype index = byIdentity.value(shown.identity, atAddress);
    return index < 0 ? nullptr : &entries.at(index);
}

CertificateStore::Accepted CertificateStore::Accepted::withoutReplaced() const
{
    Accepted left;
    for (qsizetype index = 0; index < entries.size(); ++index) {
        const Entry &entry = entries.at(index);
        if (byIdentity.value(entry.identity, -1) == index ||
            byAddress.value(whereOf(entry.address, entry.port)) == index)
            left.append(entry);
    }
    return left;
}

void CertificateStore::read()
{
    QFile file(m_path);
    const bool exists = file.exists();
    m_isUnopened = exists && !file.open(QIODevice::ReadOnly);
    const std::scoped_lock lock(m_mutex);
    m_problem.clear();
    if (!exists)
        return;
    if (m_isUnopened) {
        m_problem = tr("证书文件 %1 无法读取：%2").arg(m_path, file.errorString());
        qCWarning(logDevice).noquote() << "cannot read" << m_path << "-" << file.errorString();
        return;
    }
    constexpr qint64 largest = 64LL * 1024 * 1024;
    const QByteArray text = file.size() <= largest ? file.readAll() : QByteArray();
    const QJsonValue list = QJsonDocument::fromJson(text).object().value(listKey);
    Accepted accepted;
    bool isValid = list.isArray();
    const QJsonArray objects = list.toArray();
    for (const auto &value : objects) {
        const QJsonObject object = value.toObject();
        const Entry entry = {.identity = object.value(identityKey).toString(),
                             .address = object.value(addressKey).toString(),
                             .port = object.value(portKey).toInt(),
                             .fingerprint = object.value(fingerprintKey).toString()};
        isValid = isValid && !entry.address.isEmpty() && entry.port > 0 && isFingerprint(entry.fingerprint);
        accepted.append(entry);
    }
    if (isValid) {
        m_accepted = std::move(accepted);
        return;
    }
    m_problem = tr("证书文件已损坏，其中的证书均不再信任，请重新确认：%1").arg(m_path);
    qCWarning(logDevice).noquote() << m_path << "contains no readable certificates";
}

QString CertificateStore::problem() const
{
    const std::scoped_lock lock(m_mutex);
    return m_problem;
}

void CertificateStore::refuse(const RefusedCertificate &shown)
{
    const QString key = keyOf(shown);
    const auto known = m_refusedIndexes.constFind(key);
    if (known != m_refusedIndexes.cend()) {
        m_refused[*known] = shown;
    } else if (m_refused.size() < maximumRefused) {
        m_refusedIndexes.insert(key, m_refused.size());
        m_refused.append(shown);
    }
}

sdk::CertificateVerdict CertificateStore::verdictOn(const sdk::DeviceCertificate &certificate)
{
    RefusedCertificate shown = shownCertificate(certificate);
    {
        const std::scoped_lock lock(m_mutex);
        const Entry *entry = m_accepted.find(shown);
        if (entry && entry->fingerprint == shown.fingerprint)
            return sdk::CertificateVerdict::Trusted;
        if (entry)
            shown.storedFingerprint = entry->fingerprint;
        refuse(shown);
    }
    const std::scoped_lock lock(m_listenerMutex);
    if (m_listener)
        m_listener();
    return shown.isChanged() ? sdk::CertificateVerdict::Changed : sdk::CertificateVerdict::Unknown;
}

sdk::CertificateVerdict CertificateStore::handle(const sdk::DeviceCertificate *certificate, void *user)
{
    return static_cast<CertificateStore *>(user)->verdictOn(*certificate);
}

QList<RefusedCertificate> CertificateStore::refused() const
{
    const std::scoped_lock lock(m_mutex);
    return m_refused;
}

QString CertificateStore::write(const QList<Entry> &entries)
{
    if (m_path.isEmpty())
        return {};
    QJsonArray list;
    for (const Entry &entry : entries)
        list.append(QJsonObject{{identityKey, entry.identity},
                                {addressKey, entry.address},
                                {portKey, entry.port},
                                {fingerprintKey, entry.fingerprint}});
    if (!problem().isEmpty()) {
        QString failure = setDamagedFileAside(m_path);
        if (!failure.isEmpty())
            return failure;
    }
    return replaceFile(m_path, QJsonDocument(QJsonObject{{listKey, list}}).toJson());
}

QString CertificateStore::agree(const QList<RefusedCertificate> &certificates)
{
    const std::scoped_lock writing(m_writing);
    if (m_isUnopened)
        read(); // the file may be readable now
    if (m_isUnopened)
        return problem();
    Accepted accepted;
    {
        const std::scoped_lock lock(m_mutex);
        accepted = m_accepted;
    }
    QHash<QString, QString> fingerprints;
    for (const RefusedCertificate &certificate : certificates) {
        accepted.append({.identity = certificate.identity,
                         .address = certificate.address,
                         .port = certificate.port,
                         .fingerprint = certificate.fingerprint});
        fingerprints.insert(keyOf(certificate), certificate.fingerprint);
    }
    accepted = accepted.withoutReplaced();
    QString failure = write(accepted.entries);
    if (!failure.isEmpty())
        return failure;
    const std::scoped_lock lock(m_mutex);
    m_problem.clear();
    m_accepted = std::move(accepted);
    // A device that has presented another key meanwhile stays refused.
    m_refused.removeIf([&fingerprints](const RefusedCertificate &shown) {
        return fingerprints.value(keyOf(shown)) == shown.fingerprint;
    });
    m_refusedIndexes.clear();
    for (qsizetype index = 0; index < m_refused.size(); ++index)
        m_refusedIndexes.insert(keyOf(m_refused.at(index)), index);
    return {};
}

void CertificateStore::setListener(std::function<void()> listener)
{
    const std::scoped_lock lock(m_listenerMutex);
    m_listener = std::move(listener);
}
