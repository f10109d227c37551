// Owning pointers of FFmpeg's objects. sdk/streams/avpointers.h defines them and includes FFmpeg's headers.
#pragma once

#include "sdk/streams/avpointers.h"

namespace sdk::ffmpeg {

using streams::AvPointer;

} // namespace sdk::ffmpeg
