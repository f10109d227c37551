// The state of one device, for the report of a site.
#pragma once

#include <QList>
#include <QString>
#include <QVariantMap>

#include <functional>
#include <optional>

/// The settings of the main stream of one channel.
struct StreamSettings
{
    int channel = 0;         ///< from 0
    QString compression;     ///< name of the video compression; empty if the code is unknown
    int width = 0;           ///< in pixels
    int height = 0;          ///< in pixels
    double frameRate = 0;    ///< frames per second
    int bitRate = 0;         ///< kbit/s
    bool isVariable = false; ///< the bit rate is variable

    bool operator==(const StreamSettings &) const = default;
};

/// The values that a device has reported in one session. A value that it has not reported is missing.
struct DeviceInspection
{
    /// Keys of DeviceDetailKey, and "mac", "model" and "vision" of DeviceRowKey.
    QVariantMap detail;
    int channelCount = 0;          ///< as reported by the login; 0 if not reported
    QList<StreamSettings> streams; ///< of the first InspectionOrder::maximumStreams channels

    /// Seconds between the clock of the device and the local time of the host, positive if the device is
    /// ahead.
    std::optional<qint64> clockOffset;
    std::optional<bool> usesTimeServer;
    QString timeServer; ///< empty if not reported
};

/// The device to read with CDeviceBase::inspectionStep().
struct InspectionOrder
{
    static constexpr int maximumStreams = 64;

    QString ipport; ///< "address:port" of the device

    /// Called once on the thread of the step, after a successful login, also if the device stops responding
    /// or the step is ended during the session: the values are those read before.
    std::function<void(const DeviceInspection &inspection)> inspected = {};
};
