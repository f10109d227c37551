// Brings what a channel streams into a pipeline.
#pragma once

#include "sdk/demo/internal/avpointers.h"
#include "sdk/demo/internal/streamsettings.h"
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

class KeyPictures;

/// Makes the pictures and the sound of one stream on a thread of its own: at first as much as the pipeline
/// needs to describe them, and the rest from when somebody plays it. Ends when the device does not stream any
/// more, or in another codec. Thread-safe.
class StreamFeeder
{
public:
    struct Order
    {
        QString mac;
        MediaStream stream;
        sdk::demo::StreamSettings settings; ///< that the pipeline was made for
        GstAppSrc *pictures = nullptr;      ///< takes a reference
        GstAppSrc *sound = nullptr;         ///< null for a stream without; takes a reference
        std::function<void()> dropped; ///< called on the feeder's thread when the device drops the stream
    };

    /// `site` and `keyPictures` must outlive the feeder.
    StreamFeeder(sdk::demo::DemoSite &site, KeyPictures &keyPictures, Order order);
    ~StreamFeeder();
    StreamFeeder(const StreamFeeder &) = delete;
    StreamFeeder &operator=(const StreamFeeder &) = delete;

    /// Nothing is fed any more after the return.
    void stop();

private:
    void run(const std::stop_token &stop);
    [[nodiscard]] bool feedBeginning(sdk::demo::LiveProduction &production);
    void feedWhilePlayed(std::unique_ptr<sdk::demo::LiveProduction> production, const std::stop_token &stop);
    [[nodiscard]] bool feed(const sdk::demo::LiveProduction &production,
                            const sdk::demo::EncodedPackets &packets);
    [[nodiscard]] bool push(GstAppSrc *destination, const AVPacket &packet, const QByteArray &before) const;
    /// Lets the picture that comes next have the time that the pipeline has now.
    void takePipelineTime(double frameRate);
    [[nodiscard]] std::int64_t deviceTime() const;
    void endStreams() const;

    sdk::demo::DemoSite &m_site;
    KeyPictures &m_keyPictures;
    const Order m_order;
    std::int64_t m_picture = 0; ///< the next one
    std::int64_t m_offset = 0;  ///< in ns: of the pipeline's time from that of the production
    bool m_hasSound = false;    ///< some has been fed
    std::jthread m_thread;      // last: it uses all of them
};

} // namespace site
