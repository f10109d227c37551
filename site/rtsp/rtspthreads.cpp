#include "site/rtsp/rtspclasses.h"

namespace {

struct SiteRtspThreads
{
    GstRTSPThreadPool parent;
    const site::NetworkSpace *space;
};

struct SiteRtspThreadsClass
{
    GstRTSPThreadPoolClass parent_class;
};

/// Sockets of the thread are then in the device's namespace. Every thread of these pools starts with this
/// function.
void enterThread(GstRTSPThreadPool *pool, GstRTSPThread *)
{
    reinterpret_cast<SiteRtspThreads *>(pool)->space->enter();
}

void initialiseThreadsClass(gpointer type, gpointer)
{
    static_cast<SiteRtspThreadsClass *>(type)->parent_class.thread_enter = enterThread;
}

GType siteRtspThreadsType()
{
    static const GType type = g_type_register_static_simple(
        GST_TYPE_RTSP_THREAD_POOL, "SiteRtspThreads", sizeof(SiteRtspThreadsClass), initialiseThreadsClass,
        sizeof(SiteRtspThreads), nullptr, GTypeFlags());
    return type;
}

} // namespace

namespace site {

GstRTSPThreadPool *newThreadPool(RtspDevice &device)
{
    auto *made = static_cast<SiteRtspThreads *>(g_object_new(siteRtspThreadsType(), nullptr));
    made->space = &device.space;
    return GST_RTSP_THREAD_POOL(made);
}

} // namespace site
