#include "cgi/cgiprocedure.h"

#include "cgi/answerkind.h"
#include "cgi/internal/partialfile.h"
#include "cgi/logging.h"
#include "files/filereplacement.h"

#include <QSaveFile>

namespace {

constexpr long accepted = 200;
constexpr long credentialsWanted = 401;

QString unknownCertificateText()
{
    return CgiProcedure::tr("设备证书未确认。");
}

QString changedCertificateText()
{
    return CgiProcedure::tr("设备证书已改变。");
}

/// Why an exchange did not bring what was asked for; empty when it did. The words of the library would speak
/// of a full disk when the headers are too long.
QString failureOf(const HttpOutcome &outcome)
{
    if (outcome.hasTooLongHeaders)
        return CgiProcedure::tr("应答头过大。");
    if (outcome.certificateRefusal)
        return outcome.certificateRefusal == sdk::CertificateVerdict::Changed ? changedCertificateText()
                                                                              : unknownCertificateText();
    return outcome.isStopped ? CgiProcedure::tr("操作已停止。") : outcome.failure;
}

/// The same for the second exchange: the device may have changed its mind, and sends a page that says so.
QString secondFailureOf(const HttpOutcome &outcome)
{
    QString failure = failureOf(outcome);
    if (!failure.isEmpty() || outcome.status == accepted)
        return failure;
    return CgiProcedure::tr("服务器连接失败") + QStringLiteral(" (HTTP %1)").arg(outcome.status);
}

/// Whether an exchange ended before the answer did: the same request again may get the whole of it.
bool isCut(const HttpOutcome &outcome)
{
    return !outcome.failure.isEmpty() && !outcome.hasTooLongHeaders;
}

/// Whether answers with status 401 leave it open to send the password as it is: they ask for that, or name no
/// way to log in. A device that asks for Digest alone has refused the password.
bool takesBasic(const QByteArray &headers)
{
    bool namesScheme = false;
    for (const QByteArray &line : headers.split('\n')) {
        const qsizetype colon = line.indexOf(':');
        if (colon < 0 || line.first(colon).trimmed().compare("WWW-Authenticate", Qt::CaseInsensitive) != 0)
            continue;
        const QByteArray challenge = line.sliced(colon + 1).trimmed();
        if (challenge.toLower().startsWith("basic") || challenge.toLower().contains(", basic "))
            return true;
        namesScheme = namesScheme || !challenge.isEmpty();
    }
    return !namesScheme;
}

void noteCannotWrite(const QString &path, const QString &failure)
{
    qCWarning(logCgi).noquote() << "cannot write" << path << "-" << failure;
}

void noteResult(const QString &text)
{
    constexpr qsizetype longest = 16LL * 1024; // an answer may have megabytes
    qCDebug(logCgi).noquote().nospace() << "Response Body: " << text.left(longest);
}

} // namespace

CgiProcedure::CgiProcedure(const CgiSurroundings &surroundings, const CgiLimits &limits)
    : m_surroundings(surroundings), m_limits(limits)
{
}

QString CgiProcedure::loginRefusal(int loginResult)
{
    // The one code that is no LoginResult: something that no back end has a name for.
    constexpr int unknownCertificate = 18;
    constexpr int changedCertificate = 19;
    constexpr int unknownError = 99;
    constexpr int noSuchAccount = 1;
    constexpr int wrongPassword = 2;
    constexpr int accountLocked = 3;
    constexpr int networkFailure = 5;
    constexpr int notInitialised = 7;
    constexpr int upgrading = 14;
    switch (loginResult) {
    case noSuchAccount:
    case wrongPassword:
        return tr("账号或密码错误。");
    case accountLocked:
        return tr("设备被锁定。");
    case networkFailure:
        return tr("网络连接失败。");
    case notInitialised:
        return tr("设备未初始化。");
    case upgrading:
        return tr("设备正在升级。");
    case unknownCertificate:
        return unknownCertificateText();
    case changedCertificate:
        return changedCertificateText();
    case unknownError:
        return tr("未知错误。");
    default:
        return {};
    }
}

QString CgiProcedure::run(const QString &url, const QString &user, const QString &password,
                          const QString &ipport) const
{
    const QString refusal = loginRefusal(m_surroundings.checkLogin(ipport, user, password));
    if (!refusal.isEmpty())
        return failedResult + refusal;
    return exchange(url, user, password).text;
}

