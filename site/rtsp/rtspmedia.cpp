#include "site/rtsp/rtspclasses.h"

#include "sdk/demo/demosite.h"
#include "site/logging.h"
#include "site/rtsp/pipelinetext.h"
#include "site/rtsp/streamfeeder.h"

using namespace sdk::demo;

namespace {

struct SiteRtspFactory
{
    GstRTSPMediaFactory parent;
    site::RtspDevice *device;
};

struct SiteRtspFactoryClass
{
    GstRTSPMediaFactoryClass parent_class;
};

constexpr const char *mediaKey = "site-media";

/// The parameters of a media, stored with its element.
struct MediaOrder
{
    site::MediaStream stream;
    StreamSettings settings;
};

std::optional<site::MediaStream> streamAt(const SceneDevice &device, const char *path)
{
    return site::streamOfPath(device, QString::fromUtf8(path));
}

GstElement *createElement(GstRTSPMediaFactory *factory, const GstRTSPUrl *url)
{
    const site::RtspDevice &served = *reinterpret_cast<SiteRtspFactory *>(factory)->device;
    const std::optional<SceneDevice> device = served.context.site.device(served.mac);
    const std::optional<site::MediaStream> stream = device ? streamAt(*device, url->abspath) : std::nullopt;
    const std::optional<StreamSettings> settings =
        stream ? streamSettings(*device, stream->channel, stream->kind) : std::nullopt;
    if (!settings)
        return nullptr;
    GError *error = nullptr;
    GstElement *element = gst_parse_launch_full(site::pipelineText(*settings).constData(), nullptr,
                                                GST_PARSE_FLAG_PLACE_IN_BIN, &error);
    if (error) {
        qCWarning(site::siteLog, "A stream of %ls cannot be created: %s", qUtf16Printable(served.mac),
                  error->message);
        g_clear_error(&error);
        if (element)
            gst_object_unref(element);
        return nullptr;
    }
    g_object_set_data_full(G_OBJECT(element), mediaKey, new MediaOrder{*stream, *settings},
                           [](gpointer order) { delete static_cast<MediaOrder *>(order); });
    return element;
}

void unprepared(GstRTSPMedia *media, gpointer)
{
    g_object_set_data(G_OBJECT(media), mediaKey, nullptr); // destroys the feeder
}

void configure(GstRTSPMediaFactory *factory, GstRTSPMedia *media)
{
    const site::RtspDevice &served = *reinterpret_cast<SiteRtspFactory *>(factory)->device;
    GstElement *element = gst_rtsp_media_get_element(media);
    const auto *order = static_cast<const MediaOrder *>(g_object_get_data(G_OBJECT(element), mediaKey));
    GstElement *video = gst_bin_get_by_name_recurse_up(GST_BIN(element), "video");
    GstElement *sound = gst_bin_get_by_name_recurse_up(GST_BIN(element), "sound");
    site::StreamFeeder::Order feeding;
    feeding.mac = served.mac;
    feeding.stream = order->stream;
    feeding.settings = order->settings;
    feeding.video = GST_APP_SRC(video);
    feeding.sound = sound ? GST_APP_SRC(sound) : nullptr;
    feeding.dropped = served.closeClientsSoon;
    auto *feeder = new site::StreamFeeder(served.context.site, served.context.keyFrames, feeding);
    g_object_set_data_full(G_OBJECT(media), mediaKey, feeder,
                           [](gpointer data) { delete static_cast<site::StreamFeeder *>(data); });
    g_signal_connect(media, "unprepared", G_CALLBACK(unprepared), nullptr);
    gst_object_unref(video);
    if (sound)
        gst_object_unref(sound);
    gst_object_unref(element);
}

void initialiseFactoryClass(gpointer type, gpointer)
{
    auto &base = static_cast<SiteRtspFactoryClass *>(type)->parent_class;
    base.create_element = createElement;
    base.configure = configure;
}

GType siteRtspFactoryType()
{
    static const GType type = g_type_register_static_simple(
        GST_TYPE_RTSP_MEDIA_FACTORY, "SiteRtspFactory", sizeof(SiteRtspFactoryClass), initialiseFactoryClass,
        sizeof(SiteRtspFactory), nullptr, GTypeFlags());
    return type;
}

} // namespace

namespace site {

GstRTSPMediaFactory *newMediaFactory(RtspDevice &device)
{
    auto *made = static_cast<SiteRtspFactory *>(g_object_new(siteRtspFactoryType(), nullptr));
    made->device = &device;
    gst_rtsp_media_factory_set_shared(GST_RTSP_MEDIA_FACTORY(made), TRUE);
    gst_rtsp_media_factory_set_latency(GST_RTSP_MEDIA_FACTORY(made), 0);
    return GST_RTSP_MEDIA_FACTORY(made);
}

GstRTSPMountPoints *newMountPoints(RtspDevice &device)
{
    GstRTSPMountPoints *points = gst_rtsp_mount_points_new();
    if (const std::optional<SceneDevice> served = device.context.site.device(device.mac)) {
        const QList<MediaStream> streams = streamsOf(*served);
        for (const MediaStream &stream : streams)
            gst_rtsp_mount_points_add_factory(points, pathOf(stream).toUtf8().constData(),
                                              newMediaFactory(device));
    }
    return points;
}

} // namespace site
