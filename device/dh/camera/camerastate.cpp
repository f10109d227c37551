#include "device/dh/camera/camerastate.h"

#include "device/registry/loginresult.h"
#include "device/store/logging.h"

namespace {

/// Fills in the request fields of an item: size, and mode if it has one.
template<typename Item>
void address(Item &item, [[maybe_unused]] sdk::CameraMode mode)
{
    item.size = sizeof(item);
    if constexpr (requires { item.mode; })
        item.mode = static_cast<std::int32_t>(mode);
}

/// Returns false on failure; the item is then zero except for its request fields.
template<typename Item>
bool readItem(const ConfigSession &session, sdk::CameraItem number, int channel, sdk::CameraMode mode,
              Item &item)
{
    item = {};
    address(item, mode);
    Item read = item;
    if (!session.readItem(static_cast<std::uint32_t>(number), channel, read)) {
        qCWarning(logDevice) << "Camera: item" << static_cast<int>(number) << "cannot be read, error"
                             << session.lastError();
        return false;
    }
    item = read;
    address(item, mode); // the device may have overwritten the request fields
    return true;
}

/// Reads a configuration. The record is zero on failure.
template<typename Record>
CameraReading readConfiguration(const ConfigSession &session, const char *name, int channel, Record &record)
{
    record = {};
    const std::int32_t error = session.read(name, channel, record, cameraTextSize, cameraTextWait);
    if (error == 0)
        return CameraReading::Done;
    qCWarning(logDevice) << "Camera: no configuration" << name << "error" << error;
    return isSessionLost(static_cast<std::uint32_t>(error)) ? CameraReading::NoResponse
                                                            : CameraReading::Refused;
}

} // namespace

CameraReading readVideoColor(const ConfigSession &session, int channel, CameraState &state)
{
    const CameraReading reading = readConfiguration(session, "VideoColor", channel, state.color);
    state.colorChannel = channel;
    state.isColorKnown = reading == CameraReading::Done;
    return reading;
}

CameraReading readCameraCapabilities(const ConfigSession &session, int channel, CameraState &state)
{
    state.capabilities = {};
    state.capabilities.size = sizeof(state.capabilities);
    const sdk::CameraCapabilityInput input = {sizeof(input), channel};
    if (!session.queryCapabilities(sdk::CapabilityQuery::Camera, input, state.capabilities)) {
        qCWarning(logDevice) << "Camera: no capabilities of channel" << channel << "error"
                             << session.lastError();
        return session.isDeviceAway() ? CameraReading::NoResponse : CameraReading::Refused;
    }
    state.isColorKnown = state.isLightingKnown = state.isChannelNameRead = false;
    if (state.has(sdk::CameraGroup::Picture) &&
        readVideoColor(session, channel, state) == CameraReading::NoResponse)
        return CameraReading::NoResponse;
    if (state.has(sdk::CameraGroup::MixedLight)) {
        const CameraReading reading = readConfiguration(session, "Lighting_V2", channel, state.lighting);
        state.isLightingKnown = reading == CameraReading::Done;
        if (reading == CameraReading::NoResponse)
            return reading;
    }
    state.isChannelNameRead =
        readItem(session, sdk::CameraItem::ChannelName, channel, state.mode, state.channelName);
    return !state.isChannelNameRead && session.isDeviceAway() ? CameraReading::NoResponse
                                                              : CameraReading::Done;
}

bool readCameraItems(const ConfigSession &session, int channel, CameraState &state)
{
    state.unreadGroups = 0;
    bool isAway = false; // further requests would time out as well
    const auto isRead = [&](sdk::CameraGroup group, sdk::CameraItem number, auto &item) {
        if (state.has(group) && !isAway) {
            if (readItem(session, number, channel, state.mode, item))
                return true;
            isAway = session.isDeviceAway();
        }
        item = {};
        return false;
    };
    const auto read = [&](sdk::CameraGroup group, sdk::CameraItem number, auto &item) {
        if (!isRead(group, number, item))
            state.unreadGroups |= 1u << static_cast<std::uint32_t>(group);
    };
    read(sdk::CameraGroup::Picture, sdk::CameraItem::Picture, state.picture);
    read(sdk::CameraGroup::Sharpness, sdk::CameraItem::Sharpness, state.sharpness);
    read(sdk::CameraGroup::Mirror, sdk::CameraItem::Mirror, state.mirror);
    read(sdk::CameraGroup::Stable, sdk::CameraItem::Stable, state.stable);
    read(sdk::CameraGroup::Exposure, sdk::CameraItem::Exposure, state.exposure);
    state.isNoiseReductionRead =
        isRead(sdk::CameraGroup::Exposure, sdk::CameraItem::NoiseReduction, state.noiseReduction);
    read(sdk::CameraGroup::BackLight, sdk::CameraItem::BackLight, state.backLight);
    read(sdk::CameraGroup::WhiteBalance, sdk::CameraItem::WhiteBalance, state.whiteBalance);
    read(sdk::CameraGroup::DayNight, sdk::CameraItem::DayNight, state.dayNight);
    read(sdk::CameraGroup::Defog, sdk::CameraItem::Defog, state.defog);
    read(sdk::CameraGroup::Light, sdk::CameraItem::Light, state.light);
    read(sdk::CameraGroup::MixedLight, sdk::CameraItem::MixedLight, state.mixedLight);
    state.backLightByMode = state.backLight;
    state.dayNightByMode = state.dayNight;
    return !isAway;
}

bool readDefog(const ConfigSession &session, int channel, CameraState &state)
{
    sdk::DefogItem item;
    if (!readItem(session, sdk::CameraItem::Defog, channel, state.mode, item))
        return false;
    state.defog = item;
    return true;
}
