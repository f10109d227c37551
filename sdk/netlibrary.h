// The network library's roles: everything that goes to a device over its own protocol.
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

/// How long NetLogin and NetLoginSecure block at most; they have no argument for it.
inline constexpr std::chrono::milliseconds longestLogin{8000};

/// How long NetStartRealStream blocks at most; it has no argument for it.
inline constexpr std::chrono::milliseconds longestStreamStart{5000};

/// What NetQueryCapabilities asks for.
enum class CapabilityQuery : std::uint32_t
{
    Encode = 2, ///< EncodeCapabilityInput, EncodeCapabilities
    Camera = 4, ///< CameraCapabilityInput, CameraCapabilities
};

/// Operations may be called from any thread, several at a time. A failed one leaves its error code for the
/// calling thread, to be fetched with NetGetLastError.
///
/// - One session serves several threads at the same time. A provider that can send only one request of a
///   session at a time lets the others wait, each within its own `wait`. The requests of one thread reach the
///   device in the order of their calls.
/// - NetLogout may be called while other operations of its session run. These end as if they had come first,
///   or fail; after they have ended, nothing uses the session any more.
/// - The operations of one stream, one upgrade or one local search are called by one thread at a time, those
///   of different handles by any.
/// - A blocked call ends before its `wait` by NetCancelCalls or NetLogout of its session, and by NetCleanup:
///   it fails then. A CallStop of the calling thread (sdk/callstop.h) ends NetModifyDeviceBySearch; the other
///   operations need not look at it. A local search ends by NetStopSearchDevices.
/// - A handler must not block: it delays what else its thread delivers. What must not be called from a
///   handler says so.
class NetLibrary
{
public:
    virtual ~NetLibrary() = default;

    /// Prepares the library; to be called once before any other operation. Returns false when it cannot work.
    virtual bool NetInit() = 0;

    /// Ends every search and blocked call and releases the library. After it has returned no handler runs any
    /// more, and every operation but NetInit fails.
    virtual void NetCleanup() = 0;

    /// Error code of the last failed operation of the calling thread, 0 when none has failed.
    [[nodiscard]] virtual std::uint32_t NetGetLastError() const = 0;

    /// What this library is. May be called before NetInit; sends nothing.
    virtual void NetGetProviderInformation(ProviderInformation &information) const = 0;

    /// Sets what decides about the certificates of devices; null for none: then no device is asked over TLS.
    /// To be called before requests are sent. A refused certificate ends a request with UnknownCertificate or
    /// ChangedCertificate, and neither account nor password has been sent.
    virtual void NetSetCertificateHandler(CertificateHandler handler, void *user) = 0;

    /// Starts a search of the local segment and returns at once. Answers reach `parameter.handler` on threads
    /// of the library until NetStopSearchDevices. `wait` bounds the sending of the request. Returns the
    /// handle of the search, 0 on failure.
    virtual std::int64_t NetStartSearchDevices(const SearchParameter &parameter,
                                               std::chrono::milliseconds wait) = 0;

    /// The second kind of local search, which devices answer that do not know the first.
    virtual std::int64_t NetStartSearchDevicesEx(const SearchParameterEx &parameter,
                                                 std::chrono::milliseconds wait) = 0;

    /// Asks each address of `request` and blocks until `wait` has passed or NetCleanup is called. Answers
    /// reach `handler` on threads of the library during the call, never after it. Returns false when the
    /// request is malformed (size, count) or could not be sent.
    virtual bool NetSearchDevicesByIPs(const SearchByAddressesRequest &request, SearchAnswerHandler handler,
                                       void *user, const char *localAddress,
                                       std::chrono::milliseconds wait) = 0;

    /// The same for the second kind of answer.
    virtual bool NetSearchDevicesByIPsEx(const SearchByAddressesRequest &request, SearchAnswerHandler handler,
                                         void *user, const char *localAddress,
                                         std::chrono::milliseconds wait) = 0;

    /// Stops one local search. After it has returned, the handler of that search runs no more. Must not be
    /// called from a handler. Returns false for a handle that is not a running search.
    virtual bool NetStopSearchDevices(std::int64_t searchHandle) = 0;

    /// Asks the one address of `request` (its count is 1) and blocks until it has answered or `wait` has
    /// passed or NetCleanup is called. Answers reach `handler` on a thread of the library during the call,
    /// never after it.
    virtual void NetSearchDeviceByIp(const SearchByAddressesRequest &request, SearchAnswerHandler handler,
                                     void *user, std::chrono::milliseconds wait) = 0;

