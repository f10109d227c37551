// The interface of the network library: all access to devices over their protocol.
#pragma once

#include "sdk/camerablocks.h"
#include "sdk/certificateblocks.h"
#include "sdk/devicerequestblocks.h"
#include "sdk/encodeblocks.h"
#include "sdk/loginblocks.h"
#include "sdk/neterror.h"
#include "sdk/providerblocks.h"
#include "sdk/searchblocks.h"
#include "sdk/streamblocks.h"
#include "sdk/systemblocks.h"
#include "sdk/upgradeblocks.h"

#include <chrono>
#include <cstdint>

namespace sdk {

struct SearchReport;

/// The timeout of NetLogin and NetLoginSecure, which have no argument for it.
inline constexpr std::chrono::milliseconds longestLogin{8000};

/// The timeout of NetStartRealStream, which has no argument for it.
inline constexpr std::chrono::milliseconds longestStreamStart{5000};

/// The queries of NetQueryCapabilities, with their input and output blocks.
enum class CapabilityQuery : std::uint32_t
{
    Encode = 2, ///< EncodeCapabilityInput, EncodeCapabilities
    Camera = 4, ///< CameraCapabilityInput, CameraCapabilities
};

/// Operations may be called from any thread, several at a time. A failed one stores its error code for the
/// calling thread; NetGetLastError returns it.
///
/// - One session serves several threads at the same time. An implementation that can send only one request of
///   a session at a time makes the others wait, each up to its `wait`. The requests of one thread reach the
///   device in the order of their calls.
/// - NetLogout may be called while other operations of its session run. Each of these either completes or
///   fails. The session is not used after they have ended.
/// - The operations of one stream, one upgrade or one local search are called by one thread at a time. Those
///   of different handles may run at the same time.
/// - A blocked call ends before its `wait` by NetCancelCalls or NetLogout of its session, and by NetCleanup:
///   it fails then. A CallStop of the calling thread (sdk/callstop.h) ends NetModifyDeviceBySearch; the other
///   operations may ignore it. A local search ends by NetStopSearchDevices.
/// - A handler must not block: it delays the other deliveries of its thread. Operations that must not be
///   called from a handler say so.
class NetLibrary
{
public:
    virtual ~NetLibrary() = default;

    /// Initialises the library. To be called once, before any other operation. Returns false on failure.
    virtual bool NetInit() = 0;

    /// Ends every search and blocked call and releases the library. After the return no handler runs, and
    /// every operation except NetInit fails.
    virtual void NetCleanup() = 0;

    /// Error code of the last failed operation of the calling thread, 0 if none has failed.
    [[nodiscard]] virtual std::uint32_t NetGetLastError() const = 0;

    /// Fills `information`. May be called before NetInit; sends nothing.
    virtual void NetGetProviderInformation(ProviderInformation &information) const = 0;

    /// Sets the handler that decides about the certificates of devices. With null, the default, no device is
    /// accessed over TLS. To be called before requests are sent. A refused certificate ends a request with
    /// UnknownCertificate or ChangedCertificate, before the account or the password is sent.
    virtual void NetSetCertificateHandler(CertificateHandler handler, void *user) = 0;

    /// Starts a search of the local segment and returns immediately. Responses are passed to
    /// `parameter.handler` until NetStopSearchDevices: on threads of the library, and possibly on the calling
    /// thread before the return. `wait` is the timeout for sending the request. Returns the handle of the
    /// search, 0 on failure.
    virtual std::int64_t NetStartSearchDevices(const SearchParameter &parameter,
                                               std::chrono::milliseconds wait) = 0;

    /// The second kind of local search, for devices that do not support the first.
    virtual std::int64_t NetStartSearchDevicesEx(const SearchParameterEx &parameter,
                                                 std::chrono::milliseconds wait) = 0;

    /// Sends a search to each address of `request` and blocks until `wait` has passed, NetCleanup is called
    /// or no further response is expected. Responses are passed to `handler` on threads of the library during
    /// the call, never after it. `localAddress` is the source address, "0.0.0.0" for any. Returns false when
    /// the request is malformed (size, count) or could not be sent.
    virtual bool NetSearchDevicesByIPs(const SearchByAddressesRequest &request, SearchResponseHandler handler,
                                       void *user, const char *localAddress,
                                       std::chrono::milliseconds wait) = 0;

    /// The same with the second kind of search. A library with one kind of search returns immediately,
    /// without responses.
    virtual bool NetSearchDevicesByIPsEx(const SearchByAddressesRequest &request,
                                         SearchResponseHandler handler, void *user, const char *localAddress,
                                         std::chrono::milliseconds wait) = 0;

    /// Stops one local search. Its handler does not run after the return. Must not be called from a handler.
    /// Returns false for a handle that is not a running search.
    virtual bool NetStopSearchDevices(std::int64_t searchHandle) = 0;

