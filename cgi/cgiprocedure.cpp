#include "cgi/cgiprocedure.h"

#include "cgi/internal/partialfile.h"
#include "cgi/logging.h"
#include "cgi/responsekind.h"
#include "files/filereplacement.h"

#include <QDir>
#include <QSaveFile>

namespace {

constexpr long accepted = 200;
constexpr long statusUnauthorized = 401;

QString unknownCertificateText()
{
    return CgiProcedure::tr("设备证书未确认。");
}

QString changedCertificateText()
{
    return CgiProcedure::tr("设备证书已改变。");
}

QString failureText(HttpFailure kind)
{
    switch (kind) {
    case HttpFailure::UnknownHost:
        return CgiProcedure::tr("找不到该主机");
    case HttpFailure::Refused:
        return CgiProcedure::tr("设备拒绝连接，请检查HTTP端口");
    case HttpFailure::Unreachable:
        return CgiProcedure::tr("无法连接设备");
    case HttpFailure::TimedOut:
        return CgiProcedure::tr("设备没有及时应答");
    case HttpFailure::Tls:
        return CgiProcedure::tr("无法建立加密连接，请检查HTTPS端口");
    case HttpFailure::Malformed:
        return CgiProcedure::tr("设备的应答不是有效的HTTP");
    case HttpFailure::Interrupted:
        return CgiProcedure::tr("应答结束前连接已断开");
    case HttpFailure::None:
    case HttpFailure::Other:
        break;
    }
    return CgiProcedure::tr("请求失败");
}

QString statusText(long status)
{
    return QStringLiteral(" (HTTP %1)").arg(status);
}

/// True if an exchange ended before the response was complete: a repeated request may succeed.
bool isIncomplete(const HttpOutcome &outcome)
{
    return !outcome.failure.isEmpty() && !outcome.hasTooLongHeaders;
}

/// True if responses with status 401 request Basic, or no authentication scheme. A device that requests
/// Digest only has refused the password.
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
    constexpr qsizetype longest = 16LL * 1024; // a response may have megabytes
    qCDebug(logCgi).noquote().nospace() << "Response Body: " << text.left(longest);
}

} // namespace

CgiProcedure::CgiProcedure(const CgiSurroundings &surroundings, const CgiLimits &limits)
    : m_surroundings(surroundings), m_limits(limits)
{
}

