#include "cgi/cgiprocedure.h"

#include "cgi/answerkind.h"
#include "cgi/logging.h"

#include <QFileInfo>
#include <QSaveFile>

#include <limits>

namespace {

/// The words of the library would speak of a full disk here.
QString failureOf(const HttpOutcome &outcome)
{
    return outcome.hasTooLongHeaders ? CgiProcedure::tr("应答头过大。") : outcome.failure;
}

constexpr long accepted = 200;
constexpr long credentialsWanted = 401;

HttpOutcome performNoting(HttpConversation &conversation, const HttpLimits &limits)
{
    HttpOutcome outcome = conversation.perform(limits);
    qCDebug(logCgi).nospace() << "Response Code: " << outcome.status;
    return outcome;
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
    constexpr int unknownError = 99;
    constexpr int noSuchAccount = 1;
    constexpr int wrongPassword = 2;
    constexpr int accountLocked = 3;
    constexpr int networkFailure = 5;
    constexpr int notInitialised = 7;
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
    const CgiRequest request(url, user, password);
    if (!request.refusal().isEmpty())
        return failedResult + request.refusal();
    const std::unique_ptr<HttpConversation> conversation = m_surroundings.transport->open(request);
    if (!conversation)
        return failedResult + tr("未知错误。");

    HttpOutcome first = performNoting(*conversation, m_limits.first);
    if (first.status == credentialsWanted) {
        conversation->useBasic();
        first = performNoting(*conversation, m_limits.first);
    }
    Taken taken = {.text = {}, .failure = failureOf(first)};
    if (first.status == accepted) {
        taken = take(*conversation, first);
        noteResult(taken.text);
    }
    if (!taken.failure.isEmpty())
        return failedResult + taken.failure;
    if (first.status != accepted)
        return failedResult + tr("服务器连接失败");
    return taken.text;
}

CgiProcedure::Taken CgiProcedure::take(HttpConversation &conversation, const HttpOutcome &first) const
{
    const QByteArray headers = conversation.headerText();
    return answerKind(headers) == AnswerKind::Text ? takeText(conversation)
                                                   : takeFile(conversation, headers, first);
}

CgiProcedure::Taken CgiProcedure::takeText(HttpConversation &conversation) const
{
    QByteArray body;
    bool isTooLong = false;
    const HttpOutcome outcome = conversation.perform(m_limits.text, [&](QByteArrayView piece) {
        isTooLong = piece.size() > m_limits.longestText - body.size();
        if (!isTooLong)
            body.append(piece);
        return !isTooLong;
    });
    if (isTooLong)
        return {.text = {}, .failure = tr("应答内容过大。")};
    return {.text = answerText(conversation.headerText(), body), .failure = failureOf(outcome)};
}

CgiProcedure::Taken CgiProcedure::takeFile(HttpConversation &conversation, const QByteArray &headers,
                                           const HttpOutcome &first) const
{
    const QString path =
        answerFilePath(m_surroundings.folder, m_surroundings.localTime(), answerFileEnding(headers));
    // It gets its name when it is whole: half a recording is not to be taken for one. Not
    // through a buffer: the toolkit does not notice when only a part of that could be written.
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) {
        qCWarning(logCgi).noquote() << "cannot write" << path << "-" << file.errorString();
        return {.text = {}, .failure = failureOf(first)}; // the answer's code alone decides
    }
    const bool isPicture = answerKind(headers) == AnswerKind::Picture;
    qint64 room = isPicture ? m_limits.largestPicture : std::numeric_limits<qint64>::max();
    bool isWritten = true;
    const HttpOutcome outcome =
        conversation.perform(isPicture ? m_limits.picture : m_limits.recording, [&](QByteArrayView piece) {
            room -= piece.size();
            isWritten = room < 0 || file.write(piece.data(), piece.size()) == piece.size();
            return room >= 0 && isWritten;
        });
    if (room < 0)
        return {.text = {}, .failure = tr("应答内容过大。")};
    if (isWritten && !outcome.failure.isEmpty())
        return {.text = {}, .failure = failureOf(outcome)};
    // The device has thought better of it, and sent a page that says so.
    if (isWritten && outcome.status != accepted)
        return {.text = {}, .failure = tr("服务器连接失败")};
    if (!isWritten || !file.commit())
        return {.text = {}, .failure = tr("文件写入失败：") + file.errorString()};
    return {.text = path, .failure = {}};
}
