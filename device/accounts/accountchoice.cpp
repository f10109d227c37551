#include "device/accounts/accountchoice.h"

#include "device/store/devicerow.h"

#include <algorithm>
#include <utility>

namespace {

/// Some devices report a MAC of zeros, others an invalid MAC.
bool isValidMac(const QString &mac)
{
    return std::ranges::any_of(
        mac, [](QChar digit) { return digit.isLetterOrNumber() && digit != QLatin1Char('0'); });
}

} // namespace

void AccountChoice::setDefault(const DeviceAccount &account)
{
    if (std::exchange(m_default, account) != account)
        m_following.reset();
}

AccountChoice::Chosen AccountChoice::of(const QJsonObject &row) const
{
    const QString account = row.value(DeviceRowKey::username).toString();
    const QString password = row.value(DeviceRowKey::password).toString();
    if (!account.isEmpty() && !password.isEmpty())
        return {.account = {.account = account, .password = password}, .source = Source::Row};

    Chosen chosen = {.account = defaultAccount(), .isFollowing = m_following.has_value()};
    const QStringList identities = m_stored ? accountIdentities(row) : QStringList();
    if (const auto stored = identities.isEmpty() ? std::nullopt : m_stored(identities))
        chosen = {.account = *stored, .source = Source::Stored};
    if (account.isEmpty() && password.isEmpty())
        return chosen;
    return {.account = {.account = account.isEmpty() ? chosen.account.account : account,
                        .password = password.isEmpty() ? chosen.account.password : password},
            .source = Source::Row};
}

QStringList accountIdentities(const QJsonObject &row)
{
    QStringList identities;
    const QString mac = row.value(DeviceRowKey::mac).toString().toLower();
    if (isValidMac(mac))
        identities.append(mac);
    const QString name = row.value(DeviceRowKey::identity).toString();
    if (name.startsWith(uuidPrefix))
        identities.append(name.toLower());
    return identities;
}
