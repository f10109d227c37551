// The users of a device. The functions are operations of the device service.
#pragma once

#include "site/services/servicecall.h"

namespace site {

ServiceResult getUsers(ServiceCall &call);
ServiceResult createUsers(ServiceCall &call);
ServiceResult setUser(ServiceCall &call);
ServiceResult deleteUsers(ServiceCall &call);

} // namespace site
