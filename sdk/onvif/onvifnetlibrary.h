// The network library's interface for real devices, by open standards.
#pragma once

#include "sdk/callgate.h"
#include "sdk/certificates/certificatedecision.h"
#include "sdk/netlibrary.h"
#include "sdk/onvif/discovery/devicediscovery.h"
#include "sdk/onvif/firmwareupload.h"
#include "sdk/onvif/livestreams.h"
#include "sdk/onvif/session/onvifsession.h"
#include "sdk/threaderror.h"

#include <QThreadPool>

#include <functional>
#include <map>
#include <memory>
#include <mutex>

namespace sdk::onvif {

/// Accesses devices by the ONVIF services and RTSP (docs/onvif.md). netlibrary.h states the effect, the
/// threads and the lifetimes of each operation. NetGetLastError() returns values of NetError: InvalidValue
/// for malformed arguments, for an invalid handle of a search, stream or upgrade, and before NetInit;
/// SessionEnded for an invalid handle of a session, also before NetInit.
///
/// These parameters have no effect: the local address of a search and of an initialisation, the `wait` of a
/// local search, `unused1`, `unused2`, `window`, `flag` and `reserved`, and the channel of NetQueryConfig,
/// NetSetDeviceSetting and NetStreamFollowUp. There is one kind of search: NetStartSearchDevicesEx repeats
/// NetStartSearchDevices, NetSearchDevicesByIPsEx returns immediately. Calls that must not be made from a
/// handler are not detected. The destructor calls NetCleanup().
class OnvifNetLibrary : public NetLibrary
{
public:
    OnvifNetLibrary();
    ~OnvifNetLibrary() override;

    bool NetInit() override;
    void NetCleanup() override;
    [[nodiscard]] std::uint32_t NetGetLastError() const override;
    void NetGetProviderInformation(ProviderInformation &information) const override;
    void NetSetCertificateHandler(CertificateHandler handler, void *user) override;

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

    LLONG NetLogin(const char *address, std::int32_t port, const char *account, const char *password,
                   std::int32_t unused1, void *unused2, LoginDeviceInformation &device,
                   std::int32_t &error) override;
    LLONG NetLoginSecure(const LoginSecureInput &input, LoginSecureOutput &output) override;
    bool NetLogout(LLONG loginHandle) override;
    bool NetCancelCalls(LLONG loginHandle) override;
    bool NetIsDeviceAlive(LLONG loginHandle, std::chrono::milliseconds wait) override;

    bool NetQueryConfig(LLONG loginHandle, QueryCommand command, std::int32_t channel, void *buffer,
                        std::uint32_t bufferSize, std::uint32_t &returnedSize,
                        std::chrono::milliseconds wait) override;
    bool NetGetNewConfig(LLONG loginHandle, const char *name, std::int32_t channel, char *text,
                         std::uint32_t textSize, std::int32_t &error,
                         std::chrono::milliseconds wait) override;
    bool NetQueryCapabilities(LLONG loginHandle, CapabilityQuery query, const void *input, void *output,
                              std::chrono::milliseconds wait) override;
    bool NetGetItem(LLONG loginHandle, std::uint32_t item, std::int32_t channel, void *block,
                    std::uint32_t blockSize, std::chrono::milliseconds wait) override;

    bool NetInitDeviceAccount(const InitDeviceAccountInput &input, DeviceRequestOutput &output,
                              std::chrono::milliseconds wait, const char *localAddress) override;
    bool NetModifyDeviceBySearch(const ModifyDeviceInput &input, DeviceRequestOutput &output,
                                 std::chrono::milliseconds wait) override;

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

    std::int64_t NetStartRealStream(LLONG loginHandle, std::int32_t channel, std::uintptr_t window,
                                    LiveStreamKind kind) override;
    bool NetSetRealDataCallback(std::int64_t streamHandle, RealDataHandler handler, void *user,
                                std::uint32_t flag) override;
    bool NetStreamFollowUp(std::int64_t streamHandle, std::int32_t channel, std::uint32_t reserved) override;
    bool NetStopRealStream(std::int64_t streamHandle) override;
    bool NetQueryChannelStates(LLONG loginHandle, ChannelStates &states,
                               std::chrono::milliseconds wait) override;

    std::int64_t NetStartUpgrade(LLONG loginHandle, const char *fileName, UpgradeProgressHandler handler,
                                 void *user, std::chrono::milliseconds wait) override;
    bool NetStopUpgrade(std::int64_t upgradeHandle) override;

private:
    using Deadline = OnvifSession::Deadline;
    using SessionWork = std::function<NetError(OnvifSession &session, Deadline deadline)>;

    /// Opens a session within `longestLogin` and fills `device`. Returns the handle. On failure it returns 0
    /// and stores the error for the calling thread.
    [[nodiscard]] LLONG login(const ServiceAddress &service, const HttpLogin &login,
                              LoginDeviceInformation &device);
    /// Null for an invalid handle.
    [[nodiscard]] std::shared_ptr<OnvifSession> session(LLONG loginHandle) const;
    /// Marks the sessions of all accounts with the device at `host` as ended, because the device reboots.
    /// Their handles stay valid until NetLogout(), and their later calls fail.
    void endSessionsTo(const std::string &host);
    /// Runs `work` on the calling thread, with the deadline `wait` from now. Returns true if `work` returns
    /// NetError::None. Otherwise it stores the error for the calling thread and returns false. The error is
    /// SessionEnded for an invalid handle, and Cancelled if NetCancelCalls() has ended the call. In a session
    /// that was marked as ended, `work` does not run: the error is then the reason why the device is not
    /// reached, otherwise NetworkFailure.
    bool onSession(LLONG loginHandle, std::chrono::milliseconds wait, const SessionWork &work);
    /// Searches on the calling thread and blocks until the search has ended. Returns false and stores
    /// InvalidValue for a malformed request.
    bool searchByAddresses(const SearchByAddressesRequest &request, SearchResponseHandler handler, void *user,
                           std::chrono::milliseconds wait);

    const std::shared_ptr<CertificateDecision> m_certificates = std::make_shared<CertificateDecision>();
    CallGate m_gate;
    ThreadError m_error;
    std::unique_ptr<DeviceDiscovery> m_discovery; ///< from NetInit to NetCleanup

    mutable std::mutex m_mutex; ///< guards the sessions
    std::map<LLONG, std::shared_ptr<OnvifSession>> m_sessions;
    LLONG m_lastHandle = 0;

    LiveStreams m_streams;
    FirmwareUploads m_uploads{m_certificates};
    QThreadPool m_keyFrameRequests; ///< for requests of NetStreamFollowUp(), whose results are ignored
};

} // namespace sdk::onvif