    /// Sends a search to the one address of `request` (its count is 1) and blocks until a response has
    /// arrived, `wait` has passed or NetCleanup is called. Responses are passed to `handler` on a thread of
    /// the library during the call, never after it.
    virtual void NetSearchDeviceByIp(const SearchByAddressesRequest &request, SearchResponseHandler handler,
                                     void *user, std::chrono::milliseconds wait) = 0;

    /// Fills `report` with the counters of the searches. They are reset by NetInit, and by a local search
    /// that starts while no other one runs. Returns false, with NotSupported, if the library has no counters.
    virtual bool NetGetSearchReport(SearchReport &report) = 0;

    /// Opens a session and blocks until the device has responded, up to `longestLogin`. Returns its handle
    /// and fills `device`; returns a value below 1 on failure. `error` is set to the code of
    /// NetGetLastError(), 0 on success. `unused1` is 0, `unused2` is null.
    virtual LLONG NetLogin(const char *address, std::int32_t port, const char *account, const char *password,
                           std::int32_t unused1, void *unused2, LoginDeviceInformation &device,
                           std::int32_t &error) = 0;

    /// The newer kind of login, also up to `longestLogin`. Returns the handle of the session; a value below 1
    /// on failure.
    virtual LLONG NetLoginSecure(const LoginSecureInput &input, LoginSecureOutput &output) = 0;

    /// Ends a session. Returns false for an invalid handle.
    virtual bool NetLogout(LLONG loginHandle) = 0;

    /// Ends the running calls of a session: each fails, and the session remains usable. Streams and upgrades
    /// continue. Returns false for an invalid handle.
    virtual bool NetCancelCalls(LLONG loginHandle) = 0;

    /// True if the device responds and still accepts the login of the session. Sends one small request and
    /// blocks up to `wait`. On false, the error is that of an offline device, or SessionEnded.
    virtual bool NetIsDeviceAlive(LLONG loginHandle, std::chrono::milliseconds wait) = 0;

    /// Reads a block of the device by command number into `buffer` of `bufferSize` bytes; `returnedSize` is
    /// set to the number of filled bytes, 0 on failure. Fails for a block that does not fit. `channel` is not
    /// used. Blocks and fails otherwise as NetQueryCapabilities().
    virtual bool NetQueryConfig(LLONG loginHandle, QueryCommand command, std::int32_t channel, void *buffer,
                                std::uint32_t bufferSize, std::uint32_t &returnedSize,
                                std::chrono::milliseconds wait) = 0;

    /// Reads the configuration text `name` of a channel (-1 for the device itself) into `text` of `textSize`
    /// bytes, ended by a zero. Fails for a text that does not fit. `error` is set as by NetLogin(). Blocks
    /// and fails otherwise as NetQueryCapabilities().
    virtual bool NetGetNewConfig(LLONG loginHandle, const char *name, std::int32_t channel, char *text,
                                 std::uint32_t textSize, std::int32_t &error,
                                 std::chrono::milliseconds wait) = 0;

    /// Queries the capabilities of a device. `input` and `output` are the blocks of `query`, each with its
    /// size field set; the output is filled up to its size. Blocks until the device has responded, up to
    /// `wait`. Returns false, with the output unchanged, when the device refuses, is offline, or
    /// `loginHandle` is invalid.
    virtual bool NetQueryCapabilities(LLONG loginHandle, CapabilityQuery query, const void *input,
                                      void *output, std::chrono::milliseconds wait) = 0;

    /// Reads the block of an item by its number. `block` starts with its size and contains the requested
    /// stream or mode, if the item has one. Blocks and fails as NetQueryCapabilities().
    virtual bool NetGetItem(LLONG loginHandle, std::uint32_t item, std::int32_t channel, void *block,
                            std::uint32_t blockSize, std::chrono::milliseconds wait) = 0;

    /// Initialises a factory-new device with its first account. `localAddress` is the source address, empty
    /// for any. Blocks up to `wait`. The error is Unconfirmed if the device has accepted the account but it
    /// could not be verified that the device now requires a login, AddressInUse if another device responds.
    virtual bool NetInitDeviceAccount(const InitDeviceAccountInput &input, DeviceRequestOutput &output,
                                      std::chrono::milliseconds wait, const char *localAddress) = 0;

    /// Changes the addresses of a device that a search has found, and waits until it responds at the new one.
    /// Blocks up to `wait`, and longer after the device has accepted the address, or when it must restart.
    /// The error is AddressInUse if another device responds at the present or at the new address, Unconfirmed
    /// if no device responds at the new one.
    ///
    /// A CallStop of the calling thread ends the call. Before the address is sent, the error is Cancelled and
    /// nothing has changed. Afterwards the error is Unconfirmed, or that of a device that does not respond:
    /// its address may have changed.
    virtual bool NetModifyDeviceBySearch(const ModifyDeviceInput &input, DeviceRequestOutput &output,
                                         std::chrono::milliseconds wait) = 0;

