// The HTTP responses of devices.
#pragma once

#include "site/http/httpexchange.h"
#include "site/services/soapservice.h"

namespace site {

/// The SOAP services and the web service of the simulated devices. Thread-safe.
class DeviceWeb : public HttpService
{
public:
    /// `context` must outlive it.
    explicit DeviceWeb(ServiceContext &context) : m_context(context), m_soap(context) {}

    [[nodiscard]] BodyReceiver bodyReceiver(const HttpReceiver &receiver,
                                            const sdk::demo::HttpRequest &head) override;
    [[nodiscard]] sdk::demo::HttpResponse respond(const HttpReceiver &receiver,
                                                  const sdk::demo::HttpRequest &head,
                                                  const QByteArray &body) override;

private:
    ServiceContext &m_context;
    SoapService m_soap;
};

} // namespace site
