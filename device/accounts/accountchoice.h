// The account for the login to a device.
#pragma once

#include <QJsonObject>
#include <QString>
#include <QStringList>

#include <functional>
#include <optional>

struct DeviceAccount
{
    QString account = {};
    QString password = {};

    [[nodiscard]] bool operator==(const DeviceAccount &) const = default;
};

/// Chooses the account of a device. All logins to a device by its row use it. The order is: the account in
/// the row, which the user has entered or the device has just accepted; the stored account of the device; the
/// default account. If the device refuses the account, no other one is tried, since each attempt counts
/// towards the lock of the device.
///
/// The user may enter an account for all following devices. It replaces the default account until another
/// default is set or the application ends.
///
/// A value type. of() may be called on any thread if the Stored function may, but not during a setter.
class AccountChoice
{
public:
    /// Returns the stored account of the device with these accountIdentities(), which are not empty.
    using Stored = std::function<std::optional<DeviceAccount>(const QStringList &identities)>;

    enum class Source
    {
        Row, ///< also if the row contains only a user name or only a password
        Stored,
        Default, ///< also the account for all following devices
    };

    struct Chosen
    {
        DeviceAccount account;
        Source source = Source::Default;
        bool isFollowing = false; ///< the account for all following devices, see setFollowing()
    };

    void setStored(const Stored &stored) { m_stored = stored; }
    /// Ends setFollowing(), unless `account` is the present default.
    void setDefault(const DeviceAccount &account);
    void setFollowing(const DeviceAccount &account) { m_following = account; }

    /// The account of a device without an account in its row and without a stored one.
    [[nodiscard]] const DeviceAccount &defaultAccount() const
    {
        return m_following ? *m_following : m_default;
    }

    /// If the row contains only a user name or only a password, the other one is that of the next account.
    [[nodiscard]] Chosen of(const QJsonObject &row) const;

private:
    Stored m_stored;
    DeviceAccount m_default;
    std::optional<DeviceAccount> m_following; ///< empty before setFollowing()
};

/// The strings that identify the device of a row in AccountStore, the most reliable one first: its MAC, and
/// its name if that is a uuidName(), both in lower case. A MAC of zeros does not count. Empty without both.
[[nodiscard]] QStringList accountIdentities(const QJsonObject &row);
