// The interface of the network library: searches, sessions, settings, live streams and upgrades of devices.
// Blocks are structs that callers pass to it; the included headers define them.
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

/// The queries of NetQueryCapabilities. The comments name the input and the output block.
enum class CapabilityQuery : std::uint32_t
{
    Encode = 2, ///< EncodeCapabilityInput, EncodeCapabilities
    Camera = 4, ///< CameraCapabilityInput, CameraCapabilities
};

/// Operations may be called from any thread, several at a time. A failed operation stores its error code for
/// the calling thread; NetGetLastError returns it. Channels are counted from 0. Addresses, names and accounts
/// are 8-bit strings in the local encoding, ended by a zero, and not null; they are copied. `user` is passed
/// to the handler, and not used otherwise.
///
/// - One session serves several threads at the same time. An implementation that can send only one request of
///   a session at a time makes the others wait, each up to its `wait`. The requests of one thread reach the
///   device in the order of their calls.
/// - NetLogout may be called while other operations of its session run. Each of these either completes or
///   fails. The session is not used after they have ended.
/// - The operations of one stream, one upgrade or one local search are called by one thread at a time. Those
///   of different handles may run at the same time.
/// - `wait` is the timeout of an operation. A call of a session also ends, and fails, by NetCancelCalls
///   (Cancelled) and by NetLogout (SessionEnded). NetCleanup ends every call. A CallStop of the calling
///   thread (sdk/callstop.h) ends NetModifyDeviceBySearch; the other operations may ignore it.
/// - A device may have applied a change although the call failed: the response may be lost, and the end of a
///   call does not take back a request that is already sent.
/// - A handler must not block: it delays the other deliveries of its thread. Operations that wait for running
///   handlers must not be called from a handler; their comments state it.
class NetLibrary
{
public:
    virtual ~NetLibrary() = default;

    /// Initialises the library. To be called before every other operation except NetGetProviderInformation
    /// and NetSetCertificateHandler, and again only after NetCleanup. Returns false on failure.
    virtual bool NetInit() = 0;

    /// Ends every search, blocked call, session, stream and upgrade, and releases the library. After the
    /// return no handler runs, and every operation that needs NetInit fails until it is called again. Must
    /// not be called from a handler.
    virtual void NetCleanup() = 0;

    /// The NetError, or another code, of the last failed operation of the calling thread; 0 if none has
    /// failed on it. A successful operation does not reset the code.
    [[nodiscard]] virtual std::uint32_t NetGetLastError() const = 0;

    /// Fills `information`. May be called before NetInit. Sends nothing.
    virtual void NetGetProviderInformation(ProviderInformation &information) const = 0;

    /// Sets the handler that decides about the certificates of devices. `user` is passed to it. With null,
    /// the default, every certificate is refused. To be called before requests are sent. A refused
    /// certificate ends a request with UnknownCertificate or ChangedCertificate, before the account or the
    /// password is sent. Requests without TLS do not call the handler.
    virtual void NetSetCertificateHandler(CertificateHandler handler, void *user) = 0;

    /// Starts a search of the local segment and returns immediately. The search ends with
    /// NetStopSearchDevices. Until then responses are passed to `parameter.handler` (not null): on threads of
    /// the library, and possibly on the calling thread before the return. A device may respond several times.
    /// `wait` is the timeout for sending the request. Returns the handle of the search, 0 on failure.
    virtual std::int64_t NetStartSearchDevices(const SearchParameter &parameter,
                                               std::chrono::milliseconds wait) = 0;

    /// The same with the second kind of search, for devices that do not respond to the first kind. A device
    /// that supports both kinds responds to each.
    virtual std::int64_t NetStartSearchDevicesEx(const SearchParameterEx &parameter,
                                                 std::chrono::milliseconds wait) = 0;

    /// Sends a search to each address of `request` and blocks until `wait` has passed, NetCleanup is called
    /// or no further response is expected. Responses are passed to `handler` (not null) on threads of the
    /// library during the call, never after it. `localAddress` is the source address, "0.0.0.0" for any.
    /// Returns true also without a response. Returns false when the request is malformed (size, count,
    /// handler) or could not be sent.
    virtual bool NetSearchDevicesByIPs(const SearchByAddressesRequest &request, SearchResponseHandler handler,
                                       void *user, const char *localAddress,
                                       std::chrono::milliseconds wait) = 0;