CgiAnswer CgiProcedure::exchange(const QString &url, const QString &user, const QString &password) const
{
    const CgiRequest request(url, user, password);
    if (!request.refusal().isEmpty())
        return {.text = failedResult + request.refusal()};
    const std::unique_ptr<HttpConversation> conversation = m_surroundings.transport->open(request);
    if (!conversation)
        return {.text = failedResult + tr("未知错误。")};

    HttpOutcome first = perform(*conversation, m_limits.first, {});
    if (first.status == credentialsWanted && !first.isStopped && takesBasic(conversation->headerText())) {
        conversation->useBasic();
        first = perform(*conversation, m_limits.first, {});
    }
    Taken taken = {.text = {}, .failure = failureOf(first)};
    if (first.status == accepted && !first.isStopped) {
        taken = take(*conversation, first);
        noteResult(taken.text);
    }
    if (!taken.failure.isEmpty())
        return {.text = failedResult + taken.failure,
                .isUnanswered = taken.isCut || isCut(first),
                .certificateRefusal = first.certificateRefusal};
    if (first.status != accepted)
        return {.text = failedResult + tr("服务器连接失败"),
                .isLoginRefused = first.status == credentialsWanted};
    return {.text = taken.text};
}

HttpOutcome CgiProcedure::perform(HttpConversation &conversation, const HttpLimits &limits,
                                  const BodySink &sink) const
{
    HttpOutcome outcome = conversation.perform(limits, sink, m_surroundings.watch);
    qCDebug(logCgi).nospace() << "Response Code: " << outcome.status;
    return outcome;
}

CgiProcedure::Taken CgiProcedure::take(HttpConversation &conversation, const HttpOutcome &first) const
{
    const QByteArray headers = conversation.headerText();
    const AnswerKind kind = answerKind(headers);
    QString path =
        answerFilePath(m_surroundings.folder, m_surroundings.localTime(), answerFileEnding(headers));
    if (kind != AnswerKind::Text && m_surroundings.ownPath)
        path = m_surroundings.ownPath(path);
    switch (kind) {
    case AnswerKind::Text:
        break;
    case AnswerKind::Picture:
        return takePicture(conversation, path, first);
    case AnswerKind::Recording:
        return takeRecording(conversation, path, first);
    }
    return takeText(conversation);
}

CgiProcedure::Taken CgiProcedure::takeText(HttpConversation &conversation) const
{
    QByteArray body;
    bool isTooLong = false;
    const HttpOutcome outcome = perform(conversation, m_limits.text, [&](QByteArrayView piece) {
        isTooLong = piece.size() > m_limits.longestText - body.size();
        if (!isTooLong)
            body.append(piece);
        return !isTooLong;
    });
    if (isTooLong)
        return {.text = {}, .failure = tr("应答内容过大。")};
    return {.text = answerText(conversation.headerText(), body),
            .failure = secondFailureOf(outcome),
            .isCut = isCut(outcome)};
}

/// A part of a picture is of no use: it gets its name when it is complete.
CgiProcedure::Taken CgiProcedure::takePicture(HttpConversation &conversation, const QString &path,
                                              const HttpOutcome &first) const
{
    // Not through a buffer: the toolkit does not notice when only a part of that could be written.
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) {
        noteCannotWrite(path, file.errorString());
        return {.text = {}, .failure = failureOf(first)}; // the answer's code alone decides
    }
    qint64 room = m_limits.largestPicture;
    bool isWritten = true;
    const HttpOutcome outcome = perform(conversation, m_limits.picture, [&](QByteArrayView piece) {
        room -= piece.size();
        isWritten = room < 0 || writeCompletely(file, piece);
        return room >= 0 && isWritten;
    });
    if (room < 0)
        return {.text = {}, .failure = tr("应答内容过大。")};
    const QString failure = isWritten ? secondFailureOf(outcome) : QString();
    if (!failure.isEmpty())
        return {.text = {}, .failure = failure, .isCut = isCut(outcome)};
    if (!isWritten || !file.commit())
        return {.text = {}, .failure = tr("文件写入失败：") + file.errorString()};
    return {.text = path, .failure = {}};
}

CgiProcedure::Taken CgiProcedure::takeRecording(HttpConversation &conversation, const QString &path,
                                                const HttpOutcome &first) const
{
    PartialFile file(path);
    if (!file.open()) {
        noteCannotWrite(path, file.failure());
        return {.text = {}, .failure = failureOf(first)}; // the answer's code alone decides
    }
    const HttpOutcome outcome = perform(conversation, m_limits.recording,
                                        [&file](QByteArrayView piece) { return file.write(piece); });
    QString failure = file.hasFailed() ? QString() : secondFailureOf(outcome);
    if (failure.isEmpty() && !file.hasFailed() && file.complete())
        return {.text = path, .failure = {}};
    if (file.hasFailed())
        failure = tr("文件写入失败：") + file.failure();
    if (outcome.status != accepted) {
        file.remove();
        return {.text = {}, .failure = failure, .isCut = isCut(outcome)};
    }
    const QString kept = file.keepPartial();
    if (!kept.isEmpty())
        failure += QLatin1Char('\n') + tr("已收到的部分录像保存在：%1").arg(kept);
    return {.text = {}, .failure = failure, .isCut = isCut(outcome) && !file.hasFailed()};
}
