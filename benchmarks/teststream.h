// A live stream for measurements.
#pragma once

#include <QString>

/// Writes a live stream of 1080p H.264 to a file, with 25 frames per second and a key frame every two
/// seconds. Returns false if it cannot be created on this host.
[[nodiscard]] bool createTestStream(const QString &path, int frames);