    /// The same with the second kind of search. A library with one kind of search returns true immediately,
    /// without responses.
    virtual bool NetSearchDevicesByIPsEx(const SearchByAddressesRequest &request,
                                         SearchResponseHandler handler, void *user, const char *localAddress,
                                         std::chrono::milliseconds wait) = 0;

    /// Stops one local search. Its handler does not run after the return. Must not be called from a handler.
    /// Returns false for a handle that is not a running search.
    virtual bool NetStopSearchDevices(std::int64_t searchHandle) = 0;

    /// Sends a search to the one address of `request` and blocks until a response has arrived or none is
    /// expected any more, `wait` has passed or NetCleanup is called. Fails if the count of `request` is
    /// not 1. Responses are passed to `handler` (not null) on a thread of the library during the call, never
    /// after it. A failure is visible only as a missing response, and in NetGetLastError.
    virtual void NetSearchDeviceByIp(const SearchByAddressesRequest &request, SearchResponseHandler handler,
                                     void *user, std::chrono::milliseconds wait) = 0;

    /// Fills `report`, whose size is set, with the counters of all searches since their last reset. NetInit
    /// resets them, and so does a local search that starts while no other local search runs. Returns false,
    /// with NotSupported, if the library has no counters.
    virtual bool NetGetSearchReport(SearchReport &report) = 0;

    /// Logs in to the device at `address` and service port `port`: opens a session and blocks until the
    /// device has responded, up to `longestLogin`. Returns the handle of the session and fills `device`;
    /// returns a value below 1 on failure, and `device` is meaningless then. `error` is set to the code of
    /// NetGetLastError(), 0 on success. `unused1` is 0, `unused2` is null. The session lasts until NetLogout
    /// or NetCleanup, also while its device is offline.
    virtual LLONG NetLogin(const char *address, std::int32_t port, const char *account, const char *password,
                           std::int32_t unused1, void *unused2, LoginDeviceInformation &device,
                           std::int32_t &error) = 0;

    /// The same with the newer kind of login, which may report other error codes for a wrong password and an
    /// account with a session (neterror.h).
    virtual LLONG NetLoginSecure(const LoginSecureInput &input, LoginSecureOutput &output) = 0;

    /// Ends a session with its calls, streams and upgrades; NetStartUpgrade states the exception of a device
    /// that is writing. The handlers of its streams and upgrades do not run after the return, so this must
    /// not be called from such a handler. Does not wait for the device. Returns false for an invalid handle.
    virtual bool NetLogout(LLONG loginHandle) = 0;

    /// Ends the running calls of a session on all threads: each fails with Cancelled. The session remains
    /// usable, and later calls are not affected. Streams and upgrades continue. Returns false for an invalid
    /// handle.
    virtual bool NetCancelCalls(LLONG loginHandle) = 0;

    /// True if the device responds and still accepts the login of the session. Sends one small request and
    /// blocks up to `wait`. On false, the error is SessionEnded if the device refuses the login or the handle
    /// is invalid, AccountLocked for a locked account, NetworkFailure if the device has rebooted since the
    /// login, Cancelled after NetCancelCalls, otherwise that of a device without a response.
    virtual bool NetIsDeviceAlive(LLONG loginHandle, std::chrono::milliseconds wait) = 0;

    /// Reads the block of `command` (QueryCommand lists the blocks) from the device into `buffer` of
    /// `bufferSize` bytes. `returnedSize` is set to the number of filled bytes, 0 on failure. Fails, with the
    /// buffer unchanged, for a block that does not fit. `channel` is not used. Blocks and fails otherwise as
    /// NetQueryCapabilities().
    virtual bool NetQueryConfig(LLONG loginHandle, QueryCommand command, std::int32_t channel, void *buffer,
                                std::uint32_t bufferSize, std::uint32_t &returnedSize,
                                std::chrono::milliseconds wait) = 0;

