// RTP packets of a session for tests.
#pragma once

#include <QByteArray>
#include <QList>

#include <chrono>

namespace sdk::onvif {

struct RtpPacket
{
    int channel = 0; ///< of the session: two for each track, the second one for its control
    QByteArray bytes;
    std::chrono::milliseconds due{0}; ///< after the start of the playback
};

/// A live stream in packets, and its description.
struct RtpSource
{
    QByteArray description;
    QList<RtpPacket> packets;

    /// Created from Matroska: a header and its packets.
    [[nodiscard]] static RtpSource of(const QByteArray &container);

    /// The description without lines that hold `text`.
    [[nodiscard]] QByteArray descriptionWithout(const QByteArray &text) const;
};

} // namespace sdk::onvif
