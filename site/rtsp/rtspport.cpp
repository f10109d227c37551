#include "site/rtsp/rtspport.h"

#include "sdk/clock.h"
#include "sdk/demo/demosite.h"
#include "site/network/poller.h"
#include "site/rtsp/keyframes.h"
#include "site/rtsp/rtspclasses.h"

#include <gio/gio.h>

#include <sys/socket.h>

using namespace sdk::demo;
using namespace std::chrono_literals;

namespace site {

namespace {

std::optional<MediaStream> playedStream(const RtspDevice &device, const GstRTSPContext *context)
{
    const std::optional<SceneDevice> served = device.context.site.device(device.mac);
    QString path = QString::fromUtf8(context->uri->abspath);
    while (path.endsWith(u'/'))
        path.chop(1);
    return served ? streamOfPath(*served, path) : std::nullopt;
}

/// With the fault of a late start, the device delays the response.
GstRTSPStatusCode beforePlay(GstRTSPClient *, GstRTSPContext *, gpointer data)
{
    const RtspDevice &device = *static_cast<RtspDevice *>(data);
    const std::optional<SceneDevice> served = device.context.site.device(device.mac);
    if (const auto late = served ? served->fault(Fault::FirstPictureLate) : std::nullopt)
        device.context.site.clock().wait(std::chrono::milliseconds(late->number));
    return GST_RTSP_STS_OK;
}

/// A client that starts to play gets a key frame first.
void afterPlay(GstRTSPClient *, GstRTSPContext *context, gpointer data)
{
    const RtspDevice &device = *static_cast<RtspDevice *>(data);
    if (const std::optional<MediaStream> stream = playedStream(device, context))
        device.context.keyFrames.request(device.mac, *stream);
}

void clientConnected(GstRTSPServer *, GstRTSPClient *client, gpointer device)
{
    g_signal_connect(client, "pre-play-request", G_CALLBACK(beforePlay), device);
    g_signal_connect(client, "play-request", G_CALLBACK(afterPlay), device);
}

void prepareLibrary()
{
    static const bool isPrepared = [] {
        gst_init(nullptr, nullptr);
        return true;
    }();
    (void)isPrepared;
}

GstRTSPFilterResult removeClient(GstRTSPServer *, GstRTSPClient *, gpointer count)
{
    ++*static_cast<int *>(count);
    return GST_RTSP_FILTER_REMOVE;
}

} // namespace

struct RtspPort::Parts
{
    RtspDevice device;
    GstRTSPServer *server = nullptr;

    /// Returns the number of clients.
    int closeClients() const
    {
        int count = 0;
        GList *clients = gst_rtsp_server_client_filter(server, removeClient, &count);
        g_list_free_full(clients, g_object_unref);
        return count;
    }
};

RtspPort::RtspPort(RtspContext &context, QString mac, const NetworkSpace &space)
    : m_parts(new Parts{{context, std::move(mac), space, {}}})
{
    prepareLibrary();
    RtspDevice &device = m_parts->device;
    device.closeClientsSoon = [&poller = context.poller, weak = std::weak_ptr(m_parts)] {
        poller.after(0ms, [weak] {
            if (const std::shared_ptr<Parts> parts = weak.lock())
                parts->closeClients();
        });
    };
    m_parts->server = gst_rtsp_server_new();
    GstRTSPAuth *authentication = newAuthentication(device);
    GstRTSPThreadPool *threads = newThreadPool(device);
    GstRTSPMountPoints *points = newMountPoints(device);
    gst_rtsp_server_set_auth(m_parts->server, authentication);
    gst_rtsp_server_set_thread_pool(m_parts->server, threads);
    gst_rtsp_server_set_mount_points(m_parts->server, points);
    g_signal_connect(m_parts->server, "client-connected", G_CALLBACK(clientConnected), &device);
    g_object_unref(authentication);
    g_object_unref(threads);
    g_object_unref(points);
}

RtspPort::~RtspPort()
{
    // Threads of clients use the device until they have ended.
    constexpr int mostTries = 200;
    for (int tries = 0; m_parts->closeClients() > 0 && tries < mostTries; ++tries)
        g_usleep(10000);
    g_object_unref(m_parts->server);
}

void RtspPort::accept(int listener)
{
    FileDescriptor socket(accept4(listener, nullptr, nullptr, SOCK_CLOEXEC));
    if (!socket.isOpen())
        return;
    GSocket *connection = g_socket_new_from_fd(socket.number(), nullptr);
    if (!connection)
        return;
    (void)socket.release();
    GSocketAddress *peer = g_socket_get_remote_address(connection, nullptr);
    gchar *text =
        peer ? g_inet_address_to_string(g_inet_socket_address_get_address(G_INET_SOCKET_ADDRESS(peer)))
             : g_strdup("");
    gst_rtsp_server_transfer_connection(m_parts->server, connection, text, 0, nullptr);
    g_free(text);
    g_clear_object(&peer);
}

void RtspPort::closeClients()
{
    m_parts->closeClients();
}

} // namespace site