    /// Reads the configuration text `name` (JSON, configlibrary.h) of a channel, -1 for the device itself,
    /// into `text` of `textSize` bytes, ended by a zero. Fails for a text that does not fit with its zero.
    /// `error` is set as by NetLogin(). Blocks and fails otherwise as NetQueryCapabilities().
    virtual bool NetGetNewConfig(LLONG loginHandle, const char *name, std::int32_t channel, char *text,
                                 std::uint32_t textSize, std::int32_t &error,
                                 std::chrono::milliseconds wait) = 0;

    /// Queries the capabilities of a device. `input` and `output` are the blocks of `query`, each with its
    /// size field set. Blocks until the device has responded, up to `wait`. Returns false, with the output
    /// unchanged, when the device refuses or is offline, the call is ended, or `loginHandle` is invalid.
    virtual bool NetQueryCapabilities(LLONG loginHandle, CapabilityQuery query, const void *input,
                                      void *output, std::chrono::milliseconds wait) = 0;

    /// Reads the block of an item (EncodeItem, CameraItem) by its number. The caller sets the size field of
    /// `block`, and its stream or mode, if the item has one; `blockSize` is the same size. Blocks and fails
    /// as NetQueryCapabilities().
    virtual bool NetGetItem(LLONG loginHandle, std::uint32_t item, std::int32_t channel, void *block,
                            std::uint32_t blockSize, std::chrono::milliseconds wait) = 0;

    /// Initialises a factory-new device with its first account. `localAddress` is the source address, empty
    /// for any. Blocks up to `wait`. Returns false on failure. The error is NotSupported if the device is
    /// initialised already, and AddressInUse if another device responds. The error is Unconfirmed if the
    /// device has accepted the account, but the library could not verify that the device now requires a
    /// login, and may be Refused if the device requires none.
    virtual bool NetInitDeviceAccount(const InitDeviceAccountInput &input, DeviceRequestOutput &output,
                                      std::chrono::milliseconds wait, const char *localAddress) = 0;

    /// Changes the addresses of a device that a search has found, and waits until it responds at the new one;
    /// with DHCP the call ends when the device has accepted the request. `wait` limits the requests. The
    /// subsequent wait for the device is limited by the library, to about a minute, or two if it must reboot.
    /// Returns false on failure. The error is AddressInUse if another device responds at the present or at
    /// the new address. The error is Unconfirmed if the device has accepted the address, but no device
    /// responds at it.
    ///
    /// A CallStop of the calling thread ends the call. Before the address is sent, the error is Cancelled and
    /// nothing has changed. Afterwards the error is Unconfirmed, or that of a device that does not respond:
    /// its address may have changed.
    virtual bool NetModifyDeviceBySearch(const ModifyDeviceInput &input, DeviceRequestOutput &output,
                                         std::chrono::milliseconds wait) = 0;

    // Maintenance of a device. Each operation blocks until the device has responded, up to `wait`. It returns
    // false when the device refuses or is offline, the call is ended, or `loginHandle` is invalid.

    /// Writes the block of a setting of the device: `blockSize` bytes of `block`. `channel` is -1.
    virtual bool NetSetDeviceSetting(LLONG loginHandle, DeviceSetting setting, std::int32_t channel,
                                     const void *block, std::uint32_t blockSize,
                                     std::chrono::milliseconds wait) = 0;

    /// Writes the block of an item (EncodeItem, CameraItem, videoStandardItem) by its number. The caller sets
    /// the size field of `block`, and its stream or mode, if the item has one; `blockSize` is the same size.
    virtual bool NetSetItem(LLONG loginHandle, std::uint32_t item, std::int32_t channel, const void *block,
                            std::uint32_t blockSize, std::chrono::milliseconds wait) = 0;

    /// Writes the configuration text `name` of a channel, -1 for the device itself. `text` has `textSize`
    /// bytes including a terminating zero. Callers write all keys of the configuration: depending on the
    /// implementation, a key that the text lacks keeps its value at the device or counts as 0. `error` is set
    /// as by NetLogin().
    virtual bool NetSetNewConfig(LLONG loginHandle, const char *name, std::int32_t channel, const char *text,
                                 std::uint32_t textSize, std::int32_t &error,
                                 std::chrono::milliseconds wait) = 0;

