#include "device/dh/session/livechannels.h"

#include "device/dh/session/channelnames.h"
#include "device/registry/mapkeys.h"
#include "sdk/blocktext.h"
#include "sdk/camerablocks.h"
#include "sdk/streamblocks.h"

#include <QCoreApplication>
#include <QVariantMap>

#include <algorithm>
#include <chrono>
#include <memory>

QList<bool> connectedChannels(const ConfigSession &session, int count)
{
    using namespace std::chrono_literals;
    QList<bool> connected(std::clamp(count, 1, ChannelNames::maximumChannels), true);
    const auto response = std::make_unique<sdk::ChannelStates>();
    if (!session.queryChannelStates(*response, 1000ms))
        return connected;
    const std::size_t stateCount = std::min<std::size_t>(response->count, response->states.size());
    for (std::size_t index = 0; index < stateCount; ++index) {
        const sdk::ChannelState &state = response->states.at(index);
        if (state.channel >= 0 && state.channel < connected.size())
            connected[state.channel] = state.connection != sdk::ChannelConnection::NotConnected;
    }
    return connected;
}

QVariantList liveChannels(const ConfigSession &session, int count)
{
    const QList<bool> connected = connectedChannels(session, count);
    QVariantList channels;
    bool isAway = false; // further requests would time out as well
    for (int channel = 0; channel < connected.size(); ++channel) {
        sdk::ChannelNameItem item = {};
        item.size = sizeof(item);
        const bool isRead =
            !isAway &&
            session.readItem(static_cast<std::uint32_t>(sdk::CameraItem::ChannelName), channel, item);
        isAway = isAway || (!isRead && session.isDeviceAway());
        const std::string_view text = isRead ? sdk::blockText(item.name) : std::string_view();
        const QString name = QString::fromUtf8(text.data(), qsizetype(text.size())).trimmed();
        channels.append(QVariantMap{
            {ChannelKey::channel, channel},
            {ChannelKey::name,
             name.isEmpty() ? QCoreApplication::translate("LiveChannels", "通道 %1").arg(channel + 1) : name},
            {ChannelKey::connected, connected.at(channel)},
        });
    }
    return channels;
}
