// The C functions of the closed libraries: one for each operation of the library interfaces, with the same
// name.
//
// The parameters are those of sdk/netlibrary.h, sdk/configlibrary.h, sdk/decoderlibrary.h and
// sdk/p2pagentlibrary.h in their order, translated one to one:
//
//   bool                     int32_t, 0 or 1
//   a reference              a pointer, never null
//   std::chrono::milliseconds  int32_t milliseconds, limited to 0 and the largest value
//   an enumeration           the integer that it is based on
//   std::string_view         for a name: a pointer, ended by a zero; for a text: a pointer without an ending
//                            zero, and its number of bytes as uint32_t
//
// Blocks and handlers are passed unchanged. The headers of the interfaces state threads, errors and
// lifetimes. The functions have the C calling convention of the system.
#pragma once

#include "sdk/decoderlibrary.h"
#include "sdk/netlibrary.h"
#include "sdk/p2pagentlibrary.h"

#include <cstdint>
#include <vector>

// ENTRY(result, name, parameters)
#define SDK_NETWORK_ENTRY_POINTS(ENTRY)                                                                      \
    ENTRY(std::int32_t, NetInit, ())                                                                         \
    ENTRY(void, NetCleanup, ())                                                                              \
    ENTRY(std::uint32_t, NetGetLastError, ())                                                                \
    ENTRY(void, NetGetProviderInformation, (sdk::ProviderInformation *))                                     \
    ENTRY(void, NetSetCertificateHandler, (sdk::CertificateHandler, void *))                                 \
    ENTRY(std::int64_t, NetStartSearchDevices, (const sdk::SearchParameter *, std::int32_t))                 \
    ENTRY(std::int64_t, NetStartSearchDevicesEx, (const sdk::SearchParameterEx *, std::int32_t))             \
    ENTRY(std::int32_t, NetSearchDevicesByIPs,                                                               \
          (const sdk::SearchByAddressesRequest *, sdk::SearchResponseHandler, void *, const char *,          \
           std::int32_t))                                                                                    \
    ENTRY(std::int32_t, NetSearchDevicesByIPsEx,                                                             \
          (const sdk::SearchByAddressesRequest *, sdk::SearchResponseHandler, void *, const char *,          \
           std::int32_t))                                                                                    \
    ENTRY(std::int32_t, NetStopSearchDevices, (std::int64_t))                                                \
    ENTRY(void, NetSearchDeviceByIp,                                                                         \
          (const sdk::SearchByAddressesRequest *, sdk::SearchResponseHandler, void *, std::int32_t))         \
    ENTRY(std::int32_t, NetGetSearchReport, (sdk::SearchReport *))                                           \
    ENTRY(std::int64_t, NetLogin,                                                                            \
          (const char *, std::int32_t, const char *, const char *, std::int32_t, void *,                     \
           sdk::LoginDeviceInformation *, std::int32_t *))                                                   \
    ENTRY(std::int64_t, NetLoginSecure, (const sdk::LoginSecureInput *, sdk::LoginSecureOutput *))           \
    ENTRY(std::int32_t, NetLogout, (std::int64_t))                                                           \
    ENTRY(std::int32_t, NetCancelCalls, (std::int64_t))                                                      \
    ENTRY(std::int32_t, NetIsDeviceAlive, (std::int64_t, std::int32_t))                                      \
    ENTRY(std::int32_t, NetQueryConfig,                                                                      \
          (std::int64_t, std::uint32_t, std::int32_t, void *, std::uint32_t, std::uint32_t *, std::int32_t)) \
    ENTRY(std::int32_t, NetGetNewConfig,                                                                     \
          (std::int64_t, const char *, std::int32_t, char *, std::uint32_t, std::int32_t *, std::int32_t))   \
    ENTRY(std::int32_t, NetQueryCapabilities,                                                                \
          (std::int64_t, std::uint32_t, const void *, void *, std::int32_t))                                 \
    ENTRY(std::int32_t, NetGetItem,                                                                          \
          (std::int64_t, std::uint32_t, std::int32_t, void *, std::uint32_t, std::int32_t))                  \
    ENTRY(std::int32_t, NetInitDeviceAccount,                                                                \
          (const sdk::InitDeviceAccountInput *, sdk::DeviceRequestOutput *, std::int32_t, const char *))     \
    ENTRY(std::int32_t, NetModifyDeviceBySearch,                                                             \
          (const sdk::ModifyDeviceInput *, sdk::DeviceRequestOutput *, std::int32_t))                        \
    ENTRY(std::int32_t, NetSetDeviceSetting,                                                                 \
          (std::int64_t, std::uint32_t, std::int32_t, const void *, std::uint32_t, std::int32_t))            \
    ENTRY(std::int32_t, NetSetItem,                                                                          \
          (std::int64_t, std::uint32_t, std::int32_t, const void *, std::uint32_t, std::int32_t))            \
    ENTRY(std::int32_t, NetSetNewConfig,                                                                     \
          (std::int64_t, const char *, std::int32_t, const char *, std::uint32_t, std::int32_t *,            \
           std::int32_t))                                                                                    \
    ENTRY(std::int32_t, NetRebootDevice, (std::int64_t, std::int32_t))                                       \
    ENTRY(std::int32_t, NetResetSystem,                                                                      \
          (std::int64_t, const sdk::ResetSystemInput *, sdk::ResetSystemOutput *, std::int32_t))             \
    ENTRY(std::int32_t, NetModifyPassword, (std::int64_t, const sdk::ModifyPasswordInput *, std::int32_t))   \
    ENTRY(std::int64_t, NetStartRealStream, (std::int64_t, std::int32_t, std::uintptr_t, std::int32_t))      \
    ENTRY(std::int32_t, NetSetRealDataCallback, (std::int64_t, sdk::RealDataHandler, void *, std::uint32_t)) \
    ENTRY(std::int32_t, NetStreamFollowUp, (std::int64_t, std::int32_t, std::uint32_t))                      \
    ENTRY(std::int32_t, NetStopRealStream, (std::int64_t))                                                   \
    ENTRY(std::int32_t, NetQueryChannelStates, (std::int64_t, sdk::ChannelStates *, std::int32_t))           \
    ENTRY(std::int64_t, NetStartUpgrade,                                                                     \
          (std::int64_t, const char *, sdk::UpgradeProgressHandler, void *, std::int32_t))                   \
    ENTRY(std::int32_t, NetStopUpgrade, (std::int64_t))

