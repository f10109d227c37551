// The network library's interface, implemented by the C functions of a closed library.
#pragma once

#include "sdk/binding/entrypoints.h"

namespace sdk::binding {

/// Each operation calls the C function of the same name on the calling thread, with its parameters translated
/// as entrypoints.h states: for instance a reference to a pointer, a time to milliseconds as a number.
/// Nothing is added: the closed library must meet the contract of the interface (threads, error codes,
/// lifetimes). The constructor copies the entries. All pointers must be set, and the library must stay loaded
/// while the object is used.
class BoundNetLibrary : public NetLibrary
{
public:
    explicit BoundNetLibrary(const NetworkEntryPoints &entries) : m_entries(entries) {}

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
    const NetworkEntryPoints m_entries;
};

} // namespace sdk::binding
