#pragma once

#include <QString>

/// The local path of a "file:///" URL from QML. Any other text, such as a path, is returned unchanged.
[[nodiscard]] QString localPath(const QString &path);
