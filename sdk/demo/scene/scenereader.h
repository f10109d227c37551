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
    /// Reads a scene. For an invalid scene, returns nullopt and sets `error` (may be null) to a sentence with
    /// the device, the key and the expected value.
    [[nodiscard]] static std::optional<Scene> read(const QByteArray &json, QString *error);

    /// The same from a file or resource; the sentence starts with its name.
    [[nodiscard]] static std::optional<Scene> readFile(const QString &path, QString *error);
};

} // namespace sdk::demo
