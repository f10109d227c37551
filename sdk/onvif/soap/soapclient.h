// Calls of operations of a device's services.
#pragma once

#include "sdk/neterror.h"
#include "sdk/onvif/soap/httpclient.h"
#include "sdk/onvif/soap/soaprequest.h"
#include "sdk/onvif/soap/xmldocument.h"

#include <atomic>
#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <utility>

namespace sdk::onvif {

/// The login method of a device.
enum class LoginMethod
{
    Unknown, ///< no request with a login has been made
    Token,   ///< user-name token of WS-Security in the SOAP header
    Digest,  ///< HTTP Digest
};

/// The response to a call.
///
/// Errors of the connection: ConnectFailed for a closed port, ConnectTimeout for a device that is not reached
/// or does not respond in time, UnknownCertificate, ChangedCertificate, NetworkFailure for a broken or
/// cancelled exchange. Errors of the device: WrongPassword, AccountLocked, SessionEnded (see SoapClient),
/// NotSupported for an unknown operation, InvalidValue for refused parameters, Refused for any other fault.
/// ProtocolMismatch for a response that is too large or not of the protocol.
struct SoapResponse
{
    NetError error = NetError::None;
    bool mayLackRight = false;                  ///< the fault may mean a wrong password or a missing right
    std::string reason = {};                    ///< the text of a fault, for a log; empty without a fault
    std::unique_ptr<XmlDocument> document = {}; ///< owns the elements of `content`
    XmlElement content = {};                    ///< the first element of the body; empty on failure

    [[nodiscard]] bool isOk() const { return error == NetError::None; }
};

/// Calls operations of one device with one account. Thread-safe, except setClockReader().
///
/// With an empty account no login is sent: a call fails with WrongPassword if the device requires one.
///
/// Every request is sent without the login until the device refuses one: the refusal contains the device's
/// login method. So a wrong password is sent once, not once for each method. Until the device has accepted
/// the password, one call at a time runs. After the device has refused the password, no further call sends
/// anything: each fails with WrongPassword, with SessionEnded if the password was accepted before, or with
/// AccountLocked.
///
/// A refusal applies to the password that was sent: if setPassword() has changed it meanwhile, the call is
/// repeated. If the password was accepted before, two other causes are excluded first. The clock of the
/// device may have been set, which invalidates tokens: the clock is read again, and the call is repeated if
/// the clock differs. The account may lack the right for the operation: the operation that first succeeded
/// with the password is then repeated, if it is a reading one without parameters. If the device still accepts
/// it, the call fails with Refused, and later calls send the password.
class SoapClient
{
public:
    using Deadline = std::chrono::steady_clock::time_point;

    /// Reads the device's clock without a login. Returns its time minus the time of this host; nothing on
    /// failure. Called on the thread of a call.
    using ClockReader = std::function<std::optional<std::chrono::milliseconds>(Deadline deadline)>;

    /// `http` (not null) sends the requests. Other clients may share it.
    SoapClient(HttpLogin login, std::shared_ptr<HttpClient> http);

    /// To be set before the first call. Without a reader, the clock is not read again.
    void setClockReader(ClockReader reader) { m_readClock = std::move(reader); }

    /// Sends `request` with the login, if the device needs one. Blocks until `deadline` at most, or until the
    /// RunningCall of the calling thread is stopped.
    [[nodiscard]] SoapResponse call(const ServiceAddress &service, const SoapRequest &request,
                                    Deadline deadline);

    /// A call that never sends the login, and that is sent even after a refusal of the password.
    /// WrongPassword means that the device requires a login. Its result does not affect later calls.
    [[nodiscard]] SoapResponse callOpenly(const ServiceAddress &service, const SoapRequest &request,
                                          Deadline deadline);

    /// Sets the time of the device minus the time of this host, for the token.
    void setClockOffset(std::chrono::milliseconds offset) { m_clockOffset = offset.count(); }

    /// While a thread holds the lock, calls of other threads wait before they evaluate a refusal. Used by a
    /// call that changes the password at the device, until it has called setPassword(). The client must
    /// outlive the lock.
    [[nodiscard]] std::unique_lock<std::recursive_mutex> delayRefusals() { return std::unique_lock(m_order); }

    /// Sets the password of later calls, after it was changed at the device. A different password clears the
    /// refusal of the previous one.
    void setPassword(const std::string &password);

    /// True if the device has accepted the password in a call.
    [[nodiscard]] bool isConfirmed() const { return m_isConfirmed; }

    /// The error of every further call, after the device has refused the password; nothing before.
    [[nodiscard]] std::optional<NetError> refusal() const;

    /// Notes that the device has refused `refused` in another protocol, such as RTSP: further calls then fail
    /// as after a refused call. Without effect if the login of the client is no longer `refused`.
    void setRefused(const HttpLogin &refused);

    /// The present account and password.
    [[nodiscard]] HttpLogin login() const;
    /// The client that sends the requests.
    [[nodiscard]] HttpClient &http() { return *m_http; }

private:
    /// The login data of a sent request.
    struct SentLogin
    {
        HttpLogin login = {};
        std::int64_t clockOffset = 0; ///< milliseconds
    };

    /// The first operation without parameters that the device accepted only with the login.
    struct Proof
    {
        ServiceAddress service = {};
        std::string operation = {};
    };

    [[nodiscard]] SoapResponse send(const ServiceAddress &service, const SoapRequest &request,
                                    LoginMethod method, Deadline deadline, LoginMethod &offered,
                                    const SentLogin &sent);
    [[nodiscard]] SoapResponse sendLogin(const ServiceAddress &service, const SoapRequest &request,
                                         Deadline deadline, SentLogin &sent);
    [[nodiscard]] SoapResponse judgeRefusal(SoapResponse response, SentLogin sent,
                                            const ServiceAddress &service, const SoapRequest &request,
                                            Deadline deadline);
    [[nodiscard]] bool hasClockMoved(const SentLogin &sent, Deadline deadline);
    [[nodiscard]] NetError provePassword(Deadline deadline);
    void confirm(const ServiceAddress &service, const SoapRequest &request);
    NetError noteRefusal(NetError error);

    const std::shared_ptr<HttpClient> m_http;
    ClockReader m_readClock;
    std::recursive_mutex m_order; ///< held while the password is unconfirmed; before m_mutex
    mutable std::mutex m_mutex;   ///< guards the next three members
    HttpLogin m_login;
    std::optional<NetError> m_refusal;
    std::optional<Proof> m_proof;
    std::atomic<std::int64_t> m_clockOffset = 0; ///< milliseconds
    std::atomic<LoginMethod> m_method = LoginMethod::Unknown;
    std::atomic_bool m_isConfirmed = false;
};

/// Reads the response of an HTTP exchange: the content of the body, or the error of a fault or of the status.
/// `reason` is the text of the fault.
[[nodiscard]] SoapResponse readSoapResponse(const HttpResponse &response);

} // namespace sdk::onvif
