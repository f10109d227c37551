#include "device/dh/camera/cameraconfig.h"

#include "device/dh/camera/camerajob.h"
#include "device/dh/encode/encodestate.h"
#include "device/registry/camerakeys.h"
#include "device/store/logging.h"

CameraConfig::CameraConfig(const ValueTables &tables) : m_tables(tables) {}

void CameraConfig::begin(const ConfigSession &session)
{
    m_session = session;
    m_state = {};
}

void CameraConfig::markItemsUnread()
{
    m_state.unreadGroups = CameraState::allGroups;
    m_state.isColorKnown = m_state.isLightingKnown = m_state.isChannelNameRead = false;
}

void CameraConfig::readColor(int channel)
{
    readVideoColor(m_session, channel, m_state);
}

int CameraConfig::readCapabilities(int channel)
{
    int result = 0;
    switch (readCameraCapabilities(m_session, channel, m_state)) {
    case CameraReading::Done:
        break;
    case CameraReading::Refused:
        result = capabilitiesUnknown;
        break;
    case CameraReading::NoResponse:
        result = deviceAway;
        break;
    }
    // If the camera does not have the selected mode, its first mode is selected.
    const OfferedValues modes = CameraOptions(m_tables, m_state.capabilities).switchModes;
    if (modes.indexOf(static_cast<int>(m_state.mode)) < 0)
        m_state.mode = static_cast<sdk::CameraMode>(modes.valueAt(0).value_or(0));
    return result;
}

int CameraConfig::readItems(int channel)
{
    return readCameraItems(m_session, channel, m_state) ? 0 : deviceAway;
}

QVariant CameraConfig::value(const QString &key) const
{
    return cameraValue(key, m_state, m_tables);
}

void CameraConfig::chooseMode(const QVariant &index)
{
    bool isNumber = false;
    const int number = index.toInt(&isNumber);
    const std::optional<int> mode = CameraOptions(m_tables, m_state.capabilities).switchModes.valueAt(number);
    if (!isNumber || !mode || m_state.mode == static_cast<sdk::CameraMode>(*mode))
        return;
    m_state.mode = static_cast<sdk::CameraMode>(*mode);
    m_state.unreadGroups = CameraState::allGroups; // the items belong to the previous mode
}

CameraConfig::Outcome CameraConfig::setValue(const QString &key, const QVariant &value, const QString &subKey,
                                             int channel)
{
    if (key == CameraKey::curSwitchMode) {
        chooseMode(value); // the page reads the items of the new mode
        return Outcome::Taken;
    }
    CameraState changed = m_state;
    // Read-modify-write: other clients may have changed it.
    if (key == CameraKey::inDefog && m_state.supports(sdk::CameraGroup::Defog) &&
        !readDefog(m_session, channel, changed)) {
        m_lastError = static_cast<int>(m_session.lastError());
        return m_session.isDeviceAway() ? Outcome::NoResponse : Outcome::Refused;
    }
    // The color record may be that of another channel, which the encode page has read.
    if (changesColor(key) && m_state.supports(sdk::CameraGroup::Picture) && m_state.colorChannel != channel &&
        readVideoColor(m_session, channel, changed) == CameraReading::NoResponse) {
        m_lastError = deviceAway;
        return Outcome::NoResponse;
    }
    const QList<CameraWrite> writes = changeCamera(key, subKey, value, m_tables, changed);
    if (writes.isEmpty()) {
        qCWarning(logDevice) << "Camera:" << key << subKey << "cannot be set to" << value;
        return Outcome::Ignored;
    }
    bool isTaken = true;
    for (const CameraWrite write : writes) {
        if (CameraJob(m_session, channel, changed).run(write))
            continue;
        isTaken = false;
        m_lastError = static_cast<int>(m_session.lastError());
        if (m_session.isDeviceAway()) // further writes would time out as well
            return Outcome::NoResponse;
    }
    if (!isTaken)
        return takeFailure(channel, changed);
    m_state = changed;
    return Outcome::Taken;
}

CameraConfig::Outcome CameraConfig::takeFailure(int channel, CameraState &changed)
{
    // Some of the writes may have succeeded: read the values from the device.
    const CameraReading reading = readCameraCapabilities(m_session, channel, changed);
    if (reading == CameraReading::NoResponse)
        return Outcome::NoResponse;
    if (reading == CameraReading::Done) {
        if (!readCameraItems(m_session, channel, changed))
            return Outcome::NoResponse;
        m_state = changed;
    }
    return Outcome::Refused;
}
