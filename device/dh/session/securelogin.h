// Logs in to a device.
#pragma once

#include "device/registry/loginresult.h"

#include <QString>

#include <cstdint>
#include <memory>

namespace sdk {
class NetLibrary;
}

/// Result of secureLogin().
struct SecureLogin
{
    LoginResult result = LoginResult::Unknown;
    std::int64_t handle = 0;    ///< 0 unless `result` is Success; the caller must log it out
    std::int32_t loginKind = 0; ///< 0 direct, 1 through a tunnel
    int channelCount = 0;       ///< video inputs that the device reports
};

/// Logs in to the device at `ipport` ("address:port", an IPv6 address in brackets; 127.0.0.1 is the local end
/// of a tunnel). A successful login stays open. Blocks for the response or the library's timeout.
/// NetworkFailure, without a request, if `net` is null or the address is empty. Any thread.
[[nodiscard]] SecureLogin secureLogin(sdk::NetLibrary *net, const QString &ipport, const QString &account,
                                      const QString &password);

/// A login that is logged out by the destructor, which blocks for the device, unless take() was called.
class UntakenLogin
{
public:
    /// `net` may be null if there is no handle.
    UntakenLogin(std::shared_ptr<sdk::NetLibrary> net, const SecureLogin &login);
    ~UntakenLogin();
    UntakenLogin(const UntakenLogin &) = delete;
    UntakenLogin &operator=(const UntakenLogin &) = delete;

    [[nodiscard]] LoginResult result() const { return m_login.result; }

    /// Passes the login to the caller, who must log it out.
    [[nodiscard]] SecureLogin take();

private:
    const std::shared_ptr<sdk::NetLibrary> m_net;
    SecureLogin m_login;
};
