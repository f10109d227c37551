#include "favourites/accountstore.h"

#include "favourites/author.h"
#include "favourites/logging.h"
#include "files/filereplacement.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSet>

#include <algorithm>
#include <utility>

namespace {

constexpr QLatin1StringView accountsKey("accounts");
constexpr QLatin1StringView devicesKey("devices");
constexpr QLatin1StringView nameKey("name");
constexpr QLatin1StringView accountKey("username");
constexpr QLatin1StringView passwordKey("password");

bool isText(const QString &text, qsizetype longest)
{
    return !text.isEmpty() && text.size() <= longest;
}

/// Nothing for a text that is not from the cipher: a wrong password would count towards the lock of the
/// device.
std::optional<QString> deciphered(const QString &cipher)
{
    const CAuthor author;
    const QString password = author.AesDecrypt(cipher);
    return author.AesEncrypt(password) == cipher ? std::optional(password) : std::nullopt;
}

bool isBefore(const StoredAccount &left, const StoredAccount &right)
{
    return left.name.localeAwareCompare(right.name) < 0;
}

} // namespace

const StoredAccount *AccountStore::Contents::find(const QString &name) const
{
    const auto found =
        std::ranges::find_if(accounts, [&](const StoredAccount &account) { return account.name == name; });
    return found == accounts.cend() ? nullptr : &*found;
}

QString AccountStore::Contents::freeName(const QString &account) const
{
    constexpr qsizetype roomForNumber = 6;
    const QString plain = account.left(maximumText - roomForNumber);
    QString name = plain;
    for (int number = 2; find(name); ++number)
        name = QStringLiteral("%1 %2").arg(plain).arg(number);
    return name;
}

void AccountStore::Contents::assign(const QList<Device> &changed, const QString &name)
{
    for (const Device &device : changed) {
        for (const QString &identity : device)
            devices.remove(identity);
        if (!name.isEmpty() && !device.isEmpty())
            devices.insert(device.constFirst(), name);
    }
}

AccountStore::AccountStore(const QString &path) : m_path(path)
{
    if (!m_path.isEmpty())
        read();
}

void AccountStore::read()
{
    QFile file(m_path);
    const bool exists = file.exists();
    m_isUnopened = exists && !file.open(QIODevice::ReadOnly);
    const QByteArray text = file.isOpen() ? file.read(maximumFileSize + 1) : QByteArray();
    std::optional<Contents> found = text.size() > maximumFileSize ? std::nullopt : parsed(text);
    const std::scoped_lock lock(m_mutex);
    m_problem.clear();
    if (!exists)
        return;
    if (m_isUnopened) {
        m_problem = tr("账号文件 %1 无法读取：%2").arg(m_path, file.errorString());
        qCWarning(logFavourites).noquote() << "cannot read" << m_path << "-" << file.errorString();
        return;
    }
    if (found) {
        m_contents = *std::move(found);
        return;
    }
    m_problem = tr("账号文件已损坏，其中的账号均未使用：%1").arg(m_path);
    qCWarning(logFavourites).noquote() << m_path << "contains no readable accounts";
}

std::optional<AccountStore::Contents> AccountStore::parsed(const QByteArray &text)
{
    const QJsonObject root = QJsonDocument::fromJson(text).object();
    const QJsonArray accounts = root.value(accountsKey).toArray();
    const QJsonObject devices = root.value(devicesKey).toObject();
    if (!root.value(accountsKey).isArray() || !root.value(devicesKey).isObject() ||
        accounts.size() > maximumAccounts || devices.size() > maximumDevices)
        return std::nullopt;

    Contents contents;
    QSet<QString> names;
    for (const auto &value : accounts) {
        const QJsonObject object = value.toObject();
        const std::optional<QString> password = deciphered(object.value(passwordKey).toString());
        const StoredAccount account = {.name = object.value(nameKey).toString(),
                                       .account = object.value(accountKey).toString(),
                                       .password = password.value_or(QString())};
        if (!refusalOf(account).isEmpty() || names.contains(account.name))
            return std::nullopt;
        names.insert(account.name);
        contents.accounts.append(account);
    }
    for (auto device = devices.constBegin(); device != devices.constEnd(); ++device) {
        const QString name = device.value().toString();
        if (!isText(device.key(), maximumIdentity) || !names.contains(name))
            return std::nullopt;
        contents.devices.insert(device.key(), name);
    }
    std::ranges::sort(contents.accounts, isBefore);
    return contents;
}

QByteArray AccountStore::textOf(const Contents &contents)
{
    const CAuthor author;
    QJsonArray accounts;
    for (const StoredAccount &account : contents.accounts)
        accounts.append(QJsonObject{{nameKey, account.name},
                                    {accountKey, account.account},
                                    {passwordKey, author.AesEncrypt(account.password)}});
    QJsonObject devices;
    for (auto device = contents.devices.cbegin(); device != contents.devices.cend(); ++device)
        devices.insert(device.key(), device.value());
    return QJsonDocument(QJsonObject{{accountsKey, accounts}, {devicesKey, devices}}).toJson();
}

