#include "device/dh/camera/camerajob.h"

#include "device/store/logging.h"

bool CameraJob::run(CameraWrite write) const
{
    if (perform(write))
        return true;
    qCWarning(logDevice) << "Camera: write" << static_cast<int>(write) << "to channel" << m_channel
                         << "is refused, error" << m_session.lastError();
    return false;
}

bool CameraJob::writeColorRecord() const
{
    sdk::VideoColorRecord record = m_state.color;
    record.size = sizeof(record);
    return writeItem(sdk::CameraItem::Picture, record);
}

bool CameraJob::perform(CameraWrite write) const
{
    using Item = sdk::CameraItem;
    switch (write) {
    case CameraWrite::Picture:
        return writeItem(Item::Picture, m_state.picture);
    case CameraWrite::ColorRecord:
        return writeColorRecord();
    case CameraWrite::VideoColor:
        return m_session.write("VideoColor", m_channel, m_state.color, cameraTextSize, cameraTextWait);
    case CameraWrite::Sharpness:
        return writeItem(Item::Sharpness, m_state.sharpness);
    case CameraWrite::Mirror:
        return writeItem(Item::Mirror, m_state.mirror);
    case CameraWrite::Stable:
        return writeItem(Item::Stable, m_state.stable);
    case CameraWrite::Exposure:
        return writeItem(Item::Exposure, m_state.exposure);
    case CameraWrite::NoiseReduction:
        return writeItem(Item::NoiseReduction, m_state.noiseReduction);
    case CameraWrite::BackLight:
        return writeItem(Item::BackLight, m_state.backLight);
    case CameraWrite::BackLightByMode:
        return writeItem(Item::BackLight, m_state.backLightByMode);
    case CameraWrite::WhiteBalance:
        return writeItem(Item::WhiteBalance, m_state.whiteBalance);
    case CameraWrite::DayNight:
        return writeItem(Item::DayNight, m_state.dayNight);
    case CameraWrite::DayNightByMode:
        return writeItem(Item::DayNight, m_state.dayNightByMode);
    case CameraWrite::Defog:
        return writeItem(Item::Defog, m_state.defog);
    case CameraWrite::Light:
        return writeItem(Item::Light, m_state.light);
    case CameraWrite::MixedLight:
        return writeItem(Item::MixedLight, m_state.mixedLight);
    case CameraWrite::Lighting:
        return m_session.write("Lighting_V2", m_channel, m_state.lighting, cameraTextSize, cameraTextWait);
    case CameraWrite::ChannelName:
        return writeItem(Item::ChannelName, m_state.channelName);
    }
    return false;
}
