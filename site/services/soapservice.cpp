#include "site/services/soapservice.h"

#include "sdk/clock.h"
#include "sdk/demo/device/maintenance.h"
#include "site/services/devicetime.h"
#include "site/services/messagerecord.h"
#include "site/services/services.h"

#include <algorithm>

using namespace sdk::demo;
using namespace Qt::StringLiterals;

namespace site {

namespace {

UserLevel neededLevel(Access access)
{
    switch (access) {
    case Access::BeforeLogin:
        return UserLevel::Anonymous;
    case Access::ReadSystem:
    case Access::ReadMedia:
        return UserLevel::User;
    case Access::ReadSystemSensitive:
    case Access::Actuate:
        return UserLevel::Operator;
    case Access::WriteSystem:
    case Access::FirstUser:
        break;
    }
    return UserLevel::Administrator;
}

bool isOpen(const SceneDevice &device, Access access)
{
    return access == Access::BeforeLogin ||
           (device.isUninitialised() && (access == Access::FirstUser || access == Access::ReadSystem));
}

SoapFault faultOf(UnusableRequest kind)
{
    switch (kind) {
    case UnusableRequest::NoXml:
        return {true, "ter:WellFormed", nullptr, u"The request is not well-formed XML"_s};
    case UnusableRequest::NoEnvelope:
        return {true, "ter:TagMismatch", nullptr, u"The request is not a SOAP 1.2 message"_s};
    case UnusableRequest::NotUnderstood:
        break;
    }
    return {true, "ter:NotUnderstood", nullptr, u"A header is not understood"_s};
}

HttpStatus statusOf(const SoapFault &fault)
{
    return fault.isSender ? HttpStatus::BadRequest : HttpStatus::InternalServerError;
}

const ServiceOperation *operationOf(const SoapRequest &request, const DeviceManner &manner)
{
    const ServiceOperations operations = operationsOf(request.prefix, manner);
    const auto found =
        std::find_if(operations.begin(), operations.end(), [&request](const ServiceOperation &operation) {
            return request.name == operation.name;
        });
    return found == operations.end() ? nullptr : &*found;
}

} // namespace

HttpResponse SoapService::respond(const HttpReceiver &receiver, const HttpRequest &head,
                                  const QByteArray &body)
{
    const std::optional<SceneDevice> device = m_context.site.device(receiver.mac);
    HttpResponse response;
    response.status = HttpStatus::None;
    // The listeners are closed shortly after the start of the device's reboot.
    if (!device || !device->isListening(m_context.site.clock().now()))
        return response;
    if (const std::optional<FaultSetting> slow = device->fault(Fault::SlowAnswers))
        m_context.site.clock().wait(std::chrono::milliseconds(slow->number), receiver.stop);
    const DeviceManner manner = m_context.options.mannerOf(*device);
    const std::variant<SoapRequest, UnusableRequest> request = readSoapRequest(body);
    SoapMessage message;
    Outcome outcome;
    if (const auto *usable = std::get_if<SoapRequest>(&request))
        outcome = run(receiver, *device, head, *usable, message);
    else
        outcome = {faultOf(std::get<UnusableRequest>(request)), HttpStatus::BadRequest, false, false};
    if (outcome.fault) {
        message = SoapMessage();
        writeFault(message, *outcome.fault);
    }
    response.status = outcome.status;
    response.contentType = "application/soap+xml; charset=utf-8";
    if (outcome.isChallenge) {
        const std::int64_t now = m_context.site.clock().now();
        for (const QByteArray &challenge : m_context.logins.challenges(*device, manner, outcome.isStale, now))
            response.fields.append("WWW-Authenticate: " + challenge);
    }
    response.body = message.bytes(manner.xml);
    if (!m_context.options.recordFolder.isEmpty())
        recordExchange(m_context.options.recordFolder, receiver, body, response.body);
    return response;
}

SoapService::Outcome SoapService::run(const HttpReceiver &receiver, const SceneDevice &device,
                                      const HttpRequest &head, const SoapRequest &request,
                                      SoapMessage &message)
{
    const std::int64_t now = m_context.site.clock().now();
    const DeviceManner manner = m_context.options.mannerOf(device);
    const ServiceOperation *operation = operationOf(request, manner);
    Outcome outcome;
    LoginOutcome login;
    if (!operation) {
        outcome.fault = SoapFault::unknownOperation(
            u"The device does not support the operation %1"_s.arg(QString::fromStdString(request.name)));
        outcome.status = statusOf(*outcome.fault);
        record(device, request, login, outcome);
        return outcome;
    }
    if (!isOpen(device, operation->access)) {
        login = this->login(device, manner, head, request, now);
        if (login.level < neededLevel(operation->access)) {
            outcome.fault = SoapFault::notAuthorized(login.level == UserLevel::Anonymous
                                                         ? login.reason
                                                         : u"The user lacks the right for this operation"_s);
            outcome.isStale = login.isStale;
            // A request with a token gets the fault without a challenge.
            outcome.isChallenge = manner.takesDigest && !request.token && login.level == UserLevel::Anonymous;
            outcome.status = outcome.isChallenge ? HttpStatus::Unauthorized : HttpStatus::BadRequest;
            record(device, request, login, outcome);
            return outcome;
        }
    }
    const std::string name = request.prefix + ":" + request.name + "Response";
    if (login.level != UserLevel::Anonymous && device.hasFault(Fault::PasswordChangesAfter))
        m_context.site.changeDevice(
            device.mac, [](SceneDevice &changed, const DeviceAddresses &) { noteLogin(changed); });
    ServiceCall call{
        m_context, receiver, device, manner, login, request.operation, message.body().add(name.c_str()), now};
    outcome.fault = operation->run(call);
    if (outcome.fault)
        outcome.status = statusOf(*outcome.fault);
    record(device, request, login, outcome);
    return outcome;
}

LoginOutcome SoapService::login(const SceneDevice &device, const DeviceManner &manner,
                                const HttpRequest &head, const SoapRequest &request, std::int64_t now)
{
    if (manner.takesToken && request.token)
        return m_context.logins.check(device, *request.token, utcOf(device, now));
    if (manner.takesDigest)
        return m_context.logins.check(device, manner, head.field("authorization"), head.method, now);
    return {};
}

void SoapService::record(const SceneDevice &device, const SoapRequest &request, const LoginOutcome &login,
                         const Outcome &outcome)
{
    m_context.site.requests().add(
        {u"SOAP"_s,
         device.mac,
         {{u"service"_s, QString::fromStdString(request.prefix)},
          {u"operation"_s, QString::fromStdString(request.name)},
          {u"user"_s, login.user},
          {u"fault"_s, outcome.fault ? QLatin1String(outcome.fault->subcode) : QLatin1String()},
          {u"status"_s, static_cast<int>(outcome.status)}},
         m_context.site.clock().now()});
}

} // namespace site
