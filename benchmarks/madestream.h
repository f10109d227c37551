// A live stream that is made for a measurement.
#pragma once

#include <QString>

/// Makes a live stream of 1080p H.264, 25 pictures a second and a key picture every two seconds, as a file.
/// Returns false when it cannot be made here.
[[nodiscard]] bool makeStream(const QString &path, int pictures);
