// The URLs that the application opens in other programs, such as web pages.
#pragma once

#include <QDesktopServices>
#include <QObject>
#include <QUrl>

/// During its lifetime, receives the URLs of a scheme ("http", "file") that the application opens; no other
/// program is started for them. One object for each scheme at a time. Main thread.
class OpenedAddresses : public QObject
{
    Q_OBJECT
public:
    explicit OpenedAddresses(const QString &scheme) : m_scheme(scheme)
    {
        QDesktopServices::setUrlHandler(scheme, this, "open");
    }
    ~OpenedAddresses() override { QDesktopServices::unsetUrlHandler(m_scheme); }

    /// The last URL that was opened; empty if there was none.
    [[nodiscard]] QUrl last() const { return m_last; }

public Q_SLOTS:
    /// Called by Qt instead of the other program.
    void open(const QUrl &url) { m_last = url; }

private:
    const QString m_scheme;
    QUrl m_last;
};
