// The users of a device.
#pragma once

#include "site/services/servicecall.h"

namespace site {

/// Users of the scene are administrators; those that were created have the level that they were given.
[[nodiscard]] UserLevel userLevelOf(const sdk::demo::SceneDevice &device, const QString &user);

ServiceResult getUsers(ServiceCall &call);
ServiceResult createUsers(ServiceCall &call);
ServiceResult setUser(ServiceCall &call);
ServiceResult deleteUsers(ServiceCall &call);

} // namespace site
