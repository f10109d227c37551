#pragma once

#include <QVariant>

/// Which channels of the logged-in device the configuration pages show.
struct ChannelChoice
{
    int channelCount = 0;    ///< channels that the device told of at its login
    int curChannel = 0;      ///< of the encode page, from 0
    int curStreamType = 0;   ///< kind of main stream on that page: 0 normal, 1 motion, 2 alarm
    int curVideoChannel = 0; ///< of the camera image page, from 0

    /// Whether `key` is one of the choices, or "channelNum".
    [[nodiscard]] static bool isKey(const QString &key);

    /// A choice by its name, or the list of channels as the pages count them, from "1".
    [[nodiscard]] QVariant value(const QString &key) const;

    /// Chooses by name. What the device does not have is ignored; one that tells of no channels has one.
    void choose(const QString &key, const QVariant &value);
};
