// The account for the login to a device.
#pragma once

#include <QJsonObject>
#include <QString>
#include <QStringList>

#include <functional>
#include <optional>

/// A user name of devices with its password.
struct DeviceAccount
{
    QString account = {};  ///< user name
    QString password = {}; ///< not encrypted

    [[nodiscard]] bool operator==(const DeviceAccount &) const = default;
};

/// Chooses the account of a device. All logins for which the user does not enter an account use it. It is the
/// first that exists of: the account in the row, which the user has entered or the device has just accepted;
/// the stored account of the device; the default account. If the device refuses the account, the caller must
/// not try another one, since each attempt counts towards the lock of the device.
///
/// The user may enter an account for all following devices. It replaces the default account until
/// setDefault() sets a different one or the application ends.
///
/// A value type. of() may be called on any thread if the Stored function may, but not during a setter.
class AccountChoice
{
public:
    /// Returns the stored account of the device with these accountIdentities(), which are not empty; nullopt
    /// if there is none.
    using Stored = std::function<std::optional<DeviceAccount>(const QStringList &identities)>;

    /// The origin of a chosen account.
    enum class Source
    {
        Row, ///< also if the row contains only a user name or only a password
        Stored,
        Default, ///< also the account for all following devices
    };

    /// Result of of().
    struct Chosen
    {
        DeviceAccount account;
        Source source = Source::Default;
        bool isFollowing = false; ///< `account` is that of setFollowing(); `source` is Default then
    };

    /// Sets the function that finds stored accounts; empty for none. of() calls it on its thread.
    void setStored(const Stored &stored) { m_stored = stored; }
    /// Sets the default account. Ends setFollowing(), unless `account` is equal to the present default.
    void setDefault(const DeviceAccount &account);
    /// Sets the account for all following devices.
    void setFollowing(const DeviceAccount &account) { m_following = account; }

    /// The account of a device without an account in its row and without a stored one.
    [[nodiscard]] const DeviceAccount &defaultAccount() const
    {
        return m_following ? *m_following : m_default;
    }

    /// The account of the device of this row (keys of DeviceRowKey); an empty row gives the default account.
    /// If the row contains only a user name or only a password, the other one is taken from the stored
    /// account, or from the default account if none is stored.
    [[nodiscard]] Chosen of(const QJsonObject &row) const;

private:
    Stored m_stored;
    DeviceAccount m_default;
    std::optional<DeviceAccount> m_following; ///< empty before setFollowing()
};

/// The strings that identify the device of a row in the store of accounts, the most reliable one first: its
/// MAC, then its "identity" if that is a uuidName(), both in lower case. A MAC whose digits are all 0 is left
/// out. Empty if the row has neither.
[[nodiscard]] QStringList accountIdentities(const QJsonObject &row);
