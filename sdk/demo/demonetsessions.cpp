// Sessions of the simulated network library.
#include "sdk/clock.h"
#include "sdk/demo/demonetlibrary.h"
#include "sdk/demo/device/fieldtext.h"
#include "sdk/demo/site/devicereach.h"
#include "sdk/demo/site/sitestate.h"

namespace sdk::demo {

std::int64_t DemoNetLibrary::NetLogin(const char *address, std::int32_t port, const char *account,
                                      const char *password, std::int32_t /*unused1*/, void * /*unused2*/,
                                      LoginDeviceInformation &device, std::int32_t &error)
{
    const LoginRequest request = {QString::fromLocal8Bit(address), port, QString::fromLocal8Bit(account),
                                  QString::fromLocal8Bit(password), LoginKind::First};
    const std::int64_t handle = login("NetLogin", {}, request, device);
    error = handle > 0 ? 0 : static_cast<std::int32_t>(m_error.last());
    return handle;
}

std::int64_t DemoNetLibrary::NetLoginSecure(const LoginSecureInput &input, LoginSecureOutput &output)
{
    const LoginRequest request = {textOf(input.address), input.port, textOf(input.account),
                                  textOf(input.password), LoginKind::Secure};
    const QJsonObject decoded = {{QStringLiteral("size"), static_cast<qint64>(input.size)},
                                 {QStringLiteral("mode"), static_cast<int>(input.mode)}};
    if (input.size != sizeof(LoginSecureInput) || output.size != sizeof(LoginSecureOutput)) {
        record("NetLoginSecure", decoded);
        m_error.fail(DemoError::WrongSize);
        return 0;
    }
    const std::int64_t handle = login("NetLoginSecure", decoded, request, output.device);
    output.error = handle > 0 ? 0 : m_error.last();
    return handle;
}

std::int64_t DemoNetLibrary::login(const char *operation, QJsonObject decoded, const LoginRequest &request,
                                   LoginDeviceInformation &device)
{
    const CallGate::Call call(m_gate);
    const DeviceReach reached = reach(m_site, request.address, request.port);
    const std::optional<SceneDevice> found = m_site.device(reached.session.mac);
    const SceneAccount *account = found ? accountOf(*found, request.account) : nullptr;
    decoded.insert(QStringLiteral("address"), request.address);
    decoded.insert(QStringLiteral("port"), request.port);
    decoded.insert(QStringLiteral("account"), request.account);
    decoded.insert(QStringLiteral("passwordLength"), request.password.size());
    decoded.insert(QStringLiteral("passwordMatches"), account && account->password == request.password);
    record(operation, decoded, reached.session.mac);

    const auto fail = [this](auto error) {
        m_error.fail(error);
        return std::int64_t(0);
    };
    if (!call.isAllowed())
        return fail(DemoError::NotPrepared);
    if (reached.kind == DeviceReach::Kind::Refuses)
        return fail(NetError::ConnectFailed);
    if (!found) {
        const bool isFullWait = m_site.clock().wait(connectTime, call.stop());
        return fail(isFullWait ? NetError::ConnectTimeout : NetError::NetworkFailure);
    }
    if (!waitForResponse(call.stop(), *found, connectTime))
        return fail(NetError::ConnectTimeout);
    const NetError error = m_loginGuard.check(*found, request.account, request.password, request.kind);
    if (error != NetError::None)
        return fail(error);
    noteRequest(*found);
    device = loginInformation(*found, reached.session.localPort != 0);
    DemoSession session = reached.session;
    session.account = request.account;
    session.password = request.password;
    return m_sessions.open(session);
}

bool DemoNetLibrary::NetLogout(std::int64_t loginHandle)
{
    const CallGate::Call call(m_gate);
    const QString mac = m_sessions.session(loginHandle).value_or(DemoSession()).mac;
    record("NetLogout", {{QStringLiteral("loginHandle"), static_cast<qint64>(loginHandle)}}, mac);
    if (!call.isAllowed())
        return m_error.fail(DemoError::NotPrepared);
    // A call from a handler would wait for that handler.
    if (LiveStream::isInsideHandler() || DeviceUpgrade::isInsideHandler())
        return m_error.fail(DemoError::InsideHandler);
    if (!m_sessions.close(loginHandle))
        return m_error.fail(NetError::SessionEnded);
    m_streams.closeAllOf(loginHandle);
    m_upgrades.closeAllOf(loginHandle);
    return true;
}

bool DemoNetLibrary::NetCancelCalls(LLONG loginHandle)
{
    const CallGate::Call call(m_gate);
    record("NetCancelCalls", {{QStringLiteral("loginHandle"), static_cast<qint64>(loginHandle)}},
           m_sessions.session(loginHandle).value_or(DemoSession()).mac);
    if (!call.isAllowed())
        return m_error.fail(DemoError::NotPrepared);
    return m_sessions.cancelCalls(loginHandle) || m_error.fail(NetError::SessionEnded);
}

bool DemoNetLibrary::NetIsDeviceAlive(LLONG loginHandle, std::chrono::milliseconds wait)
{
    const CallGate::Call call(m_gate);
    const std::optional<DemoSession> session = m_sessions.session(loginHandle);
    record("NetIsDeviceAlive",
           {{QStringLiteral("loginHandle"), static_cast<qint64>(loginHandle)},
            {QStringLiteral("wait"), static_cast<qint64>(wait.count())}},
           session.value_or(DemoSession()).mac);
    return askedDevice(call, session, wait).has_value();
}

} // namespace sdk::demo
