// Elements that both media services have in common.
#pragma once

#include "site/services/encodesettings.h"

namespace site {

[[nodiscard]] ServiceResult noSuchProfile();
[[nodiscard]] ServiceResult noSuchConfiguration();
[[nodiscard]] ServiceResult refusedSettings();

/// A range of numbers: "tt:QualityRange".
void writeRange(XmlElement parent, const char *name, double minimum, double maximum);

/// The children of a video source's configuration.
void writeVideoSourceConfiguration(XmlElement element, const ServiceCall &call, int channel);
void writeAudioSourceConfiguration(XmlElement element, const ServiceCall &call, int channel);

/// The largest frame size of a channel.
[[nodiscard]] sdk::PictureSize largestSize(const sdk::demo::SceneDevice &device);

/// The name of a channel.
[[nodiscard]] QString channelName(const sdk::demo::SceneDevice &device, int channel);

/// A stream's "main" or "sub" with the name of its channel.
[[nodiscard]] QString profileTitle(const sdk::demo::SceneDevice &device, const MediaStream &stream);

/// True if a profile has sound.
[[nodiscard]] bool hasSound(const sdk::demo::SceneDevice &device, const MediaStream &stream);
[[nodiscard]] sdk::NetError switchSound(const ServiceCall &call, const MediaStream &stream, bool isOn);

/// The URL of the stream for a client that has reached the device as in `call`.
[[nodiscard]] QString streamUri(const ServiceCall &call, const MediaStream &stream);

/// Empty when the device has no web page.
[[nodiscard]] QString snapshotUri(const ServiceCall &call, const MediaStream &stream);

/// Writes a multicast configuration without a group.
void writeMulticast(XmlElement parent);

// Operations that are the same in both services, except the namespace of `prefix`.
ServiceResult requestKeyFrame(ServiceCall &call, const char *profileToken);

} // namespace site
