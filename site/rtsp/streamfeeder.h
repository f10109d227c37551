// Feeds the stream of a channel to a pipeline.
#pragma once

#include "sdk/demo/device/streamsettings.h"
#include "sdk/demo/streams/avpointers.h"
#include "site/services/mediatokens.h"

#include <gst/app/gstappsrc.h>

#include <functional>
#include <memory>
#include <thread>

namespace sdk::demo {
class DemoSite;
class LiveProduction;
} // namespace sdk::demo

namespace site {

class KeyFrames;

/// Generates the video and the sound of one stream on its thread: first the data that the pipeline needs for
/// the description, and the rest when a client plays. Ends when the device stops the stream or changes its
/// codec. Thread-safe.
class StreamFeeder
{
public:
    struct Order
    {
        QString mac;
        MediaStream stream;
        sdk::demo::StreamSettings settings; ///< of the pipeline
        GstAppSrc *video = nullptr;         ///< takes a reference
        GstAppSrc *sound = nullptr;         ///< null for a stream without sound; takes a reference
        std::function<void()> dropped; ///< called on the feeder's thread when the device drops the stream
    };

    /// `site` and `keyFrames` must outlive the feeder.
    StreamFeeder(sdk::demo::DemoSite &site, KeyFrames &keyFrames, Order order);
    ~StreamFeeder();
    StreamFeeder(const StreamFeeder &) = delete;
    StreamFeeder &operator=(const StreamFeeder &) = delete;

    /// No data are fed after the call.
    void stop();

private:
    void run(const std::stop_token &stop);
    [[nodiscard]] bool feedBeginning(sdk::demo::LiveProduction &production);
    void feedWhilePlayed(std::unique_ptr<sdk::demo::LiveProduction> production, const std::stop_token &stop);
    [[nodiscard]] bool feed(const sdk::demo::LiveProduction &production,
                            const sdk::demo::EncodedPackets &packets);
    [[nodiscard]] bool push(GstAppSrc *destination, const AVPacket &packet, const QByteArray &before) const;
    /// Gives the next frame the present time of the pipeline.
    void takePipelineTime(double frameRate);
    [[nodiscard]] std::int64_t deviceTime() const;
    void endStreams() const;

    sdk::demo::DemoSite &m_site;
    KeyFrames &m_keyFrames;
    const Order m_order;
    std::int64_t m_frameNumber = 0; ///< number of the next frame
    std::int64_t m_offset = 0;      ///< in ns: the pipeline's time minus the time of the source
    bool m_hasSound = false;        ///< sound has been fed
    std::jthread m_thread;          // the last member: it uses the others
};

} // namespace site
