// Sending one command to one device.
#pragma once

#include "cgi/httptransport.h"

#include <QCoreApplication>
#include <QDateTime>

/// The context of a command. The functions are called on the thread that sends it.
struct CgiSurroundings
{
    /// Logs in to the device at `ipport`. Returns a LoginResult.
    using LoginCheck =
        std::function<int(const QString &ipport, const QString &account, const QString &password)>;

    LoginCheck checkLogin;
    std::shared_ptr<HttpTransport> transport;
    QString folder;                       ///< for images and recordings; created if missing
    std::function<QDateTime()> localTime; ///< for their file names
    ExchangeWatch watch = {};             ///< ends a request immediately; may be empty

    /// Returns a unique path for a path by the time. Without this function, a later response replaces one of
    /// the same second.
    std::function<QString(const QString &path)> ownPath = {};

    /// If true, the reason of a failure is in the user's language, followed by the library's text and the
    /// status of the response. Otherwise it is only the library's text.
    bool explainsFailures = false;
};

/// The limits of a command's exchanges.
struct CgiLimits
{
    HttpLimits first{.total = std::chrono::milliseconds(3000)};
    HttpLimits text{.total = std::chrono::milliseconds(30000)};
    HttpLimits image{.total = std::chrono::milliseconds(10000)};
    HttpLimits recording{.slowestRate = 1024, .slowTime = std::chrono::seconds(10)};
    qsizetype longestText = 8LL * 1024 * 1024;
    qsizetype largestImage = 64LL * 1024 * 1024;
};

/// The prefix of the result of a failed command.
inline const QString failedResult = QStringLiteral("Error:");

/// The result of a command.
struct CgiResponse
{
    QString text;                ///< see CgiProcedure::run()
    bool hasNoResponse = false;  ///< no complete response: another attempt may succeed
    bool isLoginRefused = false; ///< the web service refuses the account or its password (status 401)

    /// The verdict on the device's certificate, if it prevented a request over HTTPS.
    std::optional<sdk::CertificateVerdict> certificateRefusal = {};
};

/// The login is checked first, so that a wrong password is reported by the device's own result. Then the
/// command is sent to determine the type of the response, and, if it is accepted, sent again to receive the
/// response accordingly: a command that changes something reaches the device twice. The first of these
/// requests is repeated with Basic if the device refuses it and requests Basic or no scheme.
class CgiProcedure
{
    Q_DECLARE_TR_FUNCTIONS(CgiProcedure)
public:
    /// `surroundings` must outlive this object.
    CgiProcedure(const CgiSurroundings &surroundings, const CgiLimits &limits);

    /// Blocks. Returns the text of the response, the path of the file that it was saved to, or "Error:" and
    /// the reason. Empty when the file could not be created (this is logged). An incomplete recording is kept
    /// in a file, whose name is in the result.
    [[nodiscard]] QString run(const QString &url, const QString &user, const QString &password,
                              const QString &ipport) const;

    /// The same without the check of the login.
    [[nodiscard]] CgiResponse exchange(const QString &url, const QString &user,
                                       const QString &password) const;

    /// The reason why a login with this result prevents the command, in the user's language; empty if it does
    /// not.
    [[nodiscard]] static QString loginRefusal(int loginResult);

private:
    /// A received response.
    struct Received
    {
        QString text;
        QString failure;
        bool isIncomplete = false; ///< the response is incomplete
    };

    /// The reason why an exchange failed; empty on success.
    [[nodiscard]] QString failureOf(const HttpOutcome &outcome) const;
    /// The same for the second exchange, in which the device may respond with an error page.
    [[nodiscard]] QString secondFailureOf(const HttpOutcome &outcome) const;
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
