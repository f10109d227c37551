// How one command is sent to one device.
#pragma once

#include "cgi/httptransport.h"

#include <QCoreApplication>
#include <QDateTime>

/// What a command is sent with. The functions are called on the thread that sends it.
struct CgiSurroundings
{
    /// Whether the device at `ipport` lets the account in, as a LoginResult.
    using LoginCheck =
        std::function<int(const QString &ipport, const QString &account, const QString &password)>;

    LoginCheck checkLogin;
    std::shared_ptr<HttpTransport> transport;
    QString folder;                       ///< where pictures and recordings are saved
    std::function<QDateTime()> localTime; ///< which names them
    ExchangeWatch watch = {};             ///< ends a request at once; may be empty

    /// Makes a path of the answer's own out of the one that the time gives; empty where a later answer may
    /// replace one of the same second.
    std::function<QString(const QString &path)> ownPath = {};
};

/// The limits of the exchanges that a command may take.
struct CgiLimits
{
    HttpLimits first{.total = std::chrono::milliseconds(3000)};
    HttpLimits text{.total = std::chrono::milliseconds(30000)};
    HttpLimits picture{.total = std::chrono::milliseconds(10000)};
    HttpLimits recording{.slowestRate = 1024, .slowTime = std::chrono::seconds(10)};
    qsizetype longestText = 8LL * 1024 * 1024;
    qsizetype largestPicture = 64LL * 1024 * 1024;
};

/// Begins the result of a command that failed.
inline const QString failedResult = QStringLiteral("Error:");

/// What has come of a command.
struct CgiAnswer
{
    QString text;                ///< see CgiProcedure::run()
    bool isUnanswered = false;   ///< no answer has come to its end: another try may succeed
    bool isLoginRefused = false; ///< the web service does not accept the account, or not its password

    /// Why nothing was sent over HTTPS: the certificate of the device.
    std::optional<sdk::CertificateVerdict> certificateRefusal = {};
};

/// The login is checked first, so that a wrong password is told in the device's own terms. Then the command
/// is sent to see what the answer will be, and, when it is accepted, once more to take the answer in the
/// right way: a command that changes something reaches the device twice.
class CgiProcedure
{
    Q_DECLARE_TR_FUNCTIONS(CgiProcedure)
public:
    CgiProcedure(const CgiSurroundings &surroundings, const CgiLimits &limits);

    /// Blocks. The text of the answer, or the path of the file that it was saved in, or "Error:" and why not.
    /// Empty when the file could not be created. What there is of a recording that breaks off is kept in a
    /// file that the result names.
    [[nodiscard]] QString run(const QString &url, const QString &user, const QString &password,
                              const QString &ipport) const;

    /// The same for a device that has let the account in.
    [[nodiscard]] CgiAnswer exchange(const QString &url, const QString &user, const QString &password) const;

    /// Why a login with this result forbids the command, in the user's language; empty when it does not.
    [[nodiscard]] static QString loginRefusal(int loginResult);

private:
    /// What an answer was turned into.
    struct Taken
    {
        QString text;
        QString failure;
        bool isCut = false; ///< the answer has not come to its end
    };

    [[nodiscard]] Taken take(HttpConversation &conversation, const HttpOutcome &first) const;
    [[nodiscard]] Taken takeText(HttpConversation &conversation) const;
    [[nodiscard]] Taken takePicture(HttpConversation &conversation, const QString &path,
                                    const HttpOutcome &first) const;
    [[nodiscard]] Taken takeRecording(HttpConversation &conversation, const QString &path,
                                      const HttpOutcome &first) const;
    [[nodiscard]] HttpOutcome perform(HttpConversation &conversation, const HttpLimits &limits,
                                      const BodySink &sink) const;

    const CgiSurroundings &m_surroundings;
    const CgiLimits m_limits;
};
