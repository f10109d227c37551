// A network library that does nothing.
#pragma once

#include "sdk/netlibrary.h"

/// Refuses everything; for tests that fill the roles that they need.
class QuietNetLibrary : public sdk::NetLibrary
{
public:
    bool NetInit() override { return true; }
    void NetCleanup() override {}
    std::uint32_t NetGetLastError() const override { return 0; }
    std::int64_t NetStartSearchDevices(const sdk::SearchParameter &, std::chrono::milliseconds) override
    {
        return 0;
    }
    std::int64_t NetStartSearchDevicesEx(const sdk::SearchParameterEx &, std::chrono::milliseconds) override
    {
        return 0;
    }
    bool NetSearchDevicesByIPs(const sdk::SearchByAddressesRequest &, sdk::SearchAnswerHandler, void *,
                               const char *, std::chrono::milliseconds) override
    {
        return false;
    }
    bool NetSearchDevicesByIPsEx(const sdk::SearchByAddressesRequest &, sdk::SearchAnswerHandler, void *,
                                 const char *, std::chrono::milliseconds) override
    {
        return false;
    }
    bool NetStopSearchDevices(std::int64_t) override { return false; }
    void NetSearchDeviceByIp(const sdk::SearchByAddressesRequest &, sdk::SearchAnswerHandler, void *,
                             std::chrono::milliseconds) override
    {
    }
    std::int64_t NetLogin(const char *, std::int32_t, const char *, const char *, std::int32_t, void *,
                          sdk::LoginDeviceInformation &, std::int32_t &) override
    {
        return 0;
    }
    std::int64_t NetLoginSecure(const sdk::LoginSecureInput &, sdk::LoginSecureOutput &) override
    {
        return 0;
    }
    bool NetLogout(std::int64_t) override { return false; }
    bool NetQueryConfig(std::int64_t, sdk::QueryCommand, std::int32_t, void *, std::uint32_t, std::uint32_t &,
                        std::chrono::milliseconds) override
    {
        return false;
    }
    bool NetGetNewConfig(std::int64_t, const char *, std::int32_t, char *, std::uint32_t, std::int32_t &,
                         std::chrono::milliseconds) override
    {
        return false;
    }
    bool NetQueryCapabilities(std::int64_t, sdk::CapabilityQuery, const void *, void *,
                              std::chrono::milliseconds) override
    {
        return false;
    }
    bool NetGetItem(std::int64_t, std::uint32_t, std::int32_t, void *, std::uint32_t,
                    std::chrono::milliseconds) override
    {
        return false;
    }
    bool NetInitDeviceAccount(const sdk::InitDeviceAccountInput &, sdk::DeviceRequestOutput &,
                              std::chrono::milliseconds, const char *) override
    {
        return false;
    }
    bool NetModifyDeviceBySearch(const sdk::ModifyDeviceInput &, sdk::DeviceRequestOutput &,
                                 std::chrono::milliseconds) override
    {
        return false;
    }
    bool NetSetDeviceSetting(std::int64_t, sdk::DeviceSetting, std::int32_t, const void *, std::uint32_t,
                             std::chrono::milliseconds) override
    {
        return false;
    }
    bool NetSetItem(std::int64_t, std::uint32_t, std::int32_t, const void *, std::uint32_t,
                    std::chrono::milliseconds) override
    {
        return false;
    }
    bool NetSetNewConfig(std::int64_t, const char *, std::int32_t, const char *, std::uint32_t,
                         std::int32_t &, std::chrono::milliseconds) override
    {
        return false;
    }
    bool NetRebootDevice(std::int64_t, std::chrono::milliseconds) override { return false; }
    bool NetResetSystem(std::int64_t, const sdk::ResetSystemInput &, sdk::ResetSystemOutput &,
                        std::chrono::milliseconds) override
    {
        return false;
    }
    bool NetModifyPassword(std::int64_t, const sdk::ModifyPasswordInput &, std::chrono::milliseconds) override
    {
        return false;
    }
    std::int64_t NetStartRealStream(std::int64_t, std::int32_t, std::uintptr_t, sdk::LiveStreamKind) override
    {
        return 0;
    }
    bool NetSetRealDataCallback(std::int64_t, sdk::RealDataHandler, void *, std::uint32_t) override
    {
        return false;
    }
    bool NetStreamFollowUp(std::int64_t, std::int32_t, std::uint32_t) override { return false; }
    bool NetStopRealStream(std::int64_t) override { return false; }
    bool NetQueryChannelStates(std::int64_t, sdk::ChannelStates &, std::chrono::milliseconds) override
    {
        return false;
    }
    std::int64_t NetStartUpgrade(std::int64_t, const char *, sdk::UpgradeProgressHandler, void *,
                                 std::chrono::milliseconds) override
    {
        return 0;
    }
    bool NetStopUpgrade(std::int64_t) override { return false; }
};
