// Dispatches requests to the operations of services.
#pragma once

#include "site/services/servicecall.h"

namespace site {

/// Reads a request, checks the login, runs the operation and writes the response or a fault in the device's
/// XML style. Thread-safe.
class SoapService
{
public:
    /// `context` must outlive the service.
    explicit SoapService(ServiceContext &context) : m_context(context) {}

    /// The response to a request with the text `body`; `head` has the login by Digest. HttpStatus::None while
    /// the device is offline, with Fault::NoAnswer, and if the device has left the site. A fault is a
    /// response with an HTTP error status. A missing or refused login gets a challenge as well, if the device
    /// accepts Digest and the request contains no token. Blocks for the delay of a device with
    /// Fault::SlowAnswers, until HttpReceiver::stop. Adds a readable request to the site's log as "SOAP", and
    /// writes the request and the response to SiteOptions::recordFolder, if it is set.
    [[nodiscard]] sdk::demo::HttpResponse respond(const HttpReceiver &receiver,
                                                  const sdk::demo::HttpRequest &head, const QByteArray &body);

private:
    struct Outcome
    {
        std::optional<SoapFault> fault;
        sdk::demo::HttpStatus status = sdk::demo::HttpStatus::Ok;
        bool isChallenge = false;
        bool isStale = false;
    };
    [[nodiscard]] Outcome run(const HttpReceiver &receiver, const sdk::demo::SceneDevice &device,
                              const sdk::demo::HttpRequest &head, const SoapRequest &request,
                              SoapMessage &message);
    [[nodiscard]] LoginOutcome login(const sdk::demo::SceneDevice &device, const DeviceManner &manner,
                                     const sdk::demo::HttpRequest &head, const SoapRequest &request,
                                     std::int64_t now);
    void record(const sdk::demo::SceneDevice &device, const SoapRequest &request, const LoginOutcome &login,
                const Outcome &outcome);

    ServiceContext &m_context;
};

} // namespace site
