#include "sdk/onvif/soap/soapclient.h"

#include "sdk/onvif/soap/logging.h"
#include "sdk/onvif/soap/onvifnamespaces.h"
#include "sdk/onvif/soap/passwordtoken.h"

#include <algorithm>
#include <array>
#include <utility>

namespace sdk::onvif {

namespace {

constexpr long unauthorised = 401;
constexpr long forbidden = 403;
constexpr long notFound = 404;
constexpr std::size_t longestReason = 300;

struct SubcodeMeaning
{
    std::string_view subcode;
    NetError error;
};

/// Subcodes of faults (ONVIF Core, section 5.8.2), most specific first as devices list them.
constexpr std::array meanings = {
    SubcodeMeaning{"NotAuthorized", NetError::WrongPassword},
    SubcodeMeaning{"FailedAuthentication", NetError::WrongPassword},
    SubcodeMeaning{"InvalidSecurity", NetError::WrongPassword},
    SubcodeMeaning{"AccountLocked", NetError::AccountLocked},
    SubcodeMeaning{"ActionNotSupported", NetError::NotSupported},
    SubcodeMeaning{"OptionalActionNotImplemented", NetError::NotSupported},
    SubcodeMeaning{"InvalidArgs", NetError::InvalidValue},
    SubcodeMeaning{"InvalidArgVal", NetError::InvalidValue},
    SubcodeMeaning{"OperationProhibited", NetError::Refused},
    SubcodeMeaning{"ConfigModify", NetError::InvalidValue},
    SubcodeMeaning{"UnknownAction", NetError::NotSupported},
};

NetError errorOfSubcode(std::string_view subcode)
{
    const auto *const meaning =
        std::find_if(meanings.begin(), meanings.end(),
                     [subcode](const auto &candidate) { return candidate.subcode == subcode; });
    return meaning == meanings.end() ? NetError::None : meaning->error;
}

/// The error of a fault of either version of SOAP. Each code may have a subcode, several levels deep; the
/// outermost that has a meaning decides.
NetError errorOfFault(const XmlElement &fault)
{
    XmlElement code = fault.child(ns::envelope, "Code");
    while (code.exists()) {
        const std::string_view value = code.child(ns::envelope, "Value").localText();
        if (const NetError error = errorOfSubcode(value); error != NetError::None)
            return error;
        code = code.child(ns::envelope, "Subcode");
    }
    for (const XmlElement &older :
         {fault.child({}, "faultcode"), fault.child(ns::olderEnvelope, "faultcode")}) {
        if (const NetError error = errorOfSubcode(older.localText()); error != NetError::None)
            return error;
    }
    return NetError::Refused;
}

std::string reasonOfFault(const XmlElement &fault)
{
    std::string_view text = fault.child(ns::envelope, "Reason").child(ns::envelope, "Text").text();
    if (text.empty())
        text = fault.child({}, "faultstring").text();
    return std::string(text.substr(0, longestReason));
}

NetError errorOfEnd(HttpEnd end)
{
    switch (end) {
    case HttpEnd::Answered:
        return NetError::None;
    case HttpEnd::NotReached:
    case HttpEnd::NoAnswer: // over a connection that was kept, or through a router
        return NetError::ConnectTimeout;
    case HttpEnd::NotAccepted:
        return NetError::ConnectFailed;
    case HttpEnd::Broken:
    case HttpEnd::Cancelled:
        return NetError::NetworkFailure;
    case HttpEnd::TooLarge:
        return NetError::ProtocolMismatch;
    case HttpEnd::UnknownCertificate:
        return NetError::UnknownCertificate;
    case HttpEnd::ChangedCertificate:
        return NetError::ChangedCertificate;
    }
    return NetError::NetworkFailure;
}

NetError errorOfStatus(long status)
{
    switch (status) {
    case unauthorised:
        return NetError::WrongPassword;
    case forbidden:
        return NetError::Refused;
    case notFound:
        return NetError::NotSupported;
    default:
        return NetError::ProtocolMismatch;
    }
}

} // namespace

SoapAnswer readSoapAnswer(const HttpAnswer &answer)
{
    SoapAnswer read;
    read.error = errorOfEnd(answer.end);
    if (!read.isOk())
        return read;
    std::optional<XmlDocument> document = XmlDocument::read(answer.body);
    if (!document) {
        read.error = errorOfStatus(answer.status);
        return read;
    }
    read.document = std::make_unique<XmlDocument>(std::move(*document));
    const XmlElement root = read.document->root();
    for (const std::string_view uri : {ns::envelope, ns::olderEnvelope}) {
        const XmlElement body = root.is(uri, "Envelope") ? root.child(uri, "Body") : XmlElement();
        if (!body.exists())
            continue;
        // A fault counts whatever the status is: devices send it with 200, 400, 401, 403 and 500.
        if (const XmlElement fault = body.child(uri, "Fault"); fault.exists()) {
            read.error = answer.status == forbidden ? NetError::Refused : errorOfFault(fault);
            if (answer.status == unauthorised)
                read.error = NetError::WrongPassword;
            read.reason = reasonOfFault(fault);
            return read;
        }
        if (answer.status == 200)
            read.content = body.firstChild();
    }
    if (!read.content.exists())
        read.error = errorOfStatus(answer.status);
    return read;
}

SoapClient::SoapClient(HttpLogin login, std::shared_ptr<HttpClient> http)
    : m_http(std::move(http)), m_login(std::move(login))
{
}

void SoapClient::setPassword(const std::string &password)
{
    const std::scoped_lock lock(m_mutex);
    m_login.password = password;
}

HttpLogin SoapClient::login() const
{
    const std::scoped_lock lock(m_mutex);
    return m_login;
}

NetError SoapClient::refusal() const
{
    return m_isConfirmed ? NetError::SessionEnded : NetError::WrongPassword;
}

SoapAnswer SoapClient::callOpenly(const ServiceAddress &service, const SoapRequest &request,
                                  Deadline deadline)
{
    LoginMethod offered = LoginMethod::Unknown;
    return send(service, request, LoginMethod::Unknown, deadline, offered);
}

SoapAnswer SoapClient::call(const ServiceAddress &service, const SoapRequest &request, Deadline deadline)
{
    if (m_isRefused)
        return {.error = refusal(), .reason = {}, .document = {}, .content = {}};
    LoginMethod offered = LoginMethod::Unknown;
    if (m_method == LoginMethod::Unknown) {
        SoapAnswer answer = send(service, request, LoginMethod::Unknown, deadline, offered);
        if (answer.error != NetError::WrongPassword)
            return answer;
        m_method = offered;
    }
    SoapAnswer answer = send(service, request, m_method, deadline, offered);
    if (answer.error == NetError::WrongPassword) {
        m_isRefused = true;
        answer.error = refusal();
    } else if (answer.isOk()) {
        m_isConfirmed = true;
    }
    return answer;
}

SoapAnswer SoapClient::send(const ServiceAddress &service, const SoapRequest &request, LoginMethod method,
                            Deadline deadline, LoginMethod &offered)
{
    const HttpLogin login = this->login();
    std::string header;
    if (method == LoginMethod::Token) {
        const auto deviceTime =
            std::chrono::system_clock::now() + std::chrono::milliseconds(m_clockOffset.load());
        header = passwordToken(login.account, login.password, deviceTime);
    }
    const HttpAnswer answer =
        m_http->post(service, request.text(header), "application/soap+xml; charset=utf-8",
                     method == LoginMethod::Digest ? &login : nullptr, deadline);
    offered = answer.offersDigest ? LoginMethod::Digest : LoginMethod::Token;
    SoapAnswer read = readSoapAnswer(answer);
    if (!read.isOk())
        qCDebug(logOnvif) << service.url().c_str() << request.operation().name() << "status" << answer.status
                          << "error" << Qt::hex << static_cast<std::uint32_t>(read.error)
                          << read.reason.c_str();
    return read;
}

} // namespace sdk::onvif
