#include "device/dh/session/channelnames.h"

#include "device/registry/bytetext.h"
#include "device/store/logging.h"
#include "sdk/blocktext.h"
#include "sdk/camerablocks.h"

#include <algorithm>

namespace {

constexpr auto nameItem = static_cast<std::uint32_t>(sdk::CameraItem::ChannelName);

} // namespace

void ChannelNames::begin(const ConfigSession &session)
{
    m_session = session;
    m_results.clear();
    m_saving.reset();
    m_savingResult = -1;
    m_isDeviceAway = false;
}

QVariant ChannelNames::name(int channel)
{
    sdk::ChannelNameItem item = {};
    item.size = sizeof(item);
    const bool isRead = m_session.readItem(nameItem, channel, item);
    m_isDeviceAway = !isRead && m_session.isDeviceAway();
    if (!isRead)
        return {};
    const std::string_view text = sdk::blockText(item.name);
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())).trimmed();
}

QVariantList ChannelNames::names(int count)
{
    QVariantList all;
    m_isDeviceAway = false;
    for (int channel = 0; channel < std::min(count, maximumChannels); ++channel)
        all.append(m_isDeviceAway ? QVariant() : name(channel)); // further requests would time out as well
    return all;
}

int ChannelNames::write(int channel, const QString &name)
{
    sdk::ChannelNameItem item = {};
    item.size = sizeof(item);
    const QString truncated = ByteText::truncated(name, static_cast<int>(item.name.size()) - 1);
    sdk::setBlockText(item.name, truncated.toStdString());
    int result = 0;
    if (!m_session.writeItem(nameItem, channel, item)) {
        result = m_session.isDeviceAway() ? deviceAway : refused;
        qCWarning(logDevice) << "ChannelNames: the name of channel" << channel << "is refused, error"
                             << m_session.lastError();
    }
    if (result != 0) {
        noteFailure(channel, result);
        return result;
    }
    m_results.insert(channel, result);
    if (!m_saving)
        m_saving = result;
    return result;
}

void ChannelNames::noteFailure(int channel, int result)
{
    m_results.insert(channel, result);
    m_saving = result;
}

bool ChannelNames::endSaving()
{
    if (!m_saving)
        return false;
    m_savingResult = *m_saving;
    m_saving.reset();
    return true;
}