    // Maintenance of a device. Each blocks until the device has responded, up to `wait`, and returns false
    // when the device refuses, is offline, or `loginHandle` is invalid.

    /// Writes the block of a setting: `blockSize` bytes of `block`. `channel` is -1 for the device itself.
    virtual bool NetSetDeviceSetting(LLONG loginHandle, DeviceSetting setting, std::int32_t channel,
                                     const void *block, std::uint32_t blockSize,
                                     std::chrono::milliseconds wait) = 0;

    /// Writes the block of an item by its number. `block` starts with its size.
    virtual bool NetSetItem(LLONG loginHandle, std::uint32_t item, std::int32_t channel, const void *block,
                            std::uint32_t blockSize, std::chrono::milliseconds wait) = 0;

    /// Writes the configuration text `name`: `text` has `textSize` bytes including a terminating zero. The
    /// device applies the keys of the text and keeps its other settings. `error` is set as by NetLogin().
    virtual bool NetSetNewConfig(LLONG loginHandle, const char *name, std::int32_t channel, const char *text,
                                 std::uint32_t textSize, std::int32_t &error,
                                 std::chrono::milliseconds wait) = 0;

    /// Reboots the device. Its sessions end, and it is offline during the reboot.
    virtual bool NetRebootDevice(LLONG loginHandle, std::chrono::milliseconds wait) = 0;

    /// Resets the device to factory settings. It reboots and is uninitialised afterwards.
    virtual bool NetResetSystem(LLONG loginHandle, const ResetSystemInput &input, ResetSystemOutput &output,
                                std::chrono::milliseconds wait) = 0;

    /// Changes the password of an account. The session continues.
    virtual bool NetModifyPassword(LLONG loginHandle, const ModifyPasswordInput &input,
                                   std::chrono::milliseconds wait) = 0;

    // Live streams

    /// Starts a live stream of a channel (from 0). `window` is always 0. Blocks until the device has
    /// responded, up to `longestStreamStart`. Returns the handle of the stream, 0 when the device refuses, is
    /// offline, or `loginHandle` is invalid. The streams of a session end with it.
    virtual std::int64_t NetStartRealStream(LLONG loginHandle, std::int32_t channel, std::uintptr_t window,
                                            LiveStreamKind kind) = 0;

    /// Sets the handler of the stream's data; null removes it. It runs on a thread of the library. The first
    /// handler receives the stream from its start. The previous handler does not run after the return, so
    /// this must not be called from a handler. `flag` is 1 for the stream as the device sends it. Returns
    /// false for an invalid handle.
    virtual bool NetSetRealDataCallback(std::int64_t streamHandle, RealDataHandler handler, void *user,
                                        std::uint32_t flag) = 0;

    /// Reports to the device that its stream is displayed from now on: the stream starts again with a key
    /// frame. `channel` is that of the stream, `reserved` is 0. Returns false for an invalid handle.
    virtual bool NetStreamFollowUp(std::int64_t streamHandle, std::int32_t channel,
                                   std::uint32_t reserved) = 0;

    /// Ends a stream. Its handler does not run after the return, so this must not be called from a handler.
    /// Returns false for an invalid handle.
    virtual bool NetStopRealStream(std::int64_t streamHandle) = 0;

    /// Fills `states`, whose size is set, with the channels of the device that have a camera, and those that
    /// have none. Blocks and fails as NetQueryCapabilities().
    virtual bool NetQueryChannelStates(LLONG loginHandle, ChannelStates &states,
                                       std::chrono::milliseconds wait) = 0;

    // Firmware

    /// Starts an upgrade of a device with the firmware file `fileName` (local 8-bit text). Blocks up to
    /// `wait` until the device accepts the transfer. Further progress is reported to `handler`, which may be
    /// called before the return. Returns the handle of the upgrade, which NetStopUpgrade frees; 0 when the
    /// file cannot be read, when the device refuses or is offline, or when `loginHandle` is invalid. The
    /// upgrades of a session end with it: a transfer is cancelled; a device that is writing continues without
    /// reports.
    virtual std::int64_t NetStartUpgrade(LLONG loginHandle, const char *fileName,
                                         UpgradeProgressHandler handler, void *user,
                                         std::chrono::milliseconds wait) = 0;

    /// Cancels an upgrade and frees its handle: the device discards the received data and keeps its firmware.
    /// While the device is writing, the upgrade continues and the call fails with NotSupported. After a
    /// successful call the handler does not run, so this must not be called from a handler. Returns false for
    /// an invalid handle.
    virtual bool NetStopUpgrade(std::int64_t upgradeHandle) = 0;
};

} // namespace sdk
