#include "sdk/binding/internal/boundnetlibrary.h"

#include "sdk/binding/internal/cvalues.h"

namespace sdk::binding {

bool BoundNetLibrary::NetInit()
{
    return m_entries.NetInit() != 0;
}

void BoundNetLibrary::NetCleanup()
{
    m_entries.NetCleanup();
}

std::uint32_t BoundNetLibrary::NetGetLastError() const
{
    return m_entries.NetGetLastError();
}

void BoundNetLibrary::NetGetProviderInformation(ProviderInformation &information) const
{
    m_entries.NetGetProviderInformation(&information);
}

void BoundNetLibrary::NetSetCertificateHandler(CertificateHandler handler, void *user)
{
    m_entries.NetSetCertificateHandler(handler, user);
}

std::int64_t BoundNetLibrary::NetStartSearchDevices(const SearchParameter &parameter,
                                                    std::chrono::milliseconds wait)
{
    return m_entries.NetStartSearchDevices(&parameter, cValue(wait));
}

std::int64_t BoundNetLibrary::NetStartSearchDevicesEx(const SearchParameterEx &parameter,
                                                      std::chrono::milliseconds wait)
{
    return m_entries.NetStartSearchDevicesEx(&parameter, cValue(wait));
}

bool BoundNetLibrary::NetSearchDevicesByIPs(const SearchByAddressesRequest &request,
                                            SearchResponseHandler handler, void *user,
                                            const char *localAddress, std::chrono::milliseconds wait)
{
    return m_entries.NetSearchDevicesByIPs(&request, handler, user, localAddress, cValue(wait)) != 0;
}

bool BoundNetLibrary::NetSearchDevicesByIPsEx(const SearchByAddressesRequest &request,
                                              SearchResponseHandler handler, void *user,
                                              const char *localAddress, std::chrono::milliseconds wait)
{
    return m_entries.NetSearchDevicesByIPsEx(&request, handler, user, localAddress, cValue(wait)) != 0;
}

bool BoundNetLibrary::NetStopSearchDevices(std::int64_t searchHandle)
{
    return m_entries.NetStopSearchDevices(searchHandle) != 0;
}

void BoundNetLibrary::NetSearchDeviceByIp(const SearchByAddressesRequest &request,
                                          SearchResponseHandler handler, void *user,
                                          std::chrono::milliseconds wait)
{
    m_entries.NetSearchDeviceByIp(&request, handler, user, cValue(wait));
}

bool BoundNetLibrary::NetGetSearchReport(SearchReport &report)
{
    return m_entries.NetGetSearchReport(&report) != 0;
}

LLONG BoundNetLibrary::NetLogin(const char *address, std::int32_t port, const char *account,
                                const char *password, std::int32_t unused1, void *unused2,
                                LoginDeviceInformation &device, std::int32_t &error)
{
    return m_entries.NetLogin(address, port, account, password, unused1, unused2, &device, &error);
}

LLONG BoundNetLibrary::NetLoginSecure(const LoginSecureInput &input, LoginSecureOutput &output)
{
    return m_entries.NetLoginSecure(&input, &output);
}

bool BoundNetLibrary::NetLogout(LLONG loginHandle)
{
    return m_entries.NetLogout(loginHandle) != 0;
}

bool BoundNetLibrary::NetCancelCalls(LLONG loginHandle)
{
    return m_entries.NetCancelCalls(loginHandle) != 0;
}

bool BoundNetLibrary::NetIsDeviceAlive(LLONG loginHandle, std::chrono::milliseconds wait)
{
    return m_entries.NetIsDeviceAlive(loginHandle, cValue(wait)) != 0;
}

bool BoundNetLibrary::NetQueryConfig(LLONG loginHandle, QueryCommand command, std::int32_t channel,
                                     void *buffer, std::uint32_t bufferSize, std::uint32_t &returnedSize,
                                     std::chrono::milliseconds wait)
{
    return m_entries.NetQueryConfig(loginHandle, cValue(command), channel, buffer, bufferSize, &returnedSize,
                                    cValue(wait)) != 0;
}

bool BoundNetLibrary::NetGetNewConfig(LLONG loginHandle, const char *name, std::int32_t channel, char *text,
                                      std::uint32_t textSize, std::int32_t &error,
                                      std::chrono::milliseconds wait)
{
    return m_entries.NetGetNewConfig(loginHandle, name, channel, text, textSize, &error, cValue(wait)) != 0;
}

bool BoundNetLibrary::NetQueryCapabilities(LLONG loginHandle, CapabilityQuery query, const void *input,
                                           void *output, std::chrono::milliseconds wait)
{
    return m_entries.NetQueryCapabilities(loginHandle, cValue(query), input, output, cValue(wait)) != 0;
}

bool BoundNetLibrary::NetGetItem(LLONG loginHandle, std::uint32_t item, std::int32_t channel, void *block,
                                 std::uint32_t blockSize, std::chrono::milliseconds wait)
{
    return m_entries.NetGetItem(loginHandle, item, channel, block, blockSize, cValue(wait)) != 0;
}

bool BoundNetLibrary::NetInitDeviceAccount(const InitDeviceAccountInput &input, DeviceRequestOutput &output,
                                           std::chrono::milliseconds wait, const char *localAddress)
{
    return m_entries.NetInitDeviceAccount(&input, &output, cValue(wait), localAddress) != 0;
}

bool BoundNetLibrary::NetModifyDeviceBySearch(const ModifyDeviceInput &input, DeviceRequestOutput &output,
                                              std::chrono::milliseconds wait)
{
    return m_entries.NetModifyDeviceBySearch(&input, &output, cValue(wait)) != 0;
}

bool BoundNetLibrary::NetSetDeviceSetting(LLONG loginHandle, DeviceSetting setting, std::int32_t channel,
                                          const void *block, std::uint32_t blockSize,
                                          std::chrono::milliseconds wait)
{
    return m_entries.NetSetDeviceSetting(loginHandle, cValue(setting), channel, block, blockSize,
                                         cValue(wait)) != 0;
}

bool BoundNetLibrary::NetSetItem(LLONG loginHandle, std::uint32_t item, std::int32_t channel,
                                 const void *block, std::uint32_t blockSize, std::chrono::milliseconds wait)
{
    return m_entries.NetSetItem(loginHandle, item, channel, block, blockSize, cValue(wait)) != 0;
}

bool BoundNetLibrary::NetSetNewConfig(LLONG loginHandle, const char *name, std::int32_t channel,
                                      const char *text, std::uint32_t textSize, std::int32_t &error,
                                      std::chrono::milliseconds wait)
{
    return m_entries.NetSetNewConfig(loginHandle, name, channel, text, textSize, &error, cValue(wait)) != 0;
}

bool BoundNetLibrary::NetRebootDevice(LLONG loginHandle, std::chrono::milliseconds wait)
{
    return m_entries.NetRebootDevice(loginHandle, cValue(wait)) != 0;
}

bool BoundNetLibrary::NetResetSystem(LLONG loginHandle, const ResetSystemInput &input,
                                     ResetSystemOutput &output, std::chrono::milliseconds wait)
{
    return m_entries.NetResetSystem(loginHandle, &input, &output, cValue(wait)) != 0;
}

bool BoundNetLibrary::NetModifyPassword(LLONG loginHandle, const ModifyPasswordInput &input,
                                        std::chrono::milliseconds wait)
{
    return m_entries.NetModifyPassword(loginHandle, &input, cValue(wait)) != 0;
}

std::int64_t BoundNetLibrary::NetStartRealStream(LLONG loginHandle, std::int32_t channel,
                                                 std::uintptr_t window, LiveStreamKind kind)
{
    return m_entries.NetStartRealStream(loginHandle, channel, window, cValue(kind));
}

bool BoundNetLibrary::NetSetRealDataCallback(std::int64_t streamHandle, RealDataHandler handler, void *user,
                                             std::uint32_t flag)
{
    return m_entries.NetSetRealDataCallback(streamHandle, handler, user, flag) != 0;
}

bool BoundNetLibrary::NetStreamFollowUp(std::int64_t streamHandle, std::int32_t channel,
                                        std::uint32_t reserved)
{
    return m_entries.NetStreamFollowUp(streamHandle, channel, reserved) != 0;
}

bool BoundNetLibrary::NetStopRealStream(std::int64_t streamHandle)
{
    return m_entries.NetStopRealStream(streamHandle) != 0;
}

bool BoundNetLibrary::NetQueryChannelStates(LLONG loginHandle, ChannelStates &states,
                                            std::chrono::milliseconds wait)
{
    return m_entries.NetQueryChannelStates(loginHandle, &states, cValue(wait)) != 0;
}

std::int64_t BoundNetLibrary::NetStartUpgrade(LLONG loginHandle, const char *fileName,
                                              UpgradeProgressHandler handler, void *user,
                                              std::chrono::milliseconds wait)
{
    return m_entries.NetStartUpgrade(loginHandle, fileName, handler, user, cValue(wait));
}

bool BoundNetLibrary::NetStopUpgrade(std::int64_t upgradeHandle)
{
    return m_entries.NetStopUpgrade(upgradeHandle) != 0;
}

} // namespace sdk::binding