#define SDK_CONFIGURATION_ENTRY_POINTS(ENTRY)                                                                \
    ENTRY(std::int32_t, ConfigParseData,                                                                     \
          (const char *, const char *, std::uint32_t, void *, std::uint32_t, std::uint32_t *))               \
    ENTRY(std::int32_t, ConfigPackData, (const char *, const void *, std::uint32_t, char *, std::uint32_t))

#define SDK_DECODER_ENTRY_POINTS(ENTRY)                                                                      \
    ENTRY(std::int32_t, DecoderAllocPort, (std::int32_t *))                                                  \
    ENTRY(std::int32_t, DecoderSetStreamMode, (std::int32_t, std::uint32_t))                                 \
    ENTRY(std::int32_t, DecoderOpenStream,                                                                   \
          (std::int32_t, const std::uint8_t *, std::uint32_t, std::uint32_t))                                \
    ENTRY(std::int32_t, DecoderSetDecodeCallback, (std::int32_t, sdk::DecodeHandler, void *))                \
    ENTRY(std::int32_t, DecoderPlay, (std::int32_t, std::uintptr_t))                                         \
    ENTRY(std::int32_t, DecoderInputData, (std::int32_t, const std::uint8_t *, std::uint32_t))               \
    ENTRY(std::int32_t, DecoderStop, (std::int32_t))                                                         \
    ENTRY(std::int32_t, DecoderCloseStream, (std::int32_t))                                                  \
    ENTRY(std::int32_t, DecoderFreePort, (std::int32_t))                                                     \
    ENTRY(std::int32_t, DecoderGetStatus, (std::int32_t, sdk::DecoderStatus *))                              \
    ENTRY(std::int32_t, DecoderSaveFrame,                                                                    \
          (const std::uint8_t *, std::int32_t, std::int32_t, std::int32_t, std::int32_t, const char *,       \
           std::int32_t))

#define SDK_AGENT_ENTRY_POINTS(ENTRY)                                                                        \
    ENTRY(std::int32_t, OAgent_ClientInit, (const sdk::P2PAgentServices *))                                  \
    ENTRY(void, OAgent_SetMessageCallback, (sdk::P2PAgentMessageHandler, void *))                            \
    ENTRY(std::int32_t, OAgent_ClientGetDeviceLocalPort,                                                     \
          (const char *, std::int32_t, std::int32_t *, std::int32_t, std::int32_t *))                        \
    ENTRY(std::int32_t, OAgent_ClientAddPort, (const char *, std::int32_t, std::int32_t *, std::int32_t))    \
    ENTRY(std::int32_t, OAgent_ClientDelPort, (std::int32_t))                                                \
    ENTRY(void, OAgent_ClientRelease, ())

namespace sdk::binding {

/// A function of a library, whose address is to be found and stored.
struct EntryPoint
{
    const char *name; ///< of the operation, as in the interface
    void *pointer;    ///< address of the function pointer that receives the address of the function
};

// NOLINTBEGIN(bugprone-macro-parentheses): declarations and parameter lists cannot have parentheses.
#define SDK_ENTRY_POINTER(result, name, parameters) result(*name) parameters = nullptr;
#define SDK_ENTRY_POINT(result, name, parameters) {#name, &name},
// NOLINTEND(bugprone-macro-parentheses)
// A structure with a function pointer for each entry of a table, null until it is set. all() lists the
// entries; their pointers are valid as long as the structure is at the same place.
#define SDK_ENTRY_POINTS_OF(structure, TABLE)                                                                \
    struct structure                                                                                         \
    {                                                                                                        \
        TABLE(SDK_ENTRY_POINTER)                                                                             \
                                                                                                             \
        [[nodiscard]] std::vector<EntryPoint> all() { return {TABLE(SDK_ENTRY_POINT)}; }                     \
    };

SDK_ENTRY_POINTS_OF(NetworkEntryPoints, SDK_NETWORK_ENTRY_POINTS)
SDK_ENTRY_POINTS_OF(ConfigurationEntryPoints, SDK_CONFIGURATION_ENTRY_POINTS)
SDK_ENTRY_POINTS_OF(DecoderEntryPoints, SDK_DECODER_ENTRY_POINTS)
SDK_ENTRY_POINTS_OF(AgentEntryPoints, SDK_AGENT_ENTRY_POINTS)

#undef SDK_ENTRY_POINTS_OF
#undef SDK_ENTRY_POINT
#undef SDK_ENTRY_POINTER

} // namespace sdk::binding
