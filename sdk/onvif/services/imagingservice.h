// The imaging service (ONVIF Imaging): picture, exposure and the like of a video source.
#pragma once

#include "sdk/onvif/services/serviceresult.h"

#include <optional>
#include <string>
#include <vector>

namespace sdk::onvif {

/// The numbers that a setting may have.
struct ImagingRange
{
    double minimum = 0;
    double maximum = 0;

    [[nodiscard]] bool isUsable() const { return maximum > minimum; }
};

/// A mode by name ("OFF", "ON", "AUTO", "MANUAL") with a level.
struct ModeAndLevel
{
    std::string mode = {};
    std::optional<double> level = {};
};

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

struct WhiteBalanceSettings
{
    std::string mode = {}; ///< "AUTO" or "MANUAL"
    std::optional<double> redGain = {};
    std::optional<double> blueGain = {};
};

/// What a source is set to. A setting that is not there is empty: when read, the source does not have it;
/// when written, it stays as it is.
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
    std::optional<ModeAndLevel> defogging = {};
    std::optional<double> noiseReduction = {}; ///< 0 to 1
};

/// What a source can be set to. An empty list of modes and an unusable range stand for what it does not have.
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
    ImagingRange exposureTime; ///< microseconds
    ImagingRange minimumExposureTime;
    ImagingRange maximumExposureTime;
    ImagingRange gain; ///< dB
    ImagingRange minimumGain;
    ImagingRange maximumGain;
    std::vector<std::string> whiteBalanceModes = {};
    ImagingRange redGain;
    ImagingRange blueGain;
    std::vector<std::string> irCutFilterModes = {};
    std::vector<std::string> stabilisationModes = {};
    std::vector<std::string> defoggingModes = {};
    bool hasDefoggingLevel = false;
    bool hasNoiseReduction = false;
};

/// Operations of the imaging service. Used by one thread; the client may serve several.
class ImagingService
{
public:
    using Deadline = SoapClient::Deadline;

    /// `client` and `address` must outlive the object.
    ImagingService(SoapClient &client, const ServiceAddress &address, Deadline deadline);

    [[nodiscard]] ServiceResult<ImagingSettings> settings(const std::string &sourceToken);
    [[nodiscard]] ServiceResult<ImagingOptions> options(const std::string &sourceToken);

    /// Writes the settings that are there; the device keeps the others, also after a restart.
    [[nodiscard]] ServiceOutcome setSettings(const std::string &sourceToken, const ImagingSettings &settings);

private:
    SoapClient &m_client;
    const ServiceAddress &m_address;
    const Deadline m_deadline;
};

} // namespace sdk::onvif
