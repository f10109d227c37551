// The current session.
#include "device/dh/cameraconfig.h"
#include "device/dh/devicedh.h"
#include "device/dh/encodeconfig.h"
#include "device/dh/logindetail.h"
#include "device/dh/securelogin.h"
#include "sdk/netlibrary.h"

int CDeviceDH::findAndLoginDevice(const QString &ipport, const QString &account, const QString &password)
{
    if (!m_libraries.net)
        return resultCode(LoginResult::NetworkFailure);
    const SecureLogin login = secureLogin(m_libraries.net.get(), ipport, account, password);
    if (login.result == LoginResult::Success) {
        if (ipport != m_session.ipport)
            ++m_deviceGeneration;
        endSession();
        m_session = {.loginKind = login.loginKind,
                     .handle = login.handle,
                     .ipport = ipport,
                     .account = account,
                     .password = password};
        m_loginHandle = login.handle;
        m_channels.channelCount = login.channelCount;
        const ConfigSession session(m_libraries, login.handle);
        m_channelNames.begin(session);
        m_encode->begin(session);
        m_camera->begin(session);
    }
    Q_EMIT signalCDeviceHighLevelLoginRet(resultCode(login.result));
    return resultCode(login.result);
}

int CDeviceDH::checkLogin(const QString &ipport, const QString &account, const QString &password)
{
    const SecureLogin login = secureLogin(m_libraries.net.get(), ipport, account, password);
    if (login.handle != 0)
        m_libraries.net->NetLogout(login.handle);
    return resultCode(login.result);
}

QVariantMap CDeviceDH::readDeviceDetail(const QString &ipport)
{
    const Credentials known = credentialsOf(ipport);
    const SecureLogin login = secureLogin(m_libraries.net.get(), ipport, known.account, known.password);
    QVariantMap detail;
    if (login.handle != 0) {
        detail = loginDetail(ConfigSession(m_libraries, login.handle));
        m_libraries.net->NetLogout(login.handle);
    }
    detail.insert(QStringLiteral("loginResult"), resultCode(login.result));
    return detail;
}

void CDeviceDH::endSession()
{
    m_loginHandle = 0;
    if (m_session.handle != 0 && m_libraries.net)
        m_libraries.net->NetLogout(m_session.handle);
    m_session = {};
    m_channels = {};
    m_channelNames.begin(ConfigSession());
    m_encode->begin(ConfigSession());
    m_camera->begin(ConfigSession());
}
