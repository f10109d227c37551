#pragma once

#include "cgi/httptransport.h"

#include <QObject>
#include <QString>

#include <atomic>
#include <memory>

/// Opens web pages of devices in the browser of the desktop. The browser does not know the keys that the user
/// has accepted, and the user enters the password there: so the key of the certificate of a device is checked
/// first, with the certificate handler of the transport. The check is a GET of the page on a thread of the
/// global pool. It sends no account, and does not respond to a request for authentication: an empty user name
/// would count as a failed login on the device. The page of a refused key is not opened; the handler may
/// offer the key to the user, who then opens the page again. Lives on the main thread.
class WebPages : public QObject
{
    Q_OBJECT
public:
    explicit WebPages(std::shared_ptr<HttpTransport> transport, QObject *parent = nullptr);
    ~WebPages() override; ///< ends the running checks without waiting; their pages are not opened

    /// Opens the page with this URL. A page without TLS is opened during this call. An "https://" page is
    /// opened later, after the check of the key, which takes up to five seconds. It is also opened if the
    /// check fails for another reason, such as no response: the browser reports that.
    Q_INVOKABLE void open(const QString &page);

Q_SIGNALS:
    /// A page was not opened: the key of the device is unknown or has changed, or there is no browser.
    /// `reason` is in the user's language. Without a browser it is emitted during open() for a page without
    /// TLS.
    void refused(const QString &reason);

private:
    void show(const QString &page);

    const std::shared_ptr<HttpTransport> m_transport;
    const std::shared_ptr<std::atomic_bool> m_isEnding = std::make_shared<std::atomic_bool>(false);
};
