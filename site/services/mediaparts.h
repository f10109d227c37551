// What both media services write alike.
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

/// The size of the picture that a channel can have at most.
[[nodiscard]] sdk::PictureSize largestSize(const sdk::demo::SceneDevice &device);

/// The name of a channel.
[[nodiscard]] QString channelName(const sdk::demo::SceneDevice &device, int channel);

/// A stream's "main" or "sub" with the name of its channel.
[[nodiscard]] QString profileTitle(const sdk::demo::SceneDevice &device, const MediaStream &stream);

/// Whether a profile has sound.
[[nodiscard]] bool hasSound(const sdk::demo::SceneDevice &device, const MediaStream &stream);
[[nodiscard]] sdk::NetError switchSound(const ServiceCall &call, const MediaStream &stream, bool isOn);

/// Where a client that has reached the device as in `call` plays the stream.
[[nodiscard]] QString streamUri(const ServiceCall &call, const MediaStream &stream);

/// Empty when the device has no web page.
[[nodiscard]] QString snapshotUri(const ServiceCall &call, const MediaStream &stream);

/// Where nothing is sent to groups.
void writeMulticast(XmlElement parent);

// Operations that both services have in the same words, but for the namespace of `prefix`.
ServiceResult askForKeyPicture(ServiceCall &call, const char *profileToken);

} // namespace site
