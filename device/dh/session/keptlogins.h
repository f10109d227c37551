// Logins that stay open between the check of the old password and the change to the new one.
#pragma once

#include <QList>
#include <QMap>
#include <QString>

#include <cstdint>
#include <memory>
#include <mutex>
#include <optional>

namespace sdk {
class NetLibrary;
}

/// An open login with its account.
struct KeptLogin
{
    std::int64_t loginHandle = 0;
    QString account;
    QString password; ///< current password of the account
};

/// Keeps one login for each device, by "address:port", and owns it. Logs out each login that it removes,
/// which blocks for the device, except in takeAll(). Thread-safe.
class KeptLogins
{
public:
    /// `net` may be null; keep() must not be called then. The destructor calls closeAll().
    explicit KeptLogins(std::shared_ptr<sdk::NetLibrary> net);
    ~KeptLogins();
    KeptLogins(const KeptLogins &) = delete;
    KeptLogins &operator=(const KeptLogins &) = delete;

    /// Stores a login, which this object owns from then on; logs out an earlier one to the same device.
    void keep(const QString &ipport, const KeptLogin &login);

    /// The login to a device; nullopt if there is none. The login stays owned by this object.
    [[nodiscard]] std::optional<KeptLogin> find(const QString &ipport) const;

    /// Sets the current password after it was changed on the device. Ignored for a device without a login.
    void setPassword(const QString &ipport, const QString &password);

    void close(const QString &ipport); ///< logs out and removes the login to a device
    void closeAll();                   ///< logs out and removes all logins

    /// Removes all logins without logging out. The caller owns the returned handles.
    [[nodiscard]] QList<std::int64_t> takeAll();

private:
    const std::shared_ptr<sdk::NetLibrary> m_net;
    mutable std::mutex m_mutex;
    QMap<QString, KeptLogin> m_logins;
};
