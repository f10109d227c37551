// Images of the channels of one device, for the gallery.
#pragma once

#include <QString>
#include <QVariantList>

#include <functional>

/// The images to take of a device. The functions are called on the thread of the step. They may be empty.
struct ImageOrder
{
    /// Maximum number of channels of a device.
    static constexpr int maximumChannels = 16;

    QString ipport;       ///< "address:port" of the device
    QString folder;       ///< absolute, for the files "<channel>.jpg"; created if missing
    int onlyChannel = -1; ///< from 0; negative for all channels up to maximumChannels

    /// Called before the first image with the channels, maps with the keys of ChannelKey, and with the number
    /// of channels of the device. Not called for a single channel.
    std::function<void(const QVariantList &channels, int channelCount)> found = {};

    /// Called after each image, with the channel (from 0). `path` of the file is empty on failure; `message`
    /// is the reason then, in the user's language. Not called for an image that is cancelled.
    std::function<void(int channel, const QString &path, const QString &message)> taken = {};
};
