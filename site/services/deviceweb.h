// The HTTP responses of devices.
#pragma once

#include "site/http/httpexchange.h"
#include "site/services/soapservice.h"

namespace site {

/// Responds to the HTTP requests to the simulated devices by their path: SOAP services, firmware uploads, and
/// the web service of the demo site (/cgi-bin/) for all other paths. Thread-safe: used by the threads of
/// connections.
class DeviceWeb : public HttpService
{
public:
    /// `context` must outlive this object.
    explicit DeviceWeb(ServiceContext &context) : m_context(context), m_soap(context) {}

    /// A receiver for a POST to an upload path; empty for other requests.
    [[nodiscard]] BodyReceiver bodyReceiver(const HttpReceiver &receiver,
                                            const sdk::demo::HttpRequest &head) override;
    /// Services take POST only. NotFound for other paths of a device without a web page.
    [[nodiscard]] sdk::demo::HttpResponse respond(const HttpReceiver &receiver,
                                                  const sdk::demo::HttpRequest &head,
                                                  const QByteArray &body) override;

private:
    ServiceContext &m_context;
    SoapService m_soap;
};

} // namespace site
