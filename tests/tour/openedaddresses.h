// What the program would open in another one.
#pragma once

#include <QDesktopServices>
#include <QObject>
#include <QUrl>

/// Takes the addresses of a scheme that the program opens, such as those of web pages or of files, so that no
/// other program is started while this object lives.
class OpenedAddresses : public QObject
{
    Q_OBJECT
public:
    explicit OpenedAddresses(const QString &scheme) : m_scheme(scheme)
    {
        QDesktopServices::setUrlHandler(scheme, this, "open");
    }
    ~OpenedAddresses() override { QDesktopServices::unsetUrlHandler(m_scheme); }

    /// The last one; empty when there was none.
    [[nodiscard]] QUrl last() const { return m_last; }

public Q_SLOTS:
    void open(const QUrl &url) { m_last = url; }

private:
    const QString m_scheme;
    QUrl m_last;
};
