// The encoder options of a stream, for the media services: valid codecs, sizes and ranges of video, and
// formats, bit rates and sampling rates of sound.
#pragma once

#include "site/services/mediatokens.h"
#include "site/soap/xmlwriting.h"

namespace site {

inline constexpr int longestKeyFrameInterval = 150; ///< in frames
inline constexpr int bestQuality = 6;               ///< qualities are 1 to this number

// All functions write values that are out of range for a device with Fault::OddCapabilities.

/// Adds the children of `options`, a "trt:Options" of the media service. H.265 is not included.
void writeMediaVideoOptions(XmlElement options, const sdk::demo::SceneDevice &device,
                            const MediaStream &stream);
/// The same for sound: one "tt:Options" for each encoding.
void writeMediaAudioOptions(XmlElement options, const sdk::demo::SceneDevice &device,
                            const MediaStream &stream);

/// Adds a "tr2:Options" for each codec of the stream to `response`, that of the second media service.
void writeMedia2VideoOptions(XmlElement response, const sdk::demo::SceneDevice &device,
                             const MediaStream &stream);
/// The same for sound: a "tr2:Options" for each format.
void writeMedia2AudioOptions(XmlElement response, const sdk::demo::SceneDevice &device,
                             const MediaStream &stream);

} // namespace site
