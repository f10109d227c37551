// Scenes from JSON; scenes/README.md describes the format.
#pragma once

#include "sdk/demo/scene/scene.h"

#include <QByteArray>

#include <optional>

namespace sdk::demo {

/// Thread-safe: it has no state.
class SceneReader
{
public:
    /// Reads a scene. For an invalid scene, returns nullopt and sets `error` (may be null) to an English
    /// sentence about the first error, with the device, the key and the expected value. For a valid scene,
    /// sets `error` to an empty string.
    [[nodiscard]] static std::optional<Scene> read(const QByteArray &json, QString *error);

    /// The same from a file or resource; the sentence starts with `path`. A file that cannot be read, that is
    /// not a regular file or that is larger than 256 MiB is an error as well.
    [[nodiscard]] static std::optional<Scene> readFile(const QString &path, QString *error);
};

} // namespace sdk::demo
