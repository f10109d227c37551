// The encoder options of a stream for the media services.
#pragma once

#include "site/services/mediatokens.h"
#include "site/soap/xmlwriting.h"

namespace site {

inline constexpr int longestKeyFrameInterval = 150; ///< in frames
inline constexpr int bestQuality = 6;

/// The children of "trt:Options".
void writeMediaVideoOptions(XmlElement options, const sdk::demo::SceneDevice &device,
                            const MediaStream &stream);
void writeMediaAudioOptions(XmlElement options, const sdk::demo::SceneDevice &device,
                            const MediaStream &stream);

/// Every "tr2:Options" of the stream.
void writeMedia2VideoOptions(XmlElement response, const sdk::demo::SceneDevice &device,
                             const MediaStream &stream);
void writeMedia2AudioOptions(XmlElement response, const sdk::demo::SceneDevice &device,
                             const MediaStream &stream);

} // namespace site
