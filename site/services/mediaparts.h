// Elements and functions that both media services have in common.
#pragma once

#include "site/services/encodesettings.h"

namespace site {

// Faults for an unknown token of a profile or of a configuration, and for settings that the device refuses.
[[nodiscard]] ServiceResult noSuchProfile();
[[nodiscard]] ServiceResult noSuchConfiguration();
[[nodiscard]] ServiceResult refusedSettings();

/// Adds an element with that name (such as "tt:QualityRange") and the children "tt:Min" and "tt:Max" to
/// `parent`.
void writeRange(XmlElement parent, const char *name, double minimum, double maximum);

// Write the token and the children of the configuration of a source to `element`, which the caller has added
// with its name. `channel` is from 0.
void writeVideoSourceConfiguration(XmlElement element, const ServiceCall &call, int channel);
void writeAudioSourceConfiguration(XmlElement element, const ServiceCall &call, int channel);

/// The frame size with the most pixels that the main streams of a device support, in pixels.
[[nodiscard]] sdk::FrameSize largestSize(const sdk::demo::SceneDevice &device);

/// The name of a channel (from 0); empty if the device does not report it.
[[nodiscard]] QString channelName(const sdk::demo::SceneDevice &device, int channel);

/// The name of the channel and the kind of the stream: "Gate main", "Gate sub".
[[nodiscard]] QString profileTitle(const sdk::demo::SceneDevice &device, const MediaStream &stream);

/// Whether the sound of a stream is switched on; false if the device does not report its settings.
[[nodiscard]] bool hasSound(const sdk::demo::SceneDevice &device, const MediaStream &stream);
/// Switches the sound of a stream on or off. NotSupported if the device does not report its settings;
/// otherwise the result of takeEncodeSettings().
[[nodiscard]] sdk::NetError switchSound(const ServiceCall &call, const MediaStream &stream, bool isOn);

/// The RTSP URL of the stream, with the address by which the client of `call` has reached the device, and
/// port 554.
[[nodiscard]] QString streamUri(const ServiceCall &call, const MediaStream &stream);

/// The URL of a JPEG snapshot of the stream's channel, below ServiceCall::root(). Empty if the device has no
/// web page.
[[nodiscard]] QString snapshotUri(const ServiceCall &call, const MediaStream &stream);

/// Adds a "tt:Multicast" without a group: the devices do not stream to groups.
void writeMulticast(XmlElement parent);

/// Requests a key frame of the stream of a profile. `profileToken` is the path (textAt()) of the element of
/// the request that has the profile's token, with the prefix of the service: "trt:ProfileToken".
/// noSuchProfile() for an unknown token.
ServiceResult requestKeyFrame(ServiceCall &call, const char *profileToken);

} // namespace site
