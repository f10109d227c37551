#include "site/rtsp/rtspclasses.h"

#include "sdk/clock.h"
#include "sdk/demo/demosite.h"

using namespace sdk::demo;

namespace {

struct SiteRtspAuth
{
    GstRTSPAuth parent;
    site::RtspDevice *device;
};

struct SiteRtspAuthClass
{
    GstRTSPAuthClass parent_class;
};

GType siteRtspAuthType();

void refuse(GstRTSPContext *context, const QByteArrayList &challenges)
{
    const GstRTSPStatusCode code = GST_RTSP_STS_UNAUTHORIZED;
    gst_rtsp_message_init_response(context->response, code, gst_rtsp_status_as_text(code), context->request);
    for (const QByteArray &challenge : challenges)
        gst_rtsp_message_add_header(context->response, GST_RTSP_HDR_WWW_AUTHENTICATE, challenge.constData());
    gst_rtsp_client_send_message(context->client, context->session, context->response);
}

gboolean checkLogin(const site::RtspDevice &device, GstRTSPContext *context)
{
    const site::RtspContext &parts = device.context;
    const std::optional<SceneDevice> current = parts.site.device(device.mac);
    if (!current)
        return FALSE;
    // Many players support MD5 only, so every device offers it.
    site::DeviceManner manner = parts.options.mannerOf(*current);
    manner.offersMd5 = true;
    const std::int64_t now = parts.site.clock().now();
    gchar *header = nullptr;
    gst_rtsp_message_get_header(context->request, GST_RTSP_HDR_AUTHORIZATION, &header, 0);
    const site::LoginOutcome login = parts.logins.check(*current, manner, QByteArray(header),
                                                        gst_rtsp_method_as_text(context->method), now);
    if (login.level != site::UserLevel::Anonymous)
        return TRUE;
    refuse(context, parts.logins.challenges(*current, manner, login.isStale, now));
    return FALSE;
}

gboolean check(GstRTSPAuth *auth, GstRTSPContext *context, const gchar *what)
{
    const QByteArrayView kind(what);
    if (kind == GST_RTSP_AUTH_CHECK_TRANSPORT_CLIENT_SETTINGS)
        return FALSE; // streams are sent only to the client
    // OPTIONS needs no login.
    if (kind != GST_RTSP_AUTH_CHECK_URL || context->method == GST_RTSP_OPTIONS)
        return TRUE;
    return checkLogin(*reinterpret_cast<SiteRtspAuth *>(auth)->device, context);
}

void initialiseAuthClass(gpointer type, gpointer)
{
    static_cast<SiteRtspAuthClass *>(type)->parent_class.check = check;
}

GType siteRtspAuthType()
{
    static const GType type =
        g_type_register_static_simple(GST_TYPE_RTSP_AUTH, "SiteRtspAuth", sizeof(SiteRtspAuthClass),
                                      initialiseAuthClass, sizeof(SiteRtspAuth), nullptr, GTypeFlags());
    return type;
}

} // namespace

namespace site {

GstRTSPAuth *newAuthentication(RtspDevice &device)
{
    auto *made = static_cast<SiteRtspAuth *>(g_object_new(siteRtspAuthType(), nullptr));
    made->device = &device;
    return GST_RTSP_AUTH(made);
}

} // namespace site
