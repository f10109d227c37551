// A file with a live stream for measurements.
#pragma once

#include <QString>

/// Writes a live stream of 1080p H.264 in Matroska to the file `path`, with `frames` frames, 25 per second,
/// and a key frame every two seconds. The file must not exist. Uses the program ffmpeg and blocks for up to
/// two minutes. Returns false if the stream cannot be created on this host.
[[nodiscard]] bool createTestStream(const QString &path, int frames);
