// RTP packets of a live stream for tests.
#pragma once

#include <QByteArray>
#include <QList>

#include <chrono>

namespace sdk::onvif {

/// A packet that the device sends.
struct RtpPacket
{
    /// Channel of the RTSP session: each track has two, an even one for its data (RTP) and the next one for
    /// its control (RTCP).
    int channel = 0;
    QByteArray bytes;                 ///< the packet without the frame of the interleaved transport
    std::chrono::milliseconds due{0}; ///< when it is sent, after the start of the playback
};

/// A live stream in packets, and its description.
struct RtpSource
{
    QByteArray description;   ///< in the session description protocol (SDP)
    QList<RtpPacket> packets; ///< in the order of sending, all due immediately

    /// Converts a stream in Matroska (a header and its packets). Ends the process on failure.
    [[nodiscard]] static RtpSource of(const QByteArray &container);

    /// The description without lines that contain `text`.
    [[nodiscard]] QByteArray descriptionWithout(const QByteArray &text) const;
};

} // namespace sdk::onvif
