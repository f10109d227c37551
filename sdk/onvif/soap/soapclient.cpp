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

/// A device reports its clock in seconds.
constexpr std::chrono::milliseconds largestClockError{2000};

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

/// The error of a fault of either version of SOAP. Subcodes may be nested; the outermost known one decides.
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

/// True if a fault has the subcode of a missing right, which most devices also send for a wrong password.
bool isNotAuthorized(const XmlElement &fault)
{
    constexpr std::string_view subcode = "NotAuthorized";
    XmlElement code = fault.child(ns::envelope, "Code");
    while (code.exists()) {
        if (code.child(ns::envelope, "Value").localText() == subcode)
            return true;
        code = code.child(ns::envelope, "Subcode");
    }
    return fault.child({}, "faultcode").localText() == subcode;
}

bool isRefusedLogin(NetError error)
{
    return error == NetError::WrongPassword || error == NetError::AccountLocked;
}

bool isSameLogin(const HttpLogin &left, const HttpLogin &right)
{
    return left.account == right.account && left.password == right.password;
}

SoapResponse failedResponse(NetError error)
{
    SoapResponse response;
    response.error = error;
    return response;
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
    case HttpEnd::Responded:
        return NetError::None;
    case HttpEnd::NotReached:
    case HttpEnd::NoResponse: // over a persistent connection, or through a router
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

SoapResponse readSoapResponse(const HttpResponse &response)
{
    SoapResponse read;
    read.error = errorOfEnd(response.end);
    if (!read.isOk())
        return read;
    std::optional<XmlDocument> document = XmlDocument::read(response.body);
    if (!document) {
        read.error = errorOfStatus(response.status);
        return read;
    }
    read.document = std::make_unique<XmlDocument>(std::move(*document));
    const XmlElement root = read.document->root();
    for (const std::string_view uri : {ns::envelope, ns::olderEnvelope}) {
        const XmlElement body = root.is(uri, "Envelope") ? root.child(uri, "Body") : XmlElement();
        if (!body.exists())
            continue;
        // A fault is evaluated regardless of the status: devices send it with 200, 400, 401, 403 and 500.
        if (const XmlElement fault = body.child(uri, "Fault"); fault.exists()) {
            read.error = response.status == forbidden ? NetError::Refused : errorOfFault(fault);
            if (response.status == unauthorised)
                read.error = NetError::WrongPassword;
            read.mayLackRight = response.status != unauthorised && isNotAuthorized(fault);
            read.reason = reasonOfFault(fault);
            return read;
        }
        if (response.status == 200)
            read.content = body.firstChild();
    }
    if (!read.content.exists())
        read.error = errorOfStatus(response.status);
    return read;
}

SoapClient::SoapClient(HttpLogin login, std::shared_ptr<HttpClient> http)
    : m_http(std::move(http)), m_login(std::move(login))
{
}

void SoapClient::setPassword(const std::string &password)
{
    const std::scoped_lock lock(m_mutex);
    if (m_login.password != password)
        m_refusal.reset();
    m_login.password = password;
}

HttpLogin SoapClient::login() const
{
    const std::scoped_lock lock(m_mutex);
    return m_login;
}

std::optional<NetError> SoapClient::refusal() const
{
    const std::scoped_lock lock(m_mutex);
    return m_refusal;
}

void SoapClient::setRefused(const HttpLogin &refused)
{
    const std::scoped_lock order(m_order);
    if (isSameLogin(refused, login()))
        noteRefusal(NetError::WrongPassword);
}

NetError SoapClient::noteRefusal(NetError error)
{
    if (error == NetError::WrongPassword && m_isConfirmed)
        error = NetError::SessionEnded;
    const std::scoped_lock lock(m_mutex);
    m_refusal = error;
    return error;
}

void SoapClient::confirm(const ServiceAddress &service, const SoapRequest &request)
{
    if (m_isConfirmed)
        return;
    // Only read operations are repeated.
    if (request.name().starts_with("Get") && !request.operation().first_child()) {
        const std::scoped_lock lock(m_mutex);
        m_proof = {.service = service, .operation = request.operation().name()};
    }
    m_isConfirmed = true;
}

SoapResponse SoapClient::callOpenly(const ServiceAddress &service, const SoapRequest &request,
                                    Deadline deadline)
{
    LoginMethod offered = LoginMethod::Unknown;
    return send(service, request, LoginMethod::Unknown, deadline, offered, {});
}

SoapResponse SoapClient::call(const ServiceAddress &service, const SoapRequest &request, Deadline deadline)
{
    std::unique_lock order(m_order, std::defer_lock);
    if (!m_isConfirmed) {
        order.lock();
        if (m_isConfirmed)
            order.unlock();
    }
    if (const std::optional<NetError> refused = refusal())
        return failedResponse(*refused);
    if (m_method == LoginMethod::Unknown) {
        LoginMethod offered = LoginMethod::Unknown;
        SoapResponse response = send(service, request, LoginMethod::Unknown, deadline, offered, {});
        // The device would count an empty account as a failed login.
        if (response.error != NetError::WrongPassword || login().account.empty())
            return response;
        m_method = offered;
    }
    SentLogin sent;
    SoapResponse response = sendLogin(service, request, deadline, sent);
    if (response.isOk())
        confirm(service, request);
    if (!isRefusedLogin(response.error))
        return response;
    if (!order.owns_lock())
        order.lock();
    return judgeRefusal(std::move(response), std::move(sent), service, request, deadline);
}

SoapResponse SoapClient::judgeRefusal(SoapResponse response, SentLogin sent, const ServiceAddress &service,
                                      const SoapRequest &request, Deadline deadline)
{
    if (const std::optional<NetError> refused = refusal())
        return failedResponse(*refused);
    const bool isOutdated = !isSameLogin(sent.login, login());
    if (isOutdated || (response.error == NetError::WrongPassword && hasClockMoved(sent, deadline))) {
        response = sendLogin(service, request, deadline, sent);
        if (!isRefusedLogin(response.error))
            return response;
    }
    NetError refused = response.error;
    if (response.mayLackRight && m_isConfirmed)
        refused = provePassword(deadline);
    if (refused == NetError::None)
        response.error = NetError::Refused;
    else
        response.error = isRefusedLogin(refused) ? noteRefusal(refused) : refused;
    return response;
}

bool SoapClient::hasClockMoved(const SentLogin &sent, Deadline deadline)
{
    // Until the password is accepted, the clock is new: the login has just read it.
    if (!m_isConfirmed || m_method != LoginMethod::Token || !m_readClock)
        return false;
    const std::optional<std::chrono::milliseconds> offset = m_readClock(deadline);
    if (!offset)
        return false;
    setClockOffset(*offset);
    return std::chrono::abs(*offset - std::chrono::milliseconds(sent.clockOffset)) > largestClockError;
}

/// Returns None if the device still accepts the password, otherwise WrongPassword or AccountLocked.
NetError SoapClient::provePassword(Deadline deadline)
{
    std::optional<Proof> proof;
    {
        const std::scoped_lock lock(m_mutex);
        proof = m_proof;
    }
    if (!proof)
        return NetError::WrongPassword;
    SentLogin sent;
    return sendLogin(proof->service, SoapRequest(proof->operation), deadline, sent).error;
}

SoapResponse SoapClient::sendLogin(const ServiceAddress &service, const SoapRequest &request,
                                   Deadline deadline, SentLogin &sent)
{
    sent = {.login = login(), .clockOffset = m_clockOffset.load()};
    LoginMethod offered = LoginMethod::Unknown;
    return send(service, request, m_method, deadline, offered, sent);
}

SoapResponse SoapClient::send(const ServiceAddress &service, const SoapRequest &request, LoginMethod method,
                              Deadline deadline, LoginMethod &offered, const SentLogin &sent)
{
    std::string header;
    if (method == LoginMethod::Token) {
        const auto deviceTime =
            std::chrono::system_clock::now() + std::chrono::milliseconds(sent.clockOffset);
        header = passwordToken(sent.login.account, sent.login.password, deviceTime);
    }
    const HttpResponse response =
        m_http->post(service, request.text(header), "application/soap+xml; charset=utf-8",
                     method == LoginMethod::Digest ? &sent.login : nullptr, deadline);
    offered = response.offersDigest ? LoginMethod::Digest : LoginMethod::Token;
    SoapResponse read = readSoapResponse(response);
    if (!read.isOk())
        qCDebug(logOnvif) << service.url().c_str() << request.operation().name() << "status"
                          << response.status << "error" << Qt::hex << static_cast<std::uint32_t>(read.error)
                          << read.reason.c_str();
    return read;
}

} // namespace sdk::onvif
