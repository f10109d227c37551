#include "device/dh/session/sessionoffer.h"

#include "device/dh/session/livechannels.h"
#include "device/registry/loginresult.h"
#include "sdk/neterror.h"

namespace {

using namespace std::chrono_literals;

/// Long enough for a busy device, which must not be taken for one that has closed the session.
constexpr auto responseWait = 2000ms;

enum class SessionResponse
{
    Responds,
    Away,
    Refused, ///< the device does not accept the login of the session
};

SessionResponse checkSession(const ConfigSession &session)
{
    const auto states = std::make_unique<sdk::ChannelStates>();
    if (session.queryChannelStates(*states, responseWait))
        return SessionResponse::Responds;
    const std::uint32_t error = session.lastError();
    if (isLoginRefused(error))
        return SessionResponse::Refused;
    // A restarting device refuses connections for a while.
    const bool isAway =
        isDeviceAway(error) || error == static_cast<std::uint32_t>(sdk::NetError::ConnectFailed);
    return isAway ? SessionResponse::Away : SessionResponse::Responds;
}

} // namespace

bool respondsInSession(const ConfigSession &session)
{
    return checkSession(session) == SessionResponse::Responds;
}

SessionOffer offerSession(const sdk::SdkLibraries &libraries, const SessionOrder &order)
{
    if (order.handle != 0) {
        const ConfigSession present(libraries, order.handle);
        const SessionResponse response = checkSession(present);
        if (response == SessionResponse::Refused && !order.isNewLogin)
            return {.result = loginResultOf(present.lastError()), .login = {}, .channels = {}};
        if (response == SessionResponse::Responds && !order.isGivenNow) {
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