    /// Reboots the device, which is offline meanwhile. It no longer accepts its sessions: a new login is
    /// required after the reboot, and the old sessions must still be closed by NetLogout.
    virtual bool NetRebootDevice(LLONG loginHandle, std::chrono::milliseconds wait) = 0;

    /// Resets the device to factory settings. It reboots, as by NetRebootDevice, and is uninitialised
    /// afterwards, if it supports initialisation.
    virtual bool NetResetSystem(LLONG loginHandle, const ResetSystemInput &input, ResetSystemOutput &output,
                                std::chrono::milliseconds wait) = 0;

    /// Changes the password of an account. Fails for an unknown account, and for a wrong old password; that
    /// of another account than the session's need not be checked. If it is the account of the session, the
    /// session continues with the new password. Other sessions of the account may end.
    virtual bool NetModifyPassword(LLONG loginHandle, const ModifyPasswordInput &input,
                                   std::chrono::milliseconds wait) = 0;

    // Live streams

    /// Starts a live stream of a channel. `window` is always 0. Blocks until the device has responded, up to
    /// `longestStreamStart`. Returns the handle of the stream, which NetStopRealStream frees. Returns 0 when
    /// the device refuses, is offline, or `loginHandle` is invalid. NetLogout ends the streams of its
    /// session.
    virtual std::int64_t NetStartRealStream(LLONG loginHandle, std::int32_t channel, std::uintptr_t window,
                                            LiveStreamKind kind) = 0;

    /// Sets the handler of the stream's data; null removes it. The handler runs on a thread of the library,
    /// and possibly on the calling thread before the return, with data or an end that were kept for it. The
    /// first handler receives the stream from a header on. The previous handler does not run after the
    /// return, so this must not be called from a handler. `flag` is always 1. Returns false for an invalid
    /// handle.
    virtual bool NetSetRealDataCallback(std::int64_t streamHandle, RealDataHandler handler, void *user,
                                        std::uint32_t flag) = 0;

    /// Reports to the device that its stream is displayed from now on, and asks it for a key frame. The
    /// stream then continues with a key frame, or starts again with a header and a key frame. Does not wait
    /// for it. `channel` is that of the stream, `reserved` is 0. Returns false for an invalid handle; an
    /// implementation may also refuse another channel.
    virtual bool NetStreamFollowUp(std::int64_t streamHandle, std::int32_t channel,
                                   std::uint32_t reserved) = 0;

    /// Ends a stream and frees its handle, also after RealDataType::End. Its handler does not run after the
    /// return, so this must not be called from a handler. Returns false for an invalid handle.
    virtual bool NetStopRealStream(std::int64_t streamHandle) = 0;

    /// Fills `states`, whose size is set, with every channel of the device and whether it has a camera.
    /// Blocks and fails as NetQueryCapabilities().
    virtual bool NetQueryChannelStates(LLONG loginHandle, ChannelStates &states,
                                       std::chrono::milliseconds wait) = 0;

    // Firmware

    /// Starts an upgrade of a device with the firmware file `fileName` (local 8-bit text). Blocks up to
    /// `wait` until the device accepts the transfer. Further progress is reported to `handler` (not null),
    /// which may be called before the return. Returns the handle of the upgrade, which NetStopUpgrade frees,
    /// also after its end. Returns 0 when the file cannot be read, when the device refuses or is offline, or
    /// when `loginHandle` is invalid. NetLogout ends the upgrades of its session: a transfer is cancelled; a
    /// device that is writing continues without reports.
    virtual std::int64_t NetStartUpgrade(LLONG loginHandle, const char *fileName,
                                         UpgradeProgressHandler handler, void *user,
                                         std::chrono::milliseconds wait) = 0;

    /// Cancels an upgrade and frees its handle: the device discards the received data and keeps its firmware.
    /// After Done or Failed it only frees the handle. While the device is writing, the call fails with
    /// NotSupported: the upgrade continues and the handle stays valid. After a successful call the handler
    /// does not run, so this must not be called from a handler. Returns false for an invalid handle.
    virtual bool NetStopUpgrade(std::int64_t upgradeHandle) = 0;
};

} // namespace sdk
