#include "site/services/deviceweb.h"

#include "sdk/demo/http/httpresponder.h"
#include "site/deviceidentity.h"
#include "site/services/firmwareuploads.h"
#include "site/services/services.h"

using namespace sdk::demo;
using namespace Qt::StringLiterals;

namespace site {

BodyReceiver DeviceWeb::bodyReceiver(const HttpReceiver &receiver, const HttpRequest &head)
{
    const QByteArray path = readHttpTarget(head.target).path;
    if (head.method != "POST" || !FirmwareUploads::isUploadPath(path))
        return {};
    return m_context.uploads.bodyReceiver(receiver, path, head.bodyLength);
}

HttpResponse DeviceWeb::respond(const HttpReceiver &receiver, const HttpRequest &head, const QByteArray &body)
{
    const HttpTarget target = readHttpTarget(head.target);
    if (isServicePath(target.path)) {
        if (head.method == "POST")
            return m_soap.respond(receiver, head, body);
        HttpResponse response =
            HttpResponse::line(HttpStatus::MethodNotAllowed, u"Services take POST only"_s);
        response.fields.append("Allow: POST");
        return response;
    }
    if (head.method == "POST" && FirmwareUploads::isUploadPath(target.path))
        return m_context.uploads.finish(receiver, target.path);
    const std::optional<SceneDevice> device = m_context.site.device(receiver.mac);
    if (!device || device->httpPort == 0)
        return HttpResponse::line(HttpStatus::NotFound, u"The device has no web page"_s);
    // The web service of the demo site finds the device by its address and its HTTP port, like a proxy.
    HttpRequest request = head;
    request.target = serviceRoot(receiver.address, servicePortOf(*device)).toLatin1() + head.target;
    return m_context.site.httpResponder().respond({.localPort = HttpResponder::proxy}, request);
}

} // namespace site
