// Sending one command to one device.
#pragma once

#include "cgi/httptransport.h"

#include <QCoreApplication>
#include <QDateTime>

/// The context of a command. The functions are called on the thread that sends the command.
struct CgiSurroundings
{
    /// Logs in to the device at `ipport` ("address:port" of the login, not of the web service). Returns the
    /// code of a LoginResult. Blocks.
    using LoginCheck =
        std::function<int(const QString &ipport, const QString &account, const QString &password)>;

    LoginCheck checkLogin;                    ///< required, except for CgiProcedure::exchange()
    std::shared_ptr<HttpTransport> transport; ///< required
    QString folder;                           ///< for images and recordings; created if missing
    std::function<QDateTime()> localTime;     ///< the current time, for the names of their files; required
    ExchangeWatch watch = {};                 ///< false ends a request immediately; may be empty

    /// Returns the path of the file for an image or a recording. `path` is the path by the time (see
    /// responseFilePath()), which responses of the same second share. Without this function `path` is used,
    /// and a later response of the same second replaces the earlier one.
    std::function<QString(const QString &path)> ownPath = {};

    /// If true, the reason of a failed transfer is in the user's language, followed by the library's text,
    /// and the reason of a failure by another status than 200 contains the status. If false, the reason of a
    /// failed transfer is the library's text only, and the status is stated only if the second request has
    /// it. All other reasons are in the user's language in both cases.
    bool explainsFailures = false;
};

/// The limits of a command's exchanges. A recording has no limit of its size.
struct CgiLimits
{
    HttpLimits first{.total = std::chrono::milliseconds(3000)}; ///< the request whose body is discarded
    HttpLimits text{.total = std::chrono::milliseconds(30000)};
    HttpLimits image{.total = std::chrono::milliseconds(10000)};
    HttpLimits recording{.slowestRate = 1024, .slowTime = std::chrono::seconds(10)};
    qsizetype longestText = 8LL * 1024 * 1024;   ///< bytes; a longer text is a failure
    qsizetype largestImage = 64LL * 1024 * 1024; ///< bytes; a larger image is a failure
};

/// The prefix of the result of a failed command.
inline const QString failedResult = QStringLiteral("Error:");

/// The result of a command.
struct CgiResponse
{
    QString text; ///< see CgiProcedure::run()
    // The following members describe the request that decided about the failure: the second one if it was
    // sent, otherwise the first one.

    /// Failed without a complete response, also because of a stop: another attempt may succeed.
    bool hasNoResponse = false;
    /// The web service refuses the account or its password: the response has status 401 (the response to the
    /// repeated request, if the first one was repeated with Basic). A command that changes the password of
    /// its account has this result, since it is sent twice.
    bool isLoginRefused = false;

    /// The verdict on the device's certificate, if it prevented the request over HTTPS.
    std::optional<sdk::CertificateVerdict> certificateRefusal = {};
};

/// Sends one command. The login is checked first, so that a wrong password is reported by the device's own
/// result. Then the command is sent, and the body of the response is discarded: its headers give the type of
/// the response. If the status is 200, even of an incomplete response, the command is sent again, and the
/// response is received by its type. So a command that changes something reaches the device twice. Any other
/// status is a failure.
///
/// If the response to the first request has status 401 and requests Basic or no scheme, that request is
/// repeated with Basic, which then applies to the second request as well.
///
/// An object may be used on several threads at the same time if the functions of its surroundings may.
class CgiProcedure
{
    Q_DECLARE_TR_FUNCTIONS(CgiProcedure)
public:
    /// `surroundings` must outlive this object.
    CgiProcedure(const CgiSurroundings &surroundings, const CgiLimits &limits);

    /// Blocks. `url` is complete, with its scheme; `ipport` is the "address:port" of the login. Returns the
    /// text of a text response, the path of the file of an image or a recording, or "Error:" and the reason.
    /// When the file cannot be created, a warning is logged, and the result depends on the first response: an
    /// empty text if it was complete, otherwise "Error:" and the reason why it was not. The received part of
    /// an incomplete recording is kept in a file, whose path follows the reason on a new line.
    [[nodiscard]] QString run(const QString &url, const QString &user, const QString &password,
                              const QString &ipport) const;

    /// The same without the check of the login. Sends nothing if CgiRequest::refusal() is not empty, which is
    /// the reason then.
    [[nodiscard]] CgiResponse exchange(const QString &url, const QString &user,
                                       const QString &password) const;

    /// The reason why a login with this result prevents the command, in the user's language. The results that
    /// prevent it are NoSuchAccount, WrongPassword, AccountLocked, NetworkFailure, NotInitialised, Upgrading,
    /// UnknownCertificate and ChangedCertificate of LoginResult, and 99 (unknown error). Empty for all
    /// others.
    [[nodiscard]] static QString loginRefusal(int loginResult);

private:
    /// The result of the requests, with the members of CgiResponse.
    struct Received
    {
        QString text;
        QString failure; ///< empty on success
        bool isIncomplete = false;
        bool isLoginRefused = false;
        std::optional<sdk::CertificateVerdict> certificateRefusal = {};
    };

    /// The reason why an exchange failed; empty on success.
    [[nodiscard]] QString failureOf(const HttpOutcome &outcome) const;
    /// The same, also for a status other than 200. The reason contains the status if `statesStatus`.
    [[nodiscard]] QString failureOrStatusOf(const HttpOutcome &outcome, bool statesStatus) const;
    /// The same for the second exchange, in which the device may respond with an error page.
    [[nodiscard]] QString secondFailureOf(const HttpOutcome &outcome) const;
    /// The result of an exchange without a text; `failure` is empty on success.
    [[nodiscard]] Received ended(const HttpOutcome &outcome, const QString &failure) const;
    [[nodiscard]] Received receive(PreparedHttpRequest &prepared, const HttpOutcome &first) const;
    [[nodiscard]] Received receiveText(PreparedHttpRequest &prepared) const;
    [[nodiscard]] Received receiveImage(PreparedHttpRequest &prepared, const QString &path,
                                        const HttpOutcome &first) const;
    [[nodiscard]] Received receiveRecording(PreparedHttpRequest &prepared, const QString &path,
                                            const HttpOutcome &first) const;
    [[nodiscard]] HttpOutcome perform(PreparedHttpRequest &prepared, const HttpLimits &limits,
                                      const BodySink &sink) const;

    const CgiSurroundings &m_surroundings;
    const CgiLimits m_limits;
};
