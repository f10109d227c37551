// Owners of what FFmpeg's functions allocate.
#pragma once

#include "sdk/streams/avpointers.h"

namespace sdk::ffmpeg {

using streams::AvPointer;

} // namespace sdk::ffmpeg
