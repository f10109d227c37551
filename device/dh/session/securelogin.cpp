#include "device/dh/session/securelogin.h"

#include "sdk/blocktext.h"
#include "sdk/netlibrary.h"

#include <utility>

SecureLogin secureLogin(sdk::NetLibrary *net, const QString &ipport, const QString &account,
                        const QString &password)
{
    if (!net)
        return {.result = LoginResult::NetworkFailure};

    // The last colon separates address and port: an IPv6 address, in brackets, contains colons.
    const qsizetype colon = ipport.lastIndexOf(QLatin1Char(':'));
    QString address = ipport.left(colon);
    if (address.startsWith(QLatin1Char('[')) && address.endsWith(QLatin1Char(']')))
        address = address.mid(1, address.size() - 2);
    if (address.isEmpty()) // no address yet: waiting for DHCP
        return {.result = LoginResult::NetworkFailure};

    sdk::LoginSecureInput input{};
    input.size = sizeof(input);
    input.port = QStringView(ipport).mid(colon + 1).toInt();
    sdk::setBlockText(input.address, address.toLocal8Bit().toStdString());
    sdk::setBlockText(input.account, account.toLocal8Bit().toStdString());
    sdk::setBlockText(input.password, password.toLocal8Bit().toStdString());
    // A loopback address is the local end of a tunnel, which needs another login mode.
    input.mode =
        ipport.contains(QLatin1String("127.0.0.1")) ? sdk::LoginMode::Tunnel : sdk::LoginMode::Direct;

    sdk::LoginSecureOutput output{};
    output.size = sizeof(output);
    const std::int64_t handle = net->NetLoginSecure(input, output);
    if (handle < 1)
        return {.result = loginResultOf(net->NetGetLastError())};
    return {.result = LoginResult::Success,
            .handle = handle,
            .loginKind = output.device.loginKind,
            .channelCount = output.device.channelCount};
}

UntakenLogin::UntakenLogin(std::shared_ptr<sdk::NetLibrary> net, const SecureLogin &login)
    : m_net(std::move(net)), m_login(login)
{
}

UntakenLogin::~UntakenLogin()
{
    if (m_login.handle != 0)
        m_net->NetLogout(m_login.handle);
}

SecureLogin UntakenLogin::take()
{
    SecureLogin login = m_login;
    m_login.handle = 0;
    return login;
}
