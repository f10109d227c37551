// The HTTP responses of devices.
#pragma once

#include "site/http/httpexchange.h"
#include "site/services/soapservice.h"

namespace site {

/// Responds to the HTTP requests to the simulated devices. Paths of services go to the SOAP services, a POST
/// to an upload path to the firmware uploads, all other requests (for example /cgi-bin/) to the web service
/// of the demo site. Thread-safe: used by the threads of connections.
class DeviceWeb : public HttpService
{
public:
    /// `context` must outlive this object.
    explicit DeviceWeb(ServiceContext &context) : m_context(context), m_soap(context) {}

    /// A receiver for a POST to an upload path; empty for other requests.
    [[nodiscard]] BodyReceiver bodyReceiver(const HttpReceiver &receiver,
                                            const sdk::demo::HttpRequest &head) override;
    /// MethodNotAllowed for a request to a service that is not a POST. NotFound for a request to the web
    /// service, also /cgi-bin/, if the device has no HTTP port or has left the site.
    [[nodiscard]] sdk::demo::HttpResponse respond(const HttpReceiver &receiver,
                                                  const sdk::demo::HttpRequest &head,
                                                  const QByteArray &body) override;

private:
    ServiceContext &m_context;
    SoapService m_soap;
};

} // namespace site
