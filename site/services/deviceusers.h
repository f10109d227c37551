// The users of a device.
#pragma once

#include "site/services/servicecall.h"

namespace site {

/// Users of the scene are administrators; created users have the level of their creation.
[[nodiscard]] UserLevel userLevelOf(const sdk::demo::SceneDevice &device, const QString &user);

ServiceResult getUsers(ServiceCall &call);
ServiceResult createUsers(ServiceCall &call);
ServiceResult setUser(ServiceCall &call);
ServiceResult deleteUsers(ServiceCall &call);

} // namespace site
