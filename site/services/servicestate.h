// What a device keeps of its services beside what other protocols know of it. A reset forgets it.
#pragma once

#include "sdk/demo/scene.h"

#include <QJsonValue>

namespace site {

[[nodiscard]] QJsonValue serviceState(const sdk::demo::SceneDevice &device, const QString &key);
void setServiceState(sdk::demo::SceneDevice &device, const QString &key, const QJsonValue &value);

} // namespace site
