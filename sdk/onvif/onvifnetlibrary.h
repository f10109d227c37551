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

/// Devices are accessed by the ONVIF services and RTSP (docs/onvif.md). The error codes are those of
/// NetError.
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

    [[nodiscard]] LLONG login(const ServiceAddress &service, const HttpLogin &login,
                              LoginDeviceInformation &device);
    [[nodiscard]] std::shared_ptr<OnvifSession> session(LLONG loginHandle) const;
    /// Ends the sessions of all accounts with the device at `host`, which reboots.
    void endSessionsTo(const std::string &host);
    /// Runs `work` on the session and stores its error for the calling thread. False for an invalid handle.
    bool onSession(LLONG loginHandle, std::chrono::milliseconds wait, const SessionWork &work);
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
    QThreadPool m_keyFrameRequests;
};

} // namespace sdk::onvif
