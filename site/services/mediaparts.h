// Elements that both media services have in common.
#pragma once

#include "site/services/encodesettings.h"

namespace site {

// Faults for an unknown token, and for settings that the device refuses.
[[nodiscard]] ServiceResult noSuchProfile();
[[nodiscard]] ServiceResult noSuchConfiguration();
[[nodiscard]] ServiceResult refusedSettings();

/// A range of numbers: "tt:QualityRange".
void writeRange(XmlElement parent, const char *name, double minimum, double maximum);

/// The children of a video source's configuration.
void writeVideoSourceConfiguration(XmlElement element, const ServiceCall &call, int channel);
void writeAudioSourceConfiguration(XmlElement element, const ServiceCall &call, int channel);

/// The largest frame size of the main streams of a device.
[[nodiscard]] sdk::FrameSize largestSize(const sdk::demo::SceneDevice &device);

/// The name of a channel.
[[nodiscard]] QString channelName(const sdk::demo::SceneDevice &device, int channel);

/// The name of the channel and the kind of the stream: "Gate main", "Gate sub".
[[nodiscard]] QString profileTitle(const sdk::demo::SceneDevice &device, const MediaStream &stream);

/// True if a profile has sound.
[[nodiscard]] bool hasSound(const sdk::demo::SceneDevice &device, const MediaStream &stream);
/// Switches the sound of a stream on or off. NotSupported if the device does not report its settings.
[[nodiscard]] sdk::NetError switchSound(const ServiceCall &call, const MediaStream &stream, bool isOn);

/// The URL of the stream for a client that has reached the device as in `call`.
[[nodiscard]] QString streamUri(const ServiceCall &call, const MediaStream &stream);

/// Empty when the device has no web page.
[[nodiscard]] QString snapshotUri(const ServiceCall &call, const MediaStream &stream);

/// Writes a multicast configuration without a group.
void writeMulticast(XmlElement parent);

/// Requests a key frame of a profile. `profileToken` is the path of the element with its token in the
/// request, with the prefix of the service: "trt:ProfileToken".
ServiceResult requestKeyFrame(ServiceCall &call, const char *profileToken);

} // namespace site
