// The network library on a simulated site.
#pragma once

#include "sdk/callgate.h"
#include "sdk/demo/demoerror.h"
#include "sdk/demo/device/devicelogin.h"
#include "sdk/demo/search/responsedelivery.h"
#include "sdk/demo/search/searchtally.h"
#include "sdk/demo/site/demosessions.h"
#include "sdk/demo/streams/livestreams.h"
#include "sdk/demo/upgrade/deviceupgrades.h"
#include "sdk/netlibrary.h"
#include "sdk/threaderror.h"

#include <QJsonObject>

#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <stop_token>

namespace sdk::demo {

class SiteState;

/// The operations are those of NetLibrary, on the devices of a site in this process. Error codes are
/// DemoError for misuse and NetError for failures of devices. NetInit, NetCleanup and every operation that
/// concerns devices, even a malformed one, are added to the site's log; passwords are not (RequestLog).
///
/// Reachable devices respond to logins, queries and requests immediately, unless they have
/// Fault::SlowAnswers. A request to an unreachable device fails after its complete `wait` on the site's
/// clock; a login fails after `connectTime`. NetCleanup, NetLogout and NetCancelCalls end that wait. A device
/// with Fault::RefusesConnections fails logins and requests at once.
/// NetModifyDeviceBySearch does not check the account of the request, and does not wait for the device at its
/// new address. No device is accessed over TLS: the certificate handler is not called. Operations that must
/// not be called from a handler detect it and fail with DemoError::InsideHandler.
class DemoNetLibrary : public NetLibrary
{
public:
    /// The timeout of a login to an unreachable address, on the site's clock.
    static constexpr std::chrono::milliseconds connectTime{3000};
    static_assert(connectTime <= longestLogin);

    /// `site` must outlive the library.
    explicit DemoNetLibrary(SiteState &site);

    /// As NetCleanup(), but it is not added to the log. Must not run in a handler.
    ~DemoNetLibrary() override;

    /// The site of the library, not owned.
    [[nodiscard]] SiteState &site() const { return m_site; }

    bool NetInit() override;
    void NetCleanup() override;
    [[nodiscard]] std::uint32_t NetGetLastError() const override;
    void NetGetProviderInformation(ProviderInformation &information) const override;
    void NetSetCertificateHandler(CertificateHandler handler, void *user) override;

    // Searches
    std::int64_t NetStartSearchDevices(const SearchParameter &parameter,
                                       std::chrono::milliseconds wait) override;
    std::int64_t NetStartSearchDevicesEx(const SearchParameterEx &parameter,
                                         std::chrono::milliseconds wait) override;
    bool NetSearchDevicesByIPs(const SearchByAddressesRequest &request, SearchResponseHandler handler,
                               void *user, const char *localAddress, std::chrono::milliseconds wait) override;
    bool NetSearchDevicesByIPsEx(const SearchByAddressesRequest &request, SearchResponseHandler handler,
                                 void *user, const char *localAddress,
                                 std::chrono::milliseconds wait) override;
    bool NetStopSearchDevices(std::int64_t searchHandle) override;
    void NetSearchDeviceByIp(const SearchByAddressesRequest &request, SearchResponseHandler handler,
                             void *user, std::chrono::milliseconds wait) override;
    bool NetGetSearchReport(SearchReport &report) override;

    // Sessions
    LLONG NetLogin(const char *address, std::int32_t port, const char *account, const char *password,
                   std::int32_t unused1, void *unused2, LoginDeviceInformation &device,
                   std::int32_t &error) override;
    LLONG NetLoginSecure(const LoginSecureInput &input, LoginSecureOutput &output) override;
    bool NetLogout(LLONG loginHandle) override;
    bool NetCancelCalls(LLONG loginHandle) override;
    bool NetIsDeviceAlive(LLONG loginHandle, std::chrono::milliseconds wait) override;

    // Queries and configuration
    bool NetQueryConfig(LLONG loginHandle, QueryCommand command, std::int32_t channel, void *buffer,
                        std::uint32_t bufferSize, std::uint32_t &returnedSize,
                        std::chrono::milliseconds wait) override;
    bool NetGetNewConfig(LLONG loginHandle, const char *name, std::int32_t channel, char *text,
                         std::uint32_t textSize, std::int32_t &error,
                         std::chrono::milliseconds wait) override;

    // Items and capabilities: demonetconfiguration.cpp
    bool NetQueryCapabilities(LLONG loginHandle, CapabilityQuery query, const void *input, void *output,
                              std::chrono::milliseconds wait) override;
    bool NetGetItem(LLONG loginHandle, std::uint32_t item, std::int32_t channel, void *block,
                    std::uint32_t blockSize, std::chrono::milliseconds wait) override;

    // Requests to devices without a login
    bool NetInitDeviceAccount(const InitDeviceAccountInput &input, DeviceRequestOutput &output,
                              std::chrono::milliseconds wait, const char *localAddress) override;
    bool NetModifyDeviceBySearch(const ModifyDeviceInput &input, DeviceRequestOutput &output,
                                 std::chrono::milliseconds wait) override;

    // Maintenance
    bool NetSetDeviceSetting(LLONG loginHandle, DeviceSetting setting, std::int32_t channel,
                             const void *block, std::uint32_t blockSize,
                             std::chrono::milliseconds wait) override;
    bool NetSetItem(LLONG loginHandle, std::uint32_t item, std::int32_t channel, const void *block,
                    std::uint32_t blockSize, std::chrono::milliseconds wait) override;
    bool NetSetNewConfig(LLONG loginHandle, const char *name, std::int32_t channel, const char *text,
                         std::uint32_t textSize, std::int32_t &error,
                         std::chrono::milliseconds wait) override;
    bool NetRebootDevice(LLONG loginHandle, std::chrono::milliseconds wait) override;
    bool NetResetSystem(LLONG loginHandle, const ResetSystemInput &input, ResetSystemOutput &output,
                        std::chrono::milliseconds wait) override;
    bool NetModifyPassword(LLONG loginHandle, const ModifyPasswordInput &input,
                           std::chrono::milliseconds wait) override;

