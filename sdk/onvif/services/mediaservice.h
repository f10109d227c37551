// The media services (ONVIF Media and Media 2): profiles of video sources, and the addresses of their streams.
#pragma once

#include "sdk/onvif/services/serviceresult.h"

#include <optional>
#include <string>
#include <vector>

namespace sdk::onvif {

/// The settings of a video encoder.
struct VideoEncoder
{
    std::string token = {};
    std::string encoding = {}; ///< "JPEG", "H264", "H265", "MPEG4"
    int width = 0;
    int height = 0;
    double frameRate = 0; ///< pictures a second, 0 if the device does not say
    int bitRate = 0;      ///< kbit/s
    int keyInterval = 0;  ///< pictures from one key picture to the next
    double quality = 0;
    std::string profile = {};    ///< "Baseline", "Main", "Extended", "High", ...
    bool constantBitRate = false;
};

/// The settings of an audio encoder.
struct AudioEncoder
{
    std::string token = {};
    std::string encoding = {}; ///< "G711", "G726", "AAC" of the older service; "PCMU", "G726", "MP4A-LATM" of the newer
    int bitRate = 0;      ///< kbit/s
    int sampleRate = 0;   ///< kHz
};

/// A set of settings that a stream is made of.
struct MediaProfile
{
    std::string token = {};
    std::string name = {};
    std::string sourceToken = {}; ///< of the video source, empty for a profile without video
    std::optional<VideoEncoder> video = {};
    std::optional<AudioEncoder> audio = {};
};

/// Which of the two media services a device is asked by.
enum class MediaVersion
{
    First,
    Second, ///< has everything that the first has, and H.265
};

/// Operations of a media service. Used by one thread; the client may serve several.
class MediaService
{
public:
    using Deadline = SoapClient::Deadline;

    /// `client` and `address` must outlive the object.
    MediaService(SoapClient &client, const ServiceAddress &address, MediaVersion version, Deadline deadline);

    /// At most `maximumProfiles`.
    static constexpr std::size_t maximumProfiles = 2048;
    [[nodiscard]] ServiceResult<std::vector<MediaProfile>> profiles();

    /// The URL of a stream over RTSP with RTP inside its connection or beside it, as the client chooses.
    [[nodiscard]] ServiceResult<std::string> streamUrl(const std::string &profileToken);
    [[nodiscard]] ServiceResult<std::string> snapshotUrl(const std::string &profileToken);

    /// The stream goes on with a picture that needs no earlier one.
    [[nodiscard]] ServiceOutcome requestKeyPicture(const std::string &profileToken);

    [[nodiscard]] MediaVersion version() const { return m_version; }

private:
    [[nodiscard]] std::string_view uri() const;
    [[nodiscard]] SoapRequest request(std::string_view operation) const;
    [[nodiscard]] SoapAnswer call(const SoapRequest &request);
    [[nodiscard]] MediaProfile readProfile(const XmlElement &element) const;

    SoapClient &m_client;
    const ServiceAddress &m_address;
    const MediaVersion m_version;
    const Deadline m_deadline;
};

/// Reads the settings of an encoder, as both services write them.
[[nodiscard]] VideoEncoder readVideoEncoder(const XmlElement &element);
[[nodiscard]] AudioEncoder readAudioEncoder(const XmlElement &element);

} // namespace sdk::onvif