QString AccountStore::refusalOf(const StoredAccount &account)
{
    if (!isText(account.name, maximumText))
        return tr("请输入名称，最多 %1 个字符").arg(maximumText);
    if (!isText(account.account, maximumText))
        return tr("请输入账号，最多 %1 个字符").arg(maximumText);
    if (!isText(account.password, maximumText))
        return tr("请输入密码，最多 %1 个字符").arg(maximumText);
    return {};
}

QString AccountStore::problem() const
{
    const std::scoped_lock lock(m_mutex);
    return m_problem;
}

AccountStore::Contents AccountStore::contents() const
{
    const std::scoped_lock lock(m_mutex);
    return m_contents;
}

QList<StoredAccount> AccountStore::accounts() const
{
    return contents().accounts;
}

std::optional<StoredAccount> AccountStore::account(const QString &name) const
{
    const Contents now = contents();
    const StoredAccount *found = now.find(name);
    return found ? std::optional(*found) : std::nullopt;
}

QHash<QString, int> AccountStore::deviceCounts() const
{
    QHash<QString, int> counts;
    const Contents now = contents();
    for (const QString &name : now.devices)
        ++counts[name];
    return counts;
}

std::optional<StoredAccount> AccountStore::accountOf(const QStringList &identities) const
{
    const std::scoped_lock lock(m_mutex);
    for (const QString &identity : identities) {
        const auto name = m_contents.devices.constFind(identity);
        const StoredAccount *found = name == m_contents.devices.cend() ? nullptr : m_contents.find(*name);
        if (found)
            return *found;
    }
    return std::nullopt;
}

QString AccountStore::put(const QString &before, const StoredAccount &account)
{
    QString refusal = refusalOf(account);
    if (!refusal.isEmpty())
        return refusal;
    const std::scoped_lock writing(m_writing);
    Contents changed = contentsToChange();
    if (account.name != before && changed.find(account.name))
        return tr("已有名为“%1”的账号").arg(account.name);
    const qsizetype known = changed.accounts.removeIf(
        [&before](const StoredAccount &other) { return !before.isEmpty() && other.name == before; });
    changed.accounts.append(account);
    for (QString &name : changed.devices) {
        if (known > 0 && name == before)
            name = account.name;
    }
    return write(std::move(changed));
}

QString AccountStore::remove(const QString &name)
{
    const std::scoped_lock writing(m_writing);
    Contents changed = contentsToChange();
    changed.accounts.removeIf([&name](const StoredAccount &account) { return account.name == name; });
    changed.devices.removeIf(
        [&name](QHash<QString, QString>::iterator device) { return device.value() == name; });
    return write(std::move(changed));
}

QString AccountStore::assign(const QList<Device> &devices, const QString &name)
{
    const std::scoped_lock writing(m_writing);
    Contents changed = contentsToChange();
    if (!name.isEmpty() && !changed.find(name))
        return tr("没有名为“%1”的账号").arg(name);
    const QHash<QString, QString> before = changed.devices;
    changed.assign(devices, name);
    return changed.devices == before ? QString() : write(std::move(changed));
}

QString AccountStore::keep(const QList<Device> &devices, const QString &account, const QString &password)
{
    const std::scoped_lock writing(m_writing);
    Contents changed = contentsToChange();
    const auto known =
        std::ranges::find_if(std::as_const(changed.accounts), [&](const StoredAccount &stored) {
            return stored.account == account && stored.password == password;
        });
    StoredAccount kept = {.name = changed.freeName(account), .account = account, .password = password};
    if (known != changed.accounts.cend())
        kept = *known;
    else
        changed.accounts.append(kept);
    QString refusal = refusalOf(kept);
    if (!refusal.isEmpty())
        return refusal;
    changed.assign(devices, kept.name);
    return write(std::move(changed));
}

AccountStore::Contents AccountStore::contentsToChange()
{
    if (m_isUnopened)
        read(); // the file may be readable now
    return contents();
}

QString AccountStore::write(Contents contents)
{
    if (m_isUnopened)
        return problem();
    if (contents.accounts.size() > maximumAccounts || contents.devices.size() > maximumDevices)
        return tr("账号已满：最多 %1 个账号和 %2 台设备").arg(maximumAccounts).arg(maximumDevices);
    std::ranges::sort(contents.accounts, isBefore);
    if (!m_path.isEmpty()) {
        QString failure = problem().isEmpty() ? QString() : setDamagedFileAside(m_path);
        if (failure.isEmpty())
            failure = replaceFile(m_path, textOf(contents), FileReaders::Owner);
        if (!failure.isEmpty())
            return failure;
    }
    const std::scoped_lock lock(m_mutex);
    m_problem.clear();
    m_contents = std::move(contents);
    return {};
}
