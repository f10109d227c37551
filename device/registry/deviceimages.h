// Images of the channels of one device, for the gallery.
#pragma once

#include <QString>
#include <QVariantList>

#include <functional>

/// The images to take of a device with CDeviceBase::imageStep(). The step calls the functions `found` and
/// `taken` on its thread; each of them may be empty.
struct ImageOrder
{
    /// Maximum number of channels of a device of which images are taken.
    static constexpr int maximumChannels = 16;

    QString ipport;       ///< "address:port" of the device
    QString folder;       ///< absolute path, for "<channel>.jpg" (from 0); created if missing
    int onlyChannel = -1; ///< the only channel, from 0; negative: the first mostChannels channels
    int mostChannels = maximumChannels; ///< 1 to maximumChannels; without effect with `onlyChannel`
    /// Maximum number of attempts for an image; 0: four times the usual number. After the first channel from
    /// which no image was received, at most the usual number (snapTries in media/snapshot.h).
    int tries = 0;
    bool isBeforeUpgrade = false; ///< take images also while the device is registered as being upgraded

    /// Called before the first image. `channels` are the channels of which images are taken, maps with the
    /// keys of ChannelKey; `channelCount` is the number of all channels of the device. Not called with
    /// `onlyChannel`.
    std::function<void(const QVariantList &channels, int channelCount)> found = {};

    /// Called after each image, with the channel (from 0) and the path of the file. `path` is empty on
    /// failure; `message` is the reason then, in the user's language. Not called for an image whose request
    /// was stopped.
    std::function<void(int channel, const QString &path, const QString &message)> taken = {};
};
