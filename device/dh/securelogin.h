// Logging in to a device for the work on it.
#pragma once

#include "device/loginresult.h"

#include <QString>

#include <cstdint>

namespace sdk {
class NetLibrary;
}

struct SecureLogin
{
    LoginResult result = LoginResult::Unknown;
    std::int64_t handle = 0; ///< 0 unless `result` is Success; the caller logs it out
    std::int32_t loginKind = 0;
    int channelCount = 0; ///< video inputs that the device tells of
};

/// Logs in to the device at `ipport` ("address:port", an IPv6 address in brackets). Blocks until the device
/// has answered or the library has given it up. Fails as a network failure without a library (`net` is null).
[[nodiscard]] SecureLogin secureLogin(sdk::NetLibrary *net, const QString &ipport, const QString &account,
                                      const QString &password);
