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
    /// Reads a scene. When something is wrong with it, returns nothing and sets `error` (may be null) to a
    /// sentence that names the device and the key, and says what was expected.
    [[nodiscard]] static std::optional<Scene> read(const QByteArray &json, QString *error);

    /// The same from a file or resource; the sentence begins with its name.
    [[nodiscard]] static std::optional<Scene> readFile(const QString &path, QString *error);
};

} // namespace sdk::demo
