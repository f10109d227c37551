// The media services (ONVIF Media and Media 2): profiles of video sources, and the addresses of their
// streams. "The older service" is Media, "the newer service" is Media 2. A token is the identifier that a
// device assigns to an object. Strings of profiles are truncated after 256 bytes, URLs after 1024, lists of
// options after 64 entries. Numbers are limited to 0 to 1,000,000.
#pragma once

#include "sdk/onvif/services/serviceresult.h"

#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace sdk::onvif {

/// The settings of a video encoder. A number or string that the device does not report is 0 or empty.
struct VideoEncoder
{
    std::string token = {};
    /// As the device names it: "JPEG", "H264" and "MPEG4" in the older service; "JPEG", "H264", "H265",
    /// "MPV4-ES" and others in the newer one.
    std::string encoding = {};
    int width = 0;
    int height = 0;
    double frameRate = 0;         ///< frames per second
    int bitRate = 0;              ///< kbit/s
    int keyInterval = 0;          ///< frames from one key frame to the next
    double quality = 0;           ///< in the range of VideoEncodingOptions
    std::string profile = {};     ///< of the codec: "Baseline", "Main", "Extended", "High", ...
    bool constantBitRate = false; ///< always false in the older service
};

/// The settings of an audio encoder. A number or string that the device does not report is 0 or empty.
struct AudioEncoder
{
    std::string token = {};
    /// As the device names it: "G711", "G726" and "AAC" in the older service; "PCMU", "PCMA", "G726",
    /// "MP4A-LATM" and others in the newer one.
    std::string encoding = {};
    int bitRate = 0;    ///< kbit/s
    int sampleRate = 0; ///< kHz
};

/// A media profile: the set of settings of a stream.
struct MediaProfile
{
    std::string token = {};
    std::string name = {};
    std::string sourceToken = {};           ///< of the video source, empty for a profile without video
    std::string sourceConfiguration = {};   ///< token of the source's settings
    std::string sourceName = {};            ///< name of these settings, editable by users
    std::optional<VideoEncoder> video = {}; ///< nothing for a profile without a video encoder
    std::optional<AudioEncoder> audio = {}; ///< nothing for a profile without sound
};

/// The media service that is used for a device.
enum class MediaVersion
{
    First,  ///< the older service
    Second, ///< the newer service, with H.265
};

/// The options of a video encoder for one encoding. Numbers that the device does not report are 0.
struct VideoEncodingOptions
{
    std::string encoding = {};                   ///< as VideoEncoder::encoding
    std::vector<std::pair<int, int>> sizes = {}; ///< width, height
    int minimumBitRate = 0;                      ///< kbit/s
    int maximumBitRate = 0;                      ///< kbit/s
    double maximumFrameRate = 0;                 ///< frames per second
    int minimumKeyInterval = 0;                  ///< frames
    int maximumKeyInterval = 0;                  ///< frames
    double minimumQuality = 0;
    double maximumQuality = 0;
    std::vector<std::string> profiles = {}; ///< as VideoEncoder::profile
    bool offersConstantBitRate = false;     ///< always false in the older service
};

/// The options of an audio encoder for one encoding.
struct AudioEncodingOptions
{
    std::string encoding = {};         ///< as AudioEncoder::encoding
    std::vector<int> bitRates = {};    ///< kbit/s
    std::vector<int> sampleRates = {}; ///< kHz
};

/// Operations of a media service, with the login of the client. Each sends a request and blocks until the
/// response has arrived or `deadline` has passed. Errors are ConnectTimeout, ConnectFailed, NetworkFailure
/// and the two of certificates for the connection, WrongPassword, AccountLocked and SessionEnded for the
/// login, NotSupported, InvalidValue and Refused for the request, ProtocolMismatch for the response;
/// SoapResponse and SoapClient state the details. Used by one thread; several objects may share the client.
class MediaService
{
public:
    using Deadline = SoapClient::Deadline;

    /// `client` has the login and sends the requests to `address`, the service of that `version`; both must
    /// outlive the object. `deadline` limits all operations together.
    MediaService(SoapClient &client, const ServiceAddress &address, MediaVersion version, Deadline deadline);

    /// Reads all profiles of the device; those after the first `maximumProfiles` are ignored.
    static constexpr std::size_t maximumProfiles = 2048;
    [[nodiscard]] ServiceResult<std::vector<MediaProfile>> profiles();

    /// The RTSP URL of the stream of a profile, unchecked: it contains the device's address as the device
    /// knows it. It is requested for RTP within the RTSP connection; empty if the response contains none.
    [[nodiscard]] ServiceResult<std::string> streamUrl(const std::string &profileToken);
    /// The URL of a JPEG image of the stream over HTTP, unchecked as well.
    [[nodiscard]] ServiceResult<std::string> snapshotUrl(const std::string &profileToken);

    /// Requests that the stream continues with a key frame.
    [[nodiscard]] ServiceOutcome requestKeyFrame(const std::string &profileToken);

    // The options of encoders. `encoderToken` is VideoEncoder::token or AudioEncoder::token, `profileToken`
    // the profile that the encoder belongs to. A list has one entry for each encoding that the encoder
    // supports.

    [[nodiscard]] ServiceResult<std::vector<VideoEncodingOptions>>
    videoOptions(const std::string &encoderToken, const std::string &profileToken);
    [[nodiscard]] ServiceResult<std::vector<AudioEncodingOptions>>
    audioOptions(const std::string &encoderToken, const std::string &profileToken);

    // The next three read the settings from the device, change them, and write all of them back. So the other
    // settings are kept, except settings outside the standard, which are not sent. They fail with
    // ProtocolMismatch, without writing, if the device does not return the settings of the token.

    /// Changes the encoder `encoder.token` to the values of `encoder`. A value that the device does not
    /// report, such as those of the rate control, is not written, without an error. An empty profile and a
    /// key interval of 0 are not written. The older service gets a whole frame rate and no `constantBitRate`;
    /// the settings of other codecs than the chosen one are removed, and a codec without settings gets "Main"
    /// and 1. In the newer service, profile and key interval are removed for JPEG.
    [[nodiscard]] ServiceOutcome setVideoEncoder(const VideoEncoder &encoder);
    /// Changes the encoder `encoder.token` to the values of `encoder`. As above, a value that the device does
    /// not report is not written.
    [[nodiscard]] ServiceOutcome setAudioEncoder(const AudioEncoder &encoder);

    /// Changes MediaProfile::sourceName. `configurationToken` is MediaProfile::sourceConfiguration.
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

// These read the settings of an encoder from its element in a response of either service. Missing children
// leave their members empty or 0.

[[nodiscard]] VideoEncoder readVideoEncoder(const XmlElement &element);
[[nodiscard]] AudioEncoder readAudioEncoder(const XmlElement &element);

} // namespace sdk::onvif
