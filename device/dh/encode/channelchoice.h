#pragma once

#include <QVariant>

/// The channels of the logged-in device that the configuration pages show. Sends no requests.
struct ChannelChoice
{
    int channelCount = 0;    ///< as reported at login
    int curChannel = 0;      ///< of the encode page, from 0
    int curStreamType = 0;   ///< kind of main stream on that page: 0 normal, 1 motion, 2 alarm
    int curVideoChannel = 0; ///< of the camera image page, from 0

    /// Whether value() returns a value for this EncodeKey: a selected channel, the stream type or
    /// "channelNum".
    [[nodiscard]] static bool isKey(const QString &key);

    /// A selection by a key that isKey() accepts (the names of the members above). "channelNum" is the list
    /// of channel numbers as strings from "1"; empty if the device reports no channels.
    [[nodiscard]] QVariant value(const QString &key) const;

    /// Sets a selection by key. An index out of range is logged and ignored; other keys are ignored. A
    /// device that reports no channels has one.
    void choose(const QString &key, const QVariant &value);
};
