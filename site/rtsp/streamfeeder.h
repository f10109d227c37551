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

/// Generates the video and the sound of one stream on a separate thread and pushes them to a pipeline. It
/// starts with the frames that the pipeline needs for the description of the stream (SDP). The others follow
/// at the times of the site's clock from the next KeyFrames::request() for the stream on, as when a client
/// plays. It ends the stream of the pipeline when the device goes offline, is reset, drops the stream or
/// changes the codec or the sound of the stream, when the stream cannot be encoded, and when the pipeline
/// refuses data. It does not check the device before the first request. Other changes of the settings apply
/// to the next frame. Used by one thread at a time.
class StreamFeeder
{
public:
    /// The stream and the pipeline that it is fed to.
    struct Order
    {
        QString mac;
        MediaStream stream;
        sdk::demo::StreamSettings settings; ///< with which the pipeline was created
        GstAppSrc *video = nullptr;         ///< takes a reference
        GstAppSrc *sound = nullptr;         ///< null for a stream without sound; takes a reference
        /// Called on the feeder's thread when the device drops the stream (Fault::DropsStreamAfter). After
        /// the call the feeder feeds nothing more and ends the stream of the pipeline. Must not call stop()
        /// or delete the feeder. Not empty.
        std::function<void()> dropped;
    };

    /// Starts the thread. `site` and `keyFrames` must outlive the feeder. `video` must not be null.
    StreamFeeder(sdk::demo::DemoSite &site, KeyFrames &keyFrames, Order order);

    /// As stop().
    ~StreamFeeder();
    StreamFeeder(const StreamFeeder &) = delete;
    StreamFeeder &operator=(const StreamFeeder &) = delete;

    /// Ends the thread and waits for it. No data are fed after the call; the stream of the pipeline is not
    /// ended.
    void stop();

private:
    // The functions with a bool return false if the stream cannot continue.
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
