// Owning pointers of FFmpeg's objects, which sdk/streams/avpointers.h defines, and the packets that the
// encoders produce.
#pragma once

#include "sdk/streams/avpointers.h"
#include "sdk/streams/matroskawriter.h"

#include <vector>

namespace sdk::demo {

using streams::avErrorText;
using streams::AvPointer;
using streams::soundTrack;
using streams::videoTrack;

/// Encoded video and audio of a stream in the order of sending. Each packet has the time base of its encoder,
/// and videoTrack or soundTrack as its stream index.
using EncodedPackets = std::vector<AvPointer<AVPacket>>;

/// For AVCodecContext::log_level_offset: it suppresses the encoders' informational messages.
inline constexpr int onlyErrors = AV_LOG_INFO - AV_LOG_ERROR;

} // namespace sdk::demo
