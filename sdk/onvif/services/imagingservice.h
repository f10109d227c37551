// The imaging service (ONVIF Imaging): image, exposure and similar settings of a video source.
//
// A number without a stated unit is in the range that ImagingOptions has for it. Names of modes are truncated
// after 32 bytes, lists of modes after 16 entries.
#pragma once

#include "sdk/onvif/services/serviceresult.h"

#include <optional>
#include <string>
#include <vector>

namespace sdk::onvif {

/// The range of a setting.
struct ImagingRange
{
    double minimum = 0;
    double maximum = 0;

    /// False for equal or reversed ends, such as those of a range that the device does not report.
    [[nodiscard]] bool isUsable() const { return maximum > minimum; }
};

/// A mode by name ("OFF", "ON", "AUTO") with a level. The level is empty if the device does not report it,
/// and is then not sent.
struct ModeAndLevel
{
    std::string mode = {};
    std::optional<double> level = {};
};

/// An empty number is one that the source does not report, or that is not changed.
struct ExposureSettings
{
    std::string mode = {};                  ///< "AUTO" or "MANUAL"
    std::optional<double> minimumTime = {}; ///< microseconds, of AUTO
    std::optional<double> maximumTime = {}; ///< microseconds, of AUTO
    std::optional<double> minimumGain = {}; ///< dB, of AUTO
    std::optional<double> maximumGain = {}; ///< dB, of AUTO
    std::optional<double> time = {};        ///< microseconds, of MANUAL
    std::optional<double> gain = {};        ///< dB, of MANUAL
};

/// An empty gain is one that the source does not report, or that is not changed.
struct WhiteBalanceSettings
{
    std::string mode = {}; ///< "AUTO" or "MANUAL"
    std::optional<double> redGain = {};
    std::optional<double> blueGain = {};
};

/// The settings of a video source. An empty setting means, when read, that the source does not have it; when
/// written, that it is not changed.
struct ImagingSettings
{
    std::optional<double> brightness = {};
    std::optional<double> contrast = {};
    std::optional<double> saturation = {};
    std::optional<double> sharpness = {};
    std::optional<ModeAndLevel> backlightCompensation = {};
    std::optional<ModeAndLevel> wideDynamicRange = {};
    std::optional<ExposureSettings> exposure = {};
    std::optional<WhiteBalanceSettings> whiteBalance = {};
    std::string irCutFilter = {}; ///< "ON" (colour), "OFF" (black and white), "AUTO"; empty for none
    std::optional<ModeAndLevel> stabilisation = {};
    std::optional<ModeAndLevel> defogging = {}; ///< the level is 0 to 1
    std::optional<double> noiseReduction = {};  ///< 0 to 1
};

/// The options of a video source. An empty list of modes or an unusable range means that the source does not
/// have the setting.
struct ImagingOptions
{
    ImagingRange brightness;
    ImagingRange contrast;
    ImagingRange saturation;
    ImagingRange sharpness;
    std::vector<std::string> backlightModes = {};
    ImagingRange backlightLevel;
    std::vector<std::string> wideDynamicModes = {};
    ImagingRange wideDynamicLevel;
    std::vector<std::string> exposureModes = {};
    ImagingRange exposureTime;        ///< microseconds
    ImagingRange minimumExposureTime; ///< microseconds
    ImagingRange maximumExposureTime; ///< microseconds
    ImagingRange gain;                ///< dB
    ImagingRange minimumGain;         ///< dB
    ImagingRange maximumGain;         ///< dB
    std::vector<std::string> whiteBalanceModes = {};
    ImagingRange redGain;
    ImagingRange blueGain;
    std::vector<std::string> irCutFilterModes = {};
    std::vector<std::string> stabilisationModes = {};
    std::vector<std::string> defoggingModes = {};
    bool hasDefoggingLevel = false; ///< its range is 0 to 1
    bool hasNoiseReduction = false; ///< its range is 0 to 1
};

/// Operations of the imaging service, with the login of the client. `sourceToken` is the device's name of a
/// video source (MediaProfile::sourceToken). Each operation sends a request and blocks until the response has
/// arrived or `deadline` has passed. Errors are ConnectTimeout, ConnectFailed, NetworkFailure and the two of
/// certificates for the connection, WrongPassword, AccountLocked and SessionEnded for the login,
/// NotSupported, InvalidValue and Refused for the request, ProtocolMismatch for the response; SoapResponse
/// and SoapClient state the details. Used by one thread; several objects may share the client.
class ImagingService
{
public:
    using Deadline = SoapClient::Deadline;

    /// `client` has the login and sends the requests to `address`; both must outlive the object. `deadline`
    /// limits all operations together.
    ImagingService(SoapClient &client, const ServiceAddress &address, Deadline deadline);

    [[nodiscard]] ServiceResult<ImagingSettings> settings(const std::string &sourceToken);
    [[nodiscard]] ServiceResult<ImagingOptions> options(const std::string &sourceToken);

    /// Writes the non-empty settings. The device stores them persistently and keeps the others.
    [[nodiscard]] ServiceOutcome setSettings(const std::string &sourceToken, const ImagingSettings &settings);

private:
    SoapClient &m_client;
    const ServiceAddress &m_address;
    const Deadline m_deadline;
};

} // namespace sdk::onvif
