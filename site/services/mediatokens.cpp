#include "site/services/mediatokens.h"

using namespace sdk::demo;
using namespace Qt::StringLiterals;

namespace site {

namespace {

QString kindName(const MediaStream &stream)
{
    return stream.kind == sdk::LiveStreamKind::Sub ? u"sub"_s : u"main"_s;
}

QString numbered(const QString &name, int channel)
{
    return u"%1_%2"_s.arg(name).arg(channel + 1);
}

} // namespace

QString tokenOf(MediaObject object, const MediaStream &stream)
{
    const QString name = object == MediaObject::Profile        ? u"Profile"_s
                         : object == MediaObject::VideoEncoder ? u"VideoEncoder"_s
                                                               : u"AudioEncoder"_s;
    return numbered(name, stream.channel) + u'_' + kindName(stream);
}

QString videoSourceToken(int channel)
{
    return numbered(u"VideoSource"_s, channel);
}

QString videoSourceConfigurationToken(int channel)
{
    return numbered(u"VideoSourceConfig"_s, channel);
}

QString audioSourceToken(int channel)
{
    return numbered(u"AudioSource"_s, channel);
}

QString audioSourceConfigurationToken(int channel)
{
    return numbered(u"AudioSourceConfig"_s, channel);
}

QString pathOf(const MediaStream &stream)
{
    return u"/channel%1/%2"_s.arg(stream.channel + 1).arg(kindName(stream));
}

int channelCount(const SceneDevice &device)
{
    return static_cast<int>(std::max<qsizetype>(device.channels.size(), 1));
}

bool isConnected(const SceneDevice &device, int channel)
{
    return device.channels.isEmpty() ? channel == 0 : device.channels.value(channel, {{}, false}).connected;
}

QList<MediaStream> streamsOf(const SceneDevice &device)
{
    QList<MediaStream> streams;
    for (int channel = 0; channel < channelCount(device); ++channel) {
        if (isConnected(device, channel))
            streams << MediaStream{channel, sdk::LiveStreamKind::Main}
                    << MediaStream{channel, sdk::LiveStreamKind::Sub};
    }
    return streams;
}

std::optional<MediaStream> streamOf(const SceneDevice &device, MediaObject object, const QString &token)
{
    const QList<MediaStream> streams = streamsOf(device);
    for (const MediaStream &stream : streams) {
        if (tokenOf(object, stream) == token)
            return stream;
    }
    return std::nullopt;
}

std::optional<MediaStream> streamOfPath(const SceneDevice &device, const QString &path)
{
    const QList<MediaStream> streams = streamsOf(device);
    for (const MediaStream &stream : streams) {
        if (pathOf(stream) == path)
            return stream;
    }
    return std::nullopt;
}

std::optional<int> channelOf(const SceneDevice &device, const QString &token)
{
    for (int channel = 0; channel < channelCount(device); ++channel) {
        if (videoSourceToken(channel) == token)
            return channel;
    }
    return std::nullopt;
}

} // namespace site
