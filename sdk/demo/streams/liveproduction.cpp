#include "sdk/demo/streams/liveproduction.h"

#include "sdk/demo/site/logging.h"

#include <QHash>

using namespace Qt::StringLiterals;

namespace sdk::demo {

namespace {

/// The tint depends on the device. Neighbouring channels have distant tints.
int hueOf(const SceneDevice &device, std::int32_t channel)
{
    constexpr std::int64_t circle = 360;
    constexpr std::int64_t step = 137;
    const auto first = static_cast<std::int64_t>(qHash(device.mac, 0) % circle);
    return static_cast<int>((first + channel * step) % circle);
}

TestCardLabels textsOf(const SceneDevice &device, std::int32_t channel, LiveStreamKind kind,
                       const StreamSettings &settings)
{
    const QString codec = settings.codec == StreamCodec::H264   ? u"H.264"_s
                          : settings.codec == StreamCodec::H265 ? u"H.265"_s
                                                                : u"MJPEG"_s;
    return {device.name, u"CH %1 %2 %3*%4 %5"_s.arg(
                             QString::number(channel + 1), kind == LiveStreamKind::Sub ? u"SUB"_s : u"MAIN"_s,
                             QString::number(settings.width), QString::number(settings.height), codec)};
}

/// The extra data of the encoder: its parameter sets.
QByteArray headOf(const AVCodecContext &context)
{
    return {reinterpret_cast<const char *>(context.extradata), context.extradata_size};
}

} // namespace

TestCard testCardOf(const SceneDevice &device, std::int32_t channel, LiveStreamKind kind,
                    const StreamSettings &settings)
{
    return {
        {settings.width, settings.height}, hueOf(device, channel), textsOf(device, channel, kind, settings)};
}

std::unique_ptr<LiveProduction> LiveProduction::start(const SceneDevice &device, std::int32_t channel,
                                                      LiveStreamKind kind, const StreamSettings &settings)
{
    TestCard card = testCardOf(device, channel, kind, settings);
    // Not make_unique: the constructor is private.
    std::unique_ptr<LiveProduction> production(new LiveProduction(settings, std::move(card)));
    production->m_encoder = VideoEncoder::open(settings);
    if (production->m_encoder)
        production->m_frame = CardFrame::create(production->m_encoder->context());
    if (!production->m_frame || !production->m_frame->paint(production->m_card.still()))
        return nullptr;
    if (settings.sound != SoundCodec::None)
        production->m_sound = AudioEncoder::open(settings, AudioEncoder::pitchOf(channel));
    return production;
}

QByteArray LiveProduction::videoHead() const
{
    return headOf(m_encoder->context());
}

QByteArray LiveProduction::soundHead() const
{
    return m_sound ? headOf(m_sound->context()) : QByteArray();
}

std::unique_ptr<streams::MatroskaWriter> LiveProduction::openWriter() const
{
    auto writer =
        streams::MatroskaWriter::open(m_encoder->context(), m_sound ? &m_sound->context() : nullptr);
    if (!writer)
        qCWarning(demoLog, "The container of a live stream cannot be written");
    return writer;
}

bool LiveProduction::encodeFrame(std::int64_t number, std::int64_t deviceTime, bool isKey,
                                 EncodedPackets &packets)
{
    const double seconds = static_cast<double>(number) / m_settings.frameRate;
    if (m_sound && !m_sound->encodeUntil(seconds, packets))
        return false;
    const QList<TestCard::Region> regions = m_card.moving(deviceTime);
    for (const TestCard::Region &region : regions) {
        if (!m_frame->paint(region))
            return false;
    }
    return m_encoder->encode(m_frame->frame(), number, isKey, packets);
}

} // namespace sdk::demo
