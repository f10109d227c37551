#include "device/dh/configuration/currentsession.h"

#include "device/dh/session/securelogin.h"
#include "device/dh/session/sessionthreads.h"
#include "sdk/netlibrary.h"

#include <utility>

CurrentSession::CurrentSession(sdk::SdkLibraries libraries, SessionThreads &threads)
    : m_libraries(std::move(libraries)), m_threads(threads), m_state(std::make_shared<SessionState>(m_tables))
{
}

void CurrentSession::begin(const QString &ipport, const QString &account, const QString &password,
                           const SecureLogin &login)
{
    if (ipport != m_ipport)
        ++m_deviceGeneration;
    const std::int64_t before = m_handle;
    m_handle = login.handle;
    m_ipport = ipport;
    m_account = account;
    m_password = password;
    m_sharedHandle = login.handle; // set before the logout: running snapshots continue in the new session
    m_state->begin(ConfigSession(m_libraries, login.handle), ipport, login.channelCount);
    if (before != 0)
        m_threads.logOutLater({before});
}

void CurrentSession::end()
{
    m_sharedHandle = 0;
    if (m_handle != 0 && m_libraries.net)
        m_libraries.net->NetLogout(m_handle);
    m_handle = 0;
    m_ipport.clear();
    m_account.clear();
    m_password.clear();
    m_state->begin(ConfigSession(), {}, 0);
}
