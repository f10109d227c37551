// Logins that are kept open between the check of an old password and the new one.
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

struct KeptLogin
{
    std::int64_t loginHandle = 0;
    QString account;
    QString password; ///< that the account has now
};

/// One login for each device, by its "address:port". Every login is logged out when it is let go.
/// Thread-safe.
class KeptLogins
{
public:
    /// `net` may be null; nothing can be kept then.
    explicit KeptLogins(std::shared_ptr<sdk::NetLibrary> net);
    ~KeptLogins();
    KeptLogins(const KeptLogins &) = delete;
    KeptLogins &operator=(const KeptLogins &) = delete;

    /// Keeps a login in place of any other to that device.
    void keep(const QString &ipport, const KeptLogin &login);

    /// The login to a device, if one is kept.
    [[nodiscard]] std::optional<KeptLogin> find(const QString &ipport) const;

    /// The account of a kept login has another password now.
    void setPassword(const QString &ipport, const QString &password);

    void letGo(const QString &ipport);
    void letAllGo();

    /// Forgets all logins. Their handles are the caller's from now on.
    [[nodiscard]] QList<std::int64_t> takeAll();

private:
    const std::shared_ptr<sdk::NetLibrary> m_net;
    mutable std::mutex m_mutex;
    QMap<QString, KeptLogin> m_logins;
};
