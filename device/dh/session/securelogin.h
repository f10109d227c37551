// Logging in to a device for the work on it.
#pragma once

#include "device/registry/loginresult.h"

#include <QString>

#include <cstdint>
#include <memory>

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

/// A login that waits to be taken over. It is logged out when nobody does.
class UntakenLogin
{
public:
    /// `net` may be null when there is no handle.
    UntakenLogin(std::shared_ptr<sdk::NetLibrary> net, const SecureLogin &login);
    ~UntakenLogin();
    UntakenLogin(const UntakenLogin &) = delete;
    UntakenLogin &operator=(const UntakenLogin &) = delete;

    [[nodiscard]] LoginResult result() const { return m_login.result; }

    /// The handle is the caller's from now on.
    [[nodiscard]] SecureLogin take();

private:
    const std::shared_ptr<sdk::NetLibrary> m_net;
    SecureLogin m_login;
};
