#include "cgi/webpages.h"

#include <QDesktopServices>
#include <QUrl>
#include <QtConcurrent>

namespace {

constexpr HttpLimits checkLimits{.total = std::chrono::milliseconds(5000)};

/// The verdict on the certificate of the device at `page`, if it is refused.
std::optional<sdk::CertificateVerdict> refusalOf(HttpTransport &transport, const QString &page,
                                                 const ExchangeWatch &watch)
{
    const std::unique_ptr<PreparedHttpRequest> prepared = transport.open(CgiRequest(page, {}, {}));
    if (!prepared)
        return std::nullopt;
    const BodySink first = [](QByteArrayView) {
        return false; // only the handshake is needed
    };
    return prepared->perform(checkLimits, first, watch).certificateRefusal;
}

} // namespace

WebPages::WebPages(std::shared_ptr<HttpTransport> transport, QObject *parent)
    : QObject(parent), m_transport(std::move(transport))
{
}

WebPages::~WebPages()
{
    *m_isEnding = true;
}

void WebPages::open(const QString &page)
{
    if (!page.startsWith(QLatin1String("https://"), Qt::CaseInsensitive)) {
        show(page);
        return;
    }
    QtConcurrent::run([transport = m_transport, isEnding = m_isEnding, page] {
        return refusalOf(*transport, page, [isEnding] { return !*isEnding; });
    }).then(this, [this, page](const std::optional<sdk::CertificateVerdict> &refusal) {
        if (!refusal)
            show(page);
        else
            Q_EMIT refused(refusal == sdk::CertificateVerdict::Changed
                               ? tr("设备证书已改变，网页未打开。请勿在此设备上输入密码。")
                               : tr("设备证书未确认，网页未打开。"));
    });
}

void WebPages::show(const QString &page)
{
    if (!QDesktopServices::openUrl(QUrl(page)))
        Q_EMIT refused(tr("无法打开浏览器，设备网页：%1").arg(page));
}