    /// What the searches since NetInit, or since the local search that was started last when no other ran,
    /// have sent and received. False, with NotSupported, if the library keeps no account of it.
    virtual bool NetGetSearchReport(SearchReport &report) = 0;

    /// Opens a session and blocks until the device has answered, up to `longestLogin`. Returns its handle; a
    /// value below 1 is failure.
    virtual LLONG NetLogin(const char *address, std::int32_t port, const char *account, const char *password,
                           std::int32_t unused1, void *unused2, LoginDeviceInformation &device,
                           std::int32_t &error) = 0;

    /// The newer kind of login. Returns the handle of the session; a value below 1 is failure.
    virtual LLONG NetLoginSecure(const LoginSecureInput &input, LoginSecureOutput &output) = 0;

    /// Ends a session. Returns false for a handle that is no session.
    virtual bool NetLogout(LLONG loginHandle) = 0;

    /// Ends the calls of a session that run now: each fails, and the session can be used further. Streams and
    /// upgrades go on. Returns false for a handle that is no session.
    virtual bool NetCancelCalls(LLONG loginHandle) = 0;

    /// Whether the device still responds and accepts the session's login: one small request, which blocks up
    /// to `wait`. Otherwise false with the error: that of a device that is offline, or SessionEnded.
    virtual bool NetIsDeviceAlive(LLONG loginHandle, std::chrono::milliseconds wait) = 0;

    /// Reads a block of the device by command number into `buffer` of `bufferSize` bytes; `returnedSize` is
    /// set to the bytes that were filled, never more than `bufferSize`.
    virtual bool NetQueryConfig(LLONG loginHandle, QueryCommand command, std::int32_t channel, void *buffer,
                                std::uint32_t bufferSize, std::uint32_t &returnedSize,
                                std::chrono::milliseconds wait) = 0;

    /// Reads the configuration text `name` of a channel (-1 for the whole device) into `text` of `textSize`
    /// bytes, ended by a zero. A text that does not fit is a failure.
    virtual bool NetGetNewConfig(LLONG loginHandle, const char *name, std::int32_t channel, char *text,
                                 std::uint32_t textSize, std::int32_t &error,
                                 std::chrono::milliseconds wait) = 0;

    /// Asks what a device can do. `input` and `output` are the blocks of `query`, each with its size in it;
    /// the output is filled up to its size. Blocks until the device has answered, up to `wait`. Returns
    /// false, with the output unchanged, when the device refuses, is away, or `loginHandle` is no session.
    virtual bool NetQueryCapabilities(LLONG loginHandle, CapabilityQuery query, const void *input,
                                      void *output, std::chrono::milliseconds wait) = 0;

    /// Reads the block of an item by its number. `block` begins with its own size, and holds the stream or
    /// mode that is asked for where the item has one. Waits and fails as NetQueryCapabilities() does.
    virtual bool NetGetItem(LLONG loginHandle, std::uint32_t item, std::int32_t channel, void *block,
                            std::uint32_t blockSize, std::chrono::milliseconds wait) = 0;

    /// Gives a factory-new device its first account. `localAddress` is the address to send from, empty for
    /// the library's choice. Blocks up to `wait`. Unconfirmed if the device has taken the account and its
    /// protection by it cannot be proved; AddressInUse if another device answers.
    virtual bool NetInitDeviceAccount(const InitDeviceAccountInput &input, DeviceRequestOutput &output,
                                      std::chrono::milliseconds wait, const char *localAddress) = 0;

    /// Changes the addresses of a device that a search has found, and waits for it at the new one. Blocks up
    /// to `wait`, and longer for a device that has taken the address or has to restart for it. AddressInUse
    /// if another device answers at the present address or at the new one; Unconfirmed if nobody answers at
    /// the new one.
    ///
    /// A CallStop of the calling thread ends the call: with Cancelled, and nothing has changed, if that was
    /// before the address was sent. A later one ends the wait for the device, which fails as for a device
    /// that does not answer: its address may have changed.
    virtual bool NetModifyDeviceBySearch(const ModifyDeviceInput &input, DeviceRequestOutput &output,
                                         std::chrono::milliseconds wait) = 0;

    // Maintenance of a device. Each blocks until the device has answered, up to `wait`, and returns false
    // when the device refuses, is away, or `loginHandle` is no session.