QString CgiProcedure::loginRefusal(int loginResult)
{
    constexpr int unknownCertificate = 18;
    constexpr int changedCertificate = 19;
    // The only code that is not a LoginResult: an error that is unknown to all back ends.
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

CgiResponse CgiProcedure::exchange(const QString &url, const QString &user, const QString &password) const
{
    const CgiRequest request(url, user, password);
    if (!request.refusal().isEmpty())
        return {.text = failedResult + request.refusal()};
    const std::unique_ptr<PreparedHttpRequest> prepared = m_surroundings.transport->open(request);
    if (!prepared)
        return {.text = failedResult + tr("未知错误。")};

    HttpOutcome first = perform(*prepared, m_limits.first, {});
    if (first.status == statusUnauthorized && !first.isStopped && takesBasic(prepared->headerText())) {
        prepared->useBasic();
        first = perform(*prepared, m_limits.first, {});
    }
    Received received = ended(first, failureOrStatusOf(first, m_surroundings.explainsFailures));
    if (first.status == accepted && !first.isStopped) {
        received = receive(*prepared, first);
        noteResult(received.text);
    }
    if (!received.failure.isEmpty())
        return {.text = failedResult + received.failure,
                .hasNoResponse = received.isIncomplete,
                .isLoginRefused = received.isLoginRefused,
                .certificateRefusal = received.certificateRefusal};
    return {.text = received.text};
}

/// Too long headers have a separate text, since libcurl would report a full disk.
QString CgiProcedure::failureOf(const HttpOutcome &outcome) const
{
    if (outcome.hasTooLongHeaders)
        return tr("应答头过大。");
    if (outcome.certificateRefusal)
        return outcome.certificateRefusal == sdk::CertificateVerdict::Changed ? changedCertificateText()
                                                                              : unknownCertificateText();
    if (outcome.isStopped)
        return tr("操作已停止。");
    if (outcome.failure.isEmpty() || !m_surroundings.explainsFailures)
        return outcome.failure;
    //: Why a request failed, and the same in the words of a library.
    return tr("%1（%2）").arg(failureText(outcome.failureKind), outcome.failure);
}

QString CgiProcedure::failureOrStatusOf(const HttpOutcome &outcome, bool statesStatus) const
{
    QString failure = failureOf(outcome);
    if (!failure.isEmpty() || outcome.status == accepted)
        return failure;
    return tr("服务器连接失败") + (statesStatus ? statusText(outcome.status) : QString());
}

QString CgiProcedure::secondFailureOf(const HttpOutcome &outcome) const
{
    return failureOrStatusOf(outcome, true);
}

CgiProcedure::Received CgiProcedure::ended(const HttpOutcome &outcome, const QString &failure) const
{
    return {.text = {},
            .failure = failure,
            .isIncomplete = isIncomplete(outcome),
            .isLoginRefused = failureOf(outcome).isEmpty() && outcome.status == statusUnauthorized,
            .certificateRefusal = outcome.certificateRefusal};
}

HttpOutcome CgiProcedure::perform(PreparedHttpRequest &prepared, const HttpLimits &limits,
                                  const BodySink &sink) const
{
    HttpOutcome outcome = prepared.perform(limits, sink, m_surroundings.watch);
    qCDebug(logCgi).nospace() << "Response Code: " << outcome.status;
    return outcome;
}

CgiProcedure::Received CgiProcedure::receive(PreparedHttpRequest &prepared, const HttpOutcome &first) const
{
    const QByteArray headers = prepared.headerText();
    const ResponseKind kind = responseKind(headers);
    QString path =
        responseFilePath(m_surroundings.folder, m_surroundings.localTime(), responseFileEnding(headers));
    if (kind != ResponseKind::Text && m_surroundings.ownPath)
        path = m_surroundings.ownPath(path);
    if (kind != ResponseKind::Text)
        QDir().mkpath(m_surroundings.folder); // the creation of the file reports a failure
    switch (kind) {
    case ResponseKind::Text:
        break;
    case ResponseKind::Image:
        return receiveImage(prepared, path, first);
    case ResponseKind::Recording:
        return receiveRecording(prepared, path, first);
    }
    return receiveText(prepared);
}

CgiProcedure::Received CgiProcedure::receiveText(PreparedHttpRequest &prepared) const
{
    QByteArray body;
    bool isTooLong = false;
    const HttpOutcome outcome = perform(prepared, m_limits.text, [&](QByteArrayView chunk) {
        isTooLong = chunk.size() > m_limits.longestText - body.size();
        if (!isTooLong)
            body.append(chunk);
        return !isTooLong;
    });
    if (isTooLong)
        return {.text = {}, .failure = tr("应答内容过大。")};
    Received received = ended(outcome, secondFailureOf(outcome));
    received.text = responseText(prepared.headerText(), body);
    return received;
}

/// A partial image is useless: the file is only created when it is complete.
CgiProcedure::Received CgiProcedure::receiveImage(PreparedHttpRequest &prepared, const QString &path,
                                                  const HttpOutcome &first) const
{
    // Unbuffered: Qt does not detect a partially written buffer.
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) {
        noteCannotWrite(path, file.errorString());
        return ended(first, failureOf(first)); // only the status of the response decides
    }
    qint64 room = m_limits.largestImage;
    bool isWritten = true;
    const HttpOutcome outcome = perform(prepared, m_limits.image, [&](QByteArrayView chunk) {
        room -= chunk.size();
        isWritten = room < 0 || writeCompletely(file, chunk);
        return room >= 0 && isWritten;
    });
    if (room < 0)
        return {.text = {}, .failure = tr("应答内容过大。")};
    const QString failure = isWritten ? secondFailureOf(outcome) : QString();
    if (!failure.isEmpty())
        return ended(outcome, failure);
    if (!isWritten || !file.commit())
        return {.text = {}, .failure = tr("文件写入失败：") + file.errorString()};
    return {.text = path, .failure = {}};
}

CgiProcedure::Received CgiProcedure::receiveRecording(PreparedHttpRequest &prepared, const QString &path,
                                                      const HttpOutcome &first) const
{
    PartialFile file(path);
    if (!file.open()) {
        noteCannotWrite(path, file.failure());
        return ended(first, failureOf(first)); // only the status of the response decides
    }
    const HttpOutcome outcome =
        perform(prepared, m_limits.recording, [&file](QByteArrayView chunk) { return file.write(chunk); });
    QString failure = file.hasFailed() ? QString() : secondFailureOf(outcome);
    if (failure.isEmpty() && !file.hasFailed() && file.complete())
        return {.text = path, .failure = {}};
    if (file.hasFailed())
        failure = tr("文件写入失败：") + file.failure();
    if (outcome.status != accepted) {
        file.remove();
        return ended(outcome, failure);
    }
    const QString kept = file.keepPartial();
    if (!kept.isEmpty())
        failure += QLatin1Char('\n') + tr("已收到的部分录像保存在：%1").arg(kept);
    Received received = ended(outcome, failure);
    received.isIncomplete = received.isIncomplete && !file.hasFailed();
    return received;
}
