#include "device/dh/sessionoffer.h"

#include "device/dh/livechannels.h"

namespace {

using namespace std::chrono_literals;

/// A busy device must not pass for one that has forgotten the session.
constexpr auto answerWait = 2000ms;

} // namespace

bool answersInSession(const ConfigSession &session)
{
    const auto states = std::make_unique<sdk::ChannelStates>();
    return session.queryChannelStates(*states, answerWait) || !session.isDeviceAway();
}

SessionOffer offerSession(const sdk::SdkLibraries &libraries, const SessionOrder &order)
{
    const ConfigSession present(libraries, order.handle);
    if (order.handle != 0 && answersInSession(present)) {
        return {.result = LoginResult::Success,
                .login = {},
                .channels = order.readsChannels ? liveChannels(present, order.channelCount) : QVariantList()};
    }
    const SecureLogin login = secureLogin(libraries.net.get(), order.ipport, order.account, order.password);
    QVariantList channels;
    if (login.handle != 0)
        channels = liveChannels(ConfigSession(libraries, login.handle), login.channelCount);
    return {.result = login.result, .login = login, .channels = channels};
}
