// Which account a device is logged in to with.
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

/// Chooses the account of a device. Whatever logs in to a device by its row asks here: the account that the
/// row holds goes first, since the user has given it or the device has just taken it; then the one that the
/// user keeps for the device; then the default. It is one account: others are not tried when the device
/// refuses it, since each try counts towards the lock of the device.
///
/// While the program runs, the user may give an account for all devices that follow. It takes the place of
/// the default one until another default is set.
///
/// A value. of() may be called on any thread, if the stored accounts may.
class AccountChoice
{
public:
    /// The account that is kept for the device that these texts identify.
    using Stored = std::function<std::optional<DeviceAccount>(const QStringList &identities)>;

    enum class Source
    {
        Row,
        Stored,
        Default,
    };

    struct Chosen
    {
        DeviceAccount account;
        Source source = Source::Default;
        bool isFollowing = false; ///< that for all that follow, in place of the default one
    };

    void setStored(const Stored &stored) { m_stored = stored; }
    void setDefault(const DeviceAccount &account);
    void setFollowing(const DeviceAccount &account) { m_following = account; }

    /// Of a device without an account of its own.
    [[nodiscard]] const DeviceAccount &defaultAccount() const
    {
        return m_following ? *m_following : m_default;
    }

    /// What a row lacks of its own account, its name or its password, is that of the next one.
    [[nodiscard]] Chosen of(const QJsonObject &row) const;

private:
    Stored m_stored;
    DeviceAccount m_default;
    std::optional<DeviceAccount> m_following; ///< nothing until the user gives one
};

/// The texts that identify the device of a row in a store of accounts, the surest one first: its MAC and its
/// UUID, as far as its row tells them. Empty for a device without either.
[[nodiscard]] QStringList accountIdentities(const QJsonObject &row);
