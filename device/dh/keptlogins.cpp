#include "device/dh/keptlogins.h"

#include "sdk/netlibrary.h"

#include <utility>

KeptLogins::KeptLogins(std::shared_ptr<sdk::NetLibrary> net) : m_net(std::move(net)) {}

KeptLogins::~KeptLogins()
{
    letAllGo();
}

void KeptLogins::keep(const QString &ipport, const KeptLogin &login)
{
    letGo(ipport);
    m_logins.insert(ipport, login);
}

KeptLogin *KeptLogins::find(const QString &ipport)
{
    const auto found = m_logins.find(ipport);
    return found == m_logins.end() ? nullptr : &found.value();
}

void KeptLogins::letGo(const QString &ipport)
{
    const KeptLogin login = m_logins.take(ipport);
    if (login.loginHandle != 0 && m_net)
        m_net->NetLogout(login.loginHandle);
}

void KeptLogins::letAllGo()
{
    const QStringList devices = m_logins.keys();
    for (const QString &ipport : devices)
        letGo(ipport);
}
