// Owners of FFmpeg's objects, which sdk/streams defines.
#pragma once

#include "sdk/streams/avpointers.h"

namespace sdk::ffmpeg {

using streams::AvPointer;

} // namespace sdk::ffmpeg
