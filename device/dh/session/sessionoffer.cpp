#include "device/dh/session/sessionoffer.h"

#include "device/dh/session/livechannels.h"
#include "device/registry/loginresult.h"
#include "sdk/neterror.h"

namespace {

using namespace std::chrono_literals;

/// Long enough for a busy device, which must not be taken for one that has closed the session.
constexpr auto answerWait = 2000ms;

enum class SessionAnswer
{
    Responds,
    Away,
    Refused, ///< the device does not accept the login of the session
};

SessionAnswer checkSession(const ConfigSession &session)
{
    const auto states = std::make_unique<sdk::ChannelStates>();
    if (session.queryChannelStates(*states, answerWait))
        return SessionAnswer::Responds;
    const std::uint32_t error = session.lastError();
    if (isLoginRefused(error))
        return SessionAnswer::Refused;
    // A restarting device refuses connections for a while.
    const bool isAway =
        isDeviceAway(error) || error == static_cast<std::uint32_t>(sdk::NetError::ConnectFailed);
    return isAway ? SessionAnswer::Away : SessionAnswer::Responds;
}

} // namespace

bool respondsInSession(const ConfigSession &session)
{
    return checkSession(session) == SessionAnswer::Responds;
}

SessionOffer offerSession(const sdk::SdkLibraries &libraries, const SessionOrder &order)
{
    if (order.handle != 0) {
        const ConfigSession present(libraries, order.handle);
        const SessionAnswer answer = checkSession(present);
        if (answer == SessionAnswer::Refused && !order.isNewLogin)
            return {.result = loginResultOf(present.lastError()), .login = {}, .channels = {}};
        if (answer == SessionAnswer::Responds) {
            return {.result = LoginResult::Success,
                    .login = {},
                    .channels =
                        order.readsChannels ? liveChannels(present, order.channelCount) : QVariantList()};
        }
    }
    const SecureLogin login = secureLogin(libraries.net.get(), order.ipport, order.account, order.password);
    QVariantList channels;
    if (login.handle != 0)
        channels = liveChannels(ConfigSession(libraries, login.handle), login.channelCount);
    return {.result = login.result, .login = login, .channels = channels};
}
