#include "device/dh/session/keptlogins.h"

#include "sdk/netlibrary.h"

#include <utility>

KeptLogins::KeptLogins(std::shared_ptr<sdk::NetLibrary> net) : m_net(std::move(net)) {}

KeptLogins::~KeptLogins()
{
    closeAll();
}

void KeptLogins::keep(const QString &ipport, const KeptLogin &login)
{
    close(ipport);
    const std::lock_guard lock(m_mutex);
    m_logins.insert(ipport, login);
}

std::optional<KeptLogin> KeptLogins::find(const QString &ipport) const
{
    const std::lock_guard lock(m_mutex);
    const auto found = m_logins.constFind(ipport);
    return found == m_logins.cend() ? std::nullopt : std::optional(*found);
}

void KeptLogins::setPassword(const QString &ipport, const QString &password)
{
    const std::lock_guard lock(m_mutex);
    const auto found = m_logins.find(ipport);
    if (found != m_logins.end())
        found->password = password;
}

void KeptLogins::close(const QString &ipport)
{
    KeptLogin login;
    {
        const std::lock_guard lock(m_mutex);
        login = m_logins.take(ipport);
    }
    if (login.loginHandle != 0 && m_net)
        m_net->NetLogout(login.loginHandle);
}

void KeptLogins::closeAll()
{
    const QList<std::int64_t> handles = takeAll();
    for (const std::int64_t handle : handles) {
        if (m_net)
            m_net->NetLogout(handle);
    }
}

QList<std::int64_t> KeptLogins::takeAll()
{
    const std::lock_guard lock(m_mutex);
    QList<std::int64_t> handles;
    for (const KeptLogin &login : std::as_const(m_logins))
        handles.append(login.loginHandle);
    m_logins.clear();
    return handles;
}
