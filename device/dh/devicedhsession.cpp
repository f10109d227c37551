// The current session.
#include "device/devicerow.h"
#include "device/devicestore.h"
#include "device/dh/devicedh.h"
#include "device/loginresult.h"
#include "sdk/blocktext.h"
#include "sdk/netlibrary.h"

int CDeviceDH::findAndLoginDevice(const QString &ipport, const QString &account, const QString &password)
{
    if (!m_libraries.net)
        return resultCode(LoginResult::NetworkFailure);

    // Address and port are parted at the last colon: an IPv6 address has colons of its own, in brackets.
    const qsizetype colon = ipport.lastIndexOf(QLatin1Char(':'));
    QString address = ipport.left(colon);
    if (address.startsWith(QLatin1Char('[')) && address.endsWith(QLatin1Char(']')))
        address = address.mid(1, address.size() - 2);

    sdk::LoginSecureInput input{};
    input.size = sizeof(input);
    input.port = QStringView(ipport).mid(colon + 1).toInt();
    sdk::setBlockText(input.address, address.toLocal8Bit().toStdString());
    sdk::setBlockText(input.account, account.toLocal8Bit().toStdString());
    sdk::setBlockText(input.password, password.toLocal8Bit().toStdString());
    // A loopback address is the end of a tunnel, which takes a login of its own kind.
    input.mode =
        ipport.contains(QLatin1String("127.0.0.1")) ? sdk::LoginMode::Tunnel : sdk::LoginMode::Direct;

    sdk::LoginSecureOutput output{};
    output.size = sizeof(output);
    const std::int64_t handle = m_libraries.net->NetLoginSecure(input, output);
    if (handle < 1) {
        const int result = resultCode(loginResultOf(m_libraries.net->NetGetLastError()));
        Q_EMIT signalCDeviceHighLevelLoginRet(result);
        return result;
    }

    endSession();
    m_session = {.loginKind = output.device.loginKind,
                 .handle = handle,
                 .ipport = ipport,
                 .account = account,
                 .password = password};
    Q_EMIT signalCDeviceHighLevelLoginRet(resultCode(LoginResult::Success));
    return resultCode(LoginResult::Success);
}

void CDeviceDH::endSession()
{
    if (m_session.handle != 0 && m_libraries.net)
        m_libraries.net->NetLogout(m_session.handle);
    m_session = {};
}
