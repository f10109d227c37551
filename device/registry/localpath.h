#pragma once

#include <QString>

/// The local path of a "file:///" URL from QML. A path is returned unchanged.
[[nodiscard]] QString localPath(const QString &path);
