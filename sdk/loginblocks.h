// Blocks of the login to a device, and of the queries that follow it. Strings are 8-bit, in the local
// encoding. A string that fills its field does not end with a zero: use blockText() (blocktext.h) to read it.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace sdk {

/// The handle of a session with a device: above 0, or 0 for none.
using LLONG = std::int64_t;

/// The device information in the response to an accepted login.
struct LoginDeviceInformation
{
    std::array<char, 48> serialNumber;
    std::array<char, 32> model;
    std::int32_t loginKind;  ///< 0 direct, 1 through a tunnel of the port agent; the ONVIF library sets 0
    std::uint8_t deviceType; ///< one of DeviceTypeCode, others exist; 0 if unknown
    std::uint8_t reserved1;
    std::uint16_t channelCount; ///< number of video inputs
    std::array<std::uint8_t, 40> reserved;
};
static_assert(sizeof(LoginDeviceInformation) == 128);

/// The known values of LoginDeviceInformation::deviceType. Both numbers of video servers have the same
/// meaning.
enum class DeviceTypeCode : std::uint8_t
{
    SpeedDome = 19,
    Camera = 20,
    VideoServer = 29,
    VideoServerSecond = 30,
    Recorder = 31,
    TrafficCamera = 40,
    VideoWall = 41,
    ComputerRecorder = 42,
};

/// The connection of a session that NetLoginSecure opens. The demo and ONVIF libraries ignore it: the address
/// and the port determine the connection.
enum class LoginMode : std::int32_t
{
    Direct = 0,
    Tunnel = 19, ///< to 127.0.0.1 and a local port of the port agent, which forwards it to the device
};

/// Given to NetLoginSecure, which fails if this `size` or that of the output is wrong.
struct LoginSecureInput
{
    std::uint32_t size;           ///< sizeof(LoginSecureInput)
    std::int32_t port;            ///< service port of the device, or the local port of the tunnel
    std::array<char, 64> address; ///< IPv4 or IPv6; 127.0.0.1 for a tunnel
    std::array<char, 64> account;
    std::array<char, 64> password;
    LoginMode mode;
    std::array<std::uint8_t, 60> reserved;
};
static_assert(sizeof(LoginSecureInput) == 264);

/// Filled by NetLoginSecure.
struct LoginSecureOutput
{
    std::uint32_t size;            ///< sizeof(LoginSecureOutput), set by the caller
    std::uint32_t error;           ///< that of NetGetLastError, 0 on success; may be unset for a wrong size
    LoginDeviceInformation device; ///< valid after a successful login only
};
static_assert(sizeof(LoginSecureOutput) == 136);

/// Commands of NetQueryConfig, with the block of the response.
enum class QueryCommand : std::uint32_t
{
    DeviceAttributes = 1, ///< DeviceAttributes
    Time = 8,             ///< TimeRecord (systemblocks.h)
    NetworkServices = 91, ///< NetworkServices
};

/// Response to QueryCommand::DeviceAttributes. Counts are 0 if the device does not report them.
struct DeviceAttributes
{
    std::uint32_t size; ///< sizeof(DeviceAttributes), set by the library
    std::array<char, 48> serialNumber;
    std::array<char, 64> softwareVersion;
    std::array<char, 32> detailModel;
    std::array<char, 40> mac; ///< "02:1a:c5:00:40:17"; empty if the device does not report it
    std::int32_t videoInputs; ///< number
    std::int32_t alarmInputs; ///< number
    std::int32_t disks;       ///< number
    std::array<std::uint8_t, 12> reserved;
};
static_assert(sizeof(DeviceAttributes) == 212);

/// Response to QueryCommand::NetworkServices.
struct NetworkServices
{
    std::uint32_t size;       ///< sizeof(NetworkServices), set by the library
    std::int32_t webPort;     ///< of the web page without TLS, 0 if not reported
    std::int32_t servicePort; ///< the port for a login
    std::int32_t rtspPort;    ///< 0 if not reported
    std::array<std::uint8_t, 3024> reserved;
};
static_assert(sizeof(NetworkServices) == 3040);

} // namespace sdk