    /// Writes the block of a setting: `blockSize` bytes of `block`. `channel` is -1 for the whole device.
    virtual bool NetSetDeviceSetting(LLONG loginHandle, DeviceSetting setting, std::int32_t channel,
                                     const void *block, std::uint32_t blockSize,
                                     std::chrono::milliseconds wait) = 0;

    /// Writes the block of an item by its number. `block` begins with its own size.
    virtual bool NetSetItem(LLONG loginHandle, std::uint32_t item, std::int32_t channel, const void *block,
                            std::uint32_t blockSize, std::chrono::milliseconds wait) = 0;

    /// Writes the configuration text `name`: `text` is `textSize` bytes, ended by a zero among them. A device
    /// takes what the text holds and leaves the rest as it was. `error` is set as NetGetLastError() is.
    virtual bool NetSetNewConfig(LLONG loginHandle, const char *name, std::int32_t channel, const char *text,
                                 std::uint32_t textSize, std::int32_t &error,
                                 std::chrono::milliseconds wait) = 0;

    /// Asks the device to reboot. It is away for a while then, and its sessions have ended.
    virtual bool NetRebootDevice(LLONG loginHandle, std::chrono::milliseconds wait) = 0;

    /// Asks the device to become as it left the factory: it reboots and waits for its first password.
    virtual bool NetResetSystem(LLONG loginHandle, const ResetSystemInput &input, ResetSystemOutput &output,
                                std::chrono::milliseconds wait) = 0;

    /// Changes the password of an account. The session goes on.
    virtual bool NetModifyPassword(LLONG loginHandle, const ModifyPasswordInput &input,
                                   std::chrono::milliseconds wait) = 0;

    // Live streams

    /// Asks for a live stream of a channel (from 0). `window` is where to show it: always 0. Blocks until the
    /// device has answered, up to `longestStreamStart`. Returns the handle of the stream, 0 when the device
    /// refuses, is away, or `loginHandle` is no session. A session that ends takes its streams along.
    virtual std::int64_t NetStartRealStream(LLONG loginHandle, std::int32_t channel, std::uintptr_t window,
                                            LiveStreamKind kind) = 0;

    /// Sets or, by null, removes what gets the stream's data, on a thread of the library, from the stream's
    /// beginning on when it is the first. After it has returned, the handler that was set before runs no
    /// more; so it must not be called from one. `flag` is 1 for the stream as the device sends it. Returns
    /// false for a handle that is no stream.
    virtual bool NetSetRealDataCallback(std::int64_t streamHandle, RealDataHandler handler, void *user,
                                        std::uint32_t flag) = 0;

    /// Reports to the device that its stream is watched from now on: the stream starts again with a key
    /// frame. `reserved` is 0.
    virtual bool NetStreamFollowUp(std::int64_t streamHandle, std::int32_t channel,
                                   std::uint32_t reserved) = 0;

    /// Ends a stream. Its handler runs no more after it has returned; so it must not be called from one.
    /// Returns false for a handle that is no stream.
    virtual bool NetStopRealStream(std::int64_t streamHandle) = 0;

    /// Asks which channels of the device have a camera. Waits and fails as NetQueryCapabilities() does.
    virtual bool NetQueryChannelStates(LLONG loginHandle, ChannelStates &states,
                                       std::chrono::milliseconds wait) = 0;

    // Firmware

    /// Sends the firmware file `fileName` (local 8-bit text) to a device and lets it write it. Blocks up to
    /// `wait` until the device says that it will take the file; all that follows is told to `handler`, which
    /// may be called before the return. Returns the handle of the upgrade, which NetStopUpgrade frees; 0 when
    /// the file cannot be read, when the device refuses or is away, or when `loginHandle` is no session. A
    /// session that ends takes its upgrades along: a file on its way is dropped, a device that is writing
    /// goes on unheard.
    virtual std::int64_t NetStartUpgrade(LLONG loginHandle, const char *fileName,
                                         UpgradeProgressHandler handler, void *user,
                                         std::chrono::milliseconds wait) = 0;

    /// Ends an upgrade and frees its handle: the device drops what it has of the file and stays as it was.
    /// While it is writing it cannot be stopped: false (NotSupported), and the upgrade goes on. After true
    /// the handler runs no more; so this must not be called from one. Returns false for a handle that is no
    /// upgrade.
    virtual bool NetStopUpgrade(std::int64_t upgradeHandle) = 0;
};

} // namespace sdk
