// The media services (ONVIF Media and Media 2): profiles of video sources, and the addresses of their
// streams.
#pragma once

#include "sdk/onvif/services/serviceresult.h"

#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace sdk::onvif {

/// The settings of a video encoder.
struct VideoEncoder
{
    std::string token = {};
    std::string encoding = {}; ///< "JPEG", "H264", "H265", "MPEG4"
    int width = 0;
    int height = 0;
    double frameRate = 0;     ///< frames per second, 0 if the device does not report it
    int bitRate = 0;          ///< kbit/s
    int keyInterval = 0;      ///< frames from one key frame to the next
    double quality = 0;       ///< in the range of VideoEncodingOptions
    std::string profile = {}; ///< "Baseline", "Main", "Extended", "High", ...
    bool constantBitRate = false;
};

/// The settings of an audio encoder.
struct AudioEncoder
{
    std::string token = {};
    std::string encoding =
        {};          ///< "G711", "G726", "AAC" of the older service; "PCMU", "G726", "MP4A-LATM" of the newer
    int bitRate = 0; ///< kbit/s
    int sampleRate = 0; ///< kHz
};

/// A media profile: the set of settings of a stream.
struct MediaProfile
{
    std::string token = {};
    std::string name = {};
    std::string sourceToken = {};         ///< of the video source, empty for a profile without video
    std::string sourceConfiguration = {}; ///< token of the source's settings
    std::string sourceName = {};          ///< name of these settings, editable by users
    std::optional<VideoEncoder> video = {};
    std::optional<AudioEncoder> audio = {};
};

/// The media service that is used for a device.
enum class MediaVersion
{
    First,
    Second, ///< has everything that the first has, and H.265
};

/// The options of a video encoder for one encoding. Numbers that the device does not report are 0.
struct VideoEncodingOptions
{
    std::string encoding = {};
    std::vector<std::pair<int, int>> sizes = {}; ///< width, height
    int minimumBitRate = 0;                      ///< kbit/s
    int maximumBitRate = 0;                      ///< kbit/s
    double maximumFrameRate = 0;                 ///< frames per second
    int minimumKeyInterval = 0;                  ///< frames
    int maximumKeyInterval = 0;                  ///< frames
    double minimumQuality = 0;
    double maximumQuality = 0;
    std::vector<std::string> profiles = {};
    bool offersConstantBitRate = false;
};

/// The options of an audio encoder for one encoding.
struct AudioEncodingOptions
{
    std::string encoding = {};
    std::vector<int> bitRates = {};    ///< kbit/s
    std::vector<int> sampleRates = {}; ///< kHz
};

/// Operations of a media service. Used by one thread; several objects may share the client.
class MediaService
{
public:
    using Deadline = SoapClient::Deadline;

    /// `client` and `address` must outlive the object.
    MediaService(SoapClient &client, const ServiceAddress &address, MediaVersion version, Deadline deadline);

    /// Reads the profiles; those after the first `maximumProfiles` are ignored.
    static constexpr std::size_t maximumProfiles = 2048;
    [[nodiscard]] ServiceResult<std::vector<MediaProfile>> profiles();

    /// The RTSP URL of a stream. The client chooses the transport of RTP: interleaved or UDP.
    [[nodiscard]] ServiceResult<std::string> streamUrl(const std::string &profileToken);
    [[nodiscard]] ServiceResult<std::string> snapshotUrl(const std::string &profileToken);

    /// Requests that the stream continues with a key frame.
    [[nodiscard]] ServiceOutcome requestKeyFrame(const std::string &profileToken);

    // Encoders. `profileToken` is the profile that the encoder belongs to.

    [[nodiscard]] ServiceResult<std::vector<VideoEncodingOptions>>
    videoOptions(const std::string &encoderToken, const std::string &profileToken);
    [[nodiscard]] ServiceResult<std::vector<AudioEncodingOptions>>
    audioOptions(const std::string &encoderToken, const std::string &profileToken);

    /// Reads the encoder's settings, changes those that differ from `encoder`, and writes them back; the
    /// device's other settings are kept.
    [[nodiscard]] ServiceOutcome setVideoEncoder(const VideoEncoder &encoder);
    [[nodiscard]] ServiceOutcome setAudioEncoder(const AudioEncoder &encoder);

    [[nodiscard]] ServiceOutcome setSourceName(const std::string &configurationToken,
                                               const std::string &name);

    [[nodiscard]] MediaVersion version() const { return m_version; }

private:
    [[nodiscard]] std::string_view uri() const;
    [[nodiscard]] SoapRequest request(std::string_view operation) const;
    [[nodiscard]] SoapResponse call(const SoapRequest &request);
    [[nodiscard]] MediaProfile readProfile(const XmlElement &element) const;
    [[nodiscard]] SoapResponse readConfiguration(std::string_view kind, const std::string &token,
                                                 XmlElement &configuration);
    [[nodiscard]] SoapResponse readOptions(std::string_view operation, const std::string &encoderToken,
                                           const std::string &profileToken);

    SoapClient &m_client;
    const ServiceAddress &m_address;
    const MediaVersion m_version;
    const Deadline m_deadline;
};

/// Reads the settings of an encoder from an element of either service.
[[nodiscard]] VideoEncoder readVideoEncoder(const XmlElement &element);
[[nodiscard]] AudioEncoder readAudioEncoder(const XmlElement &element);

} // namespace sdk::onvif