    // Live streams: demonetstreams.cpp
    std::int64_t NetStartRealStream(LLONG loginHandle, std::int32_t channel, std::uintptr_t window,
                                    LiveStreamKind kind) override;
    bool NetSetRealDataCallback(std::int64_t streamHandle, RealDataHandler handler, void *user,
                                std::uint32_t flag) override;
    bool NetStreamFollowUp(std::int64_t streamHandle, std::int32_t channel, std::uint32_t reserved) override;
    bool NetStopRealStream(std::int64_t streamHandle) override;
    bool NetQueryChannelStates(LLONG loginHandle, ChannelStates &states,
                               std::chrono::milliseconds wait) override;

    // Firmware: demonetupgrade.cpp
    std::int64_t NetStartUpgrade(LLONG loginHandle, const char *fileName, UpgradeProgressHandler handler,
                                 void *user, std::chrono::milliseconds wait) override;
    bool NetStopUpgrade(std::int64_t upgradeHandle) override;

private:
    /// The end of an address search.
    enum class SearchEnd
    {
        AtWait,        // after the complete wait
        AfterResponse, // after the response of the first device
    };

    struct LoginRequest
    {
        QString address;
        int port;
        QString account;
        QString password;
        LoginKind kind;
    };

    void record(const char *operation, const QJsonObject &request = {}, const QString &mac = {}) const;
    void recordOfStream(const char *operation, std::int64_t streamHandle, QJsonObject request) const;
    [[nodiscard]] static std::chrono::milliseconds bounded(std::chrono::milliseconds wait);

    std::int64_t startLocalSearch(SearchKind kind, ResponseReceiver receiver);
    bool searchAddresses(SearchKind kind, const SearchByAddressesRequest &request, ResponseReceiver receiver,
                         std::chrono::milliseconds wait, SearchEnd searchEnd);
    void endEverything();

    /// Logs in and adds `decoded` and the login to the log. Returns the handle of the session; on failure 0,
    /// with the error in m_error.
    std::int64_t login(const char *operation, QJsonObject decoded, const LoginRequest &request,
                       LoginDeviceInformation &device);

    /// Waits for the response of a session's device. Returns the device; nullopt, with the error in m_error,
    /// if it does not respond within `wait` or does not accept the session.
    std::optional<SceneDevice> askedDevice(const CallGate::Call &call,
                                           const std::optional<DemoSession> &session,
                                           std::chrono::milliseconds wait);
    /// Calls `change` with the device of a session, once it has responded. `change` returns the error of a
    /// refusal, None if the device is changed. Returns false on failure, with the error in m_error.
    bool maintain(const CallGate::Call &call, const std::optional<DemoSession> &session,
                  std::chrono::milliseconds wait, const std::function<NetError(SceneDevice &device)> &change);
    bool fetchConfig(const CallGate::Call &call, const std::optional<DemoSession> &session,
                     const QString &name, std::int32_t channel, char *text, std::uint32_t textSize,
                     std::chrono::milliseconds wait);
    bool setItemOfChannel(const CallGate::Call &call, LLONG loginHandle,
                          const std::optional<DemoSession> &session, std::uint32_t item, std::int32_t channel,
                          const void *block, std::uint32_t blockSize, std::chrono::milliseconds wait);
    bool queryEncode(const CallGate::Call &call, LLONG loginHandle, const std::optional<DemoSession> &session,
                     const EncodeCapabilityInput *input, EncodeCapabilities *output,
                     std::chrono::milliseconds wait);
    bool queryCamera(const CallGate::Call &call, LLONG loginHandle, const std::optional<DemoSession> &session,
                     const CameraCapabilityInput *input, CameraCapabilities *output,
                     std::chrono::milliseconds wait);

    /// Waits for the response of a session's device and sets `device`. Returns the error otherwise.
    NetError waitForDevice(const CallGate::Call &call, const DemoSession &session,
                           std::chrono::milliseconds wait, std::optional<SceneDevice> &device);

    /// As Clock::wait(). A CallStop of this thread ends it as well, within 100 ms of the site's clock.
    bool waitUnlessStopped(std::chrono::milliseconds duration, const std::stop_token &stop) const;

    /// Waits for the delay of a slow device, at most `wait`. Returns false if the delay exceeds `wait`, and
    /// on a stop.
    bool waitForResponse(const std::stop_token &stop, const SceneDevice &device,
                         std::chrono::milliseconds wait) const;

    /// Counts a request with an accepted password, for Fault::PasswordChangesAfter.
    void noteRequest(const SceneDevice &device);

    /// Waits for the response of the device `mac` to a request without a session. `fromOtherSegment` also
    /// reaches devices of the other segment. Returns false, with the error in m_error, if it does not
    /// respond.
    bool responds(const CallGate::Call &call, const QString &mac, bool fromOtherSegment,
                  std::chrono::milliseconds wait);

    SiteState &m_site;
    ThreadError m_error;
    CallGate m_gate;
    DemoSessions m_sessions;
    LoginGuard m_loginGuard;
    SearchTally m_searchTally;
    std::mutex m_mutex;
    std::int64_t m_lastSearchHandle = 0;
    std::map<std::int64_t, std::unique_ptr<ResponseDelivery>> m_searches;
    LiveStreams m_streams;
    DeviceUpgrades m_upgrades;
};

} // namespace sdk::demo
