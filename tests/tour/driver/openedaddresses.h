// Addresses that the application opens in other programs.
#pragma once

#include <QDesktopServices>
#include <QObject>
#include <QUrl>

/// Receives the URLs of a scheme that the application opens. No other program is started during its lifetime.
class OpenedAddresses : public QObject
{
    Q_OBJECT
public:
    explicit OpenedAddresses(const QString &scheme) : m_scheme(scheme)
    {
        QDesktopServices::setUrlHandler(scheme, this, "open");
    }
    ~OpenedAddresses() override { QDesktopServices::unsetUrlHandler(m_scheme); }

    /// The last URL; empty if there was none.
    [[nodiscard]] QUrl last() const { return m_last; }

public Q_SLOTS:
    void open(const QUrl &url) { m_last = url; }

private:
    const QString m_scheme;
    QUrl m_last;
};
