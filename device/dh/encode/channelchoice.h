#pragma once

#include <QVariant>

/// The channels of the logged-in device that the configuration pages show.
struct ChannelChoice
{
    int channelCount = 0;    ///< as reported at login
    int curChannel = 0;      ///< of the encode page, from 0
    int curStreamType = 0;   ///< kind of main stream on that page: 0 normal, 1 motion, 2 alarm
    int curVideoChannel = 0; ///< of the camera image page, from 0

    /// Whether `key` is handled by value(): a selected channel, the stream type or "channelNum".
    [[nodiscard]] static bool isKey(const QString &key);

    /// A selection by key (the names of the members above), or with "channelNum" the list of channel numbers
    /// as strings from "1".
    [[nodiscard]] QVariant value(const QString &key) const;

    /// Sets a selection by key. An invalid value is logged and ignored. A device that reports no channels has
    /// one.
    void choose(const QString &key, const QVariant &value);
};
