// The state of a device's services that other protocols do not have, such as the levels of users. It is kept
// in the scene device, by keys, and a reset clears it.
#pragma once

#include "sdk/demo/scene/scene.h"

#include <QJsonValue>

namespace site {

/// The value that is stored under `key`; undefined if there is none.
[[nodiscard]] QJsonValue serviceState(const sdk::demo::SceneDevice &device, const QString &key);
/// Stores `value` under `key` in `device`; the caller has the device from ServiceCall::change(). An undefined
/// value removes the key.
void setServiceState(sdk::demo::SceneDevice &device, const QString &key, const QJsonValue &value);

} // namespace site
