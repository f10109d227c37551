// The users of a device. The functions are the operations of the device service with the same names: each
// reads the request of `call`, and fills its response or returns a fault.
#pragma once

#include "site/services/servicecall.h"

namespace site {

/// Names and levels without passwords. An uninitialised device reports no user.
ServiceResult getUsers(ServiceCall &call);

/// Creates all users of the request or none. The first user, who must be an administrator, initialises an
/// uninitialised device. If the creation of a further user fails then, the device stays initialised.
ServiceResult createUsers(ServiceCall &call);

/// Changes the passwords and levels of users. A missing password, and a missing or unknown level, change
/// nothing. A fault for one user leaves the changes of the users before it.
ServiceResult setUser(ServiceCall &call);

/// Deletes all users of the request or none. A client cannot delete its own user.
ServiceResult deleteUsers(ServiceCall &call);

} // namespace site
