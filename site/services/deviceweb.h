// What devices answer over HTTP.
#pragma once

#include "site/http/httpexchange.h"
#include "site/services/soapservice.h"

namespace site {

/// Services, and the web service that the simulated device has beside them. Thread-safe.
class DeviceWeb : public HttpService
{
public:
    /// `context` must outlive it.
    explicit DeviceWeb(ServiceContext &context) : m_context(context), m_soap(context) {}

    [[nodiscard]] BodyTaker bodyTaker(const HttpReceiver &receiver,
                                      const sdk::demo::HttpRequest &head) override;
    [[nodiscard]] sdk::demo::HttpReply
    answer(const HttpReceiver &receiver, const sdk::demo::HttpRequest &head, const QByteArray &body) override;

private:
    ServiceContext &m_context;
    SoapService m_soap;
};

} // namespace site
