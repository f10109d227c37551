// The state of a device's services that other protocols do not have. A reset clears it.
#pragma once

#include "sdk/demo/scene/scene.h"

#include <QJsonValue>

namespace site {

/// Undefined if nothing is stored under `key`.
[[nodiscard]] QJsonValue serviceState(const sdk::demo::SceneDevice &device, const QString &key);
/// An undefined value removes the key.
void setServiceState(sdk::demo::SceneDevice &device, const QString &key, const QJsonValue &value);

} // namespace site
