// Owners of what the codec libraries allocate, and what passes between the simulated site's encoders.
#pragma once

#include "sdk/streams/avpointers.h"
#include "sdk/streams/matroskawriter.h"

#include <vector>

namespace sdk::demo {

using streams::avErrorText;
using streams::AvPointer;
using streams::pictureTrack;
using streams::soundTrack;

/// Encoded pictures and sound of a stream, in the order in which they are sent: each has the time base of its
/// encoder, and pictureTrack or soundTrack as its stream's index.
using EncodedPackets = std::vector<AvPointer<AVPacket>>;

/// For AVCodecContext::log_level_offset: encoders tell of everything that they do as if somebody had asked.
inline constexpr int onlyErrors = AV_LOG_INFO - AV_LOG_ERROR;

} // namespace sdk::demo
