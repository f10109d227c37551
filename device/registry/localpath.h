#pragma once

#include <QString>

/// The path that the scene means by a path or a "file:///" address.
[[nodiscard]] QString localPath(const QString &path);
