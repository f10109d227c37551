// Pictures of the channels of one device, for an overview of many devices.
#pragma once

#include <QString>
#include <QVariantList>

#include <functional>

/// What to take of a device. The functions are called on the thread of the step; they may be empty.
struct PictureOrder
{
    /// How many channels of a device are taken at the most.
    static constexpr int maximumChannels = 16;

    QString ipport;
    QString folder;       ///< absolute, for "<channel>.jpg"; it is made when it is missing
    int onlyChannel = -1; ///< from 0; below 0 for all of them, from the first one on

    /// The channels that are going to be taken, as maps of "channel" (from 0), "name" and "connected", and
    /// how many the device has. Not called for a single one.
    std::function<void(const QVariantList &channels, int channelCount)> found = {};

    /// `path` of the file is empty on failure, `message` says why in the user's language.
    std::function<void(int channel, const QString &path, const QString &message)> taken = {};
};
