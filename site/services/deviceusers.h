// The users of a device.
#pragma once

#include "site/services/servicecall.h"

namespace site {

ServiceResult getUsers(ServiceCall &call);
ServiceResult createUsers(ServiceCall &call);
ServiceResult setUser(ServiceCall &call);
ServiceResult deleteUsers(ServiceCall &call);

} // namespace site
