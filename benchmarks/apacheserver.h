// A real web server on a loopback port.
#pragma once

#include <QProcess>
#include <QTemporaryDir>

/// Apache with the folders "digest", "basic" and "open". The first two want the account; "strict" is like
/// "digest" and refuses a Digest whose address lacks the query, as the server does when it is not told
/// otherwise. Below each: "text", "picture.jpg", "picture.svg", "recording.dav", "missing".
class ApacheServer
{
public:
    /// Starts the server and waits until it answers.
    ApacheServer(const QString &user, const QString &password);
    ~ApacheServer();
    ApacheServer(const ApacheServer &) = delete;
    ApacheServer &operator=(const ApacheServer &) = delete;

    /// Why it does not run; empty when it does.
    [[nodiscard]] const QString &failure() const { return m_failure; }

    [[nodiscard]] QString url(const QString &path) const;

    /// "status method address" of each request, oldest first.
    [[nodiscard]] QStringList requests() const;

private:
    [[nodiscard]] bool writeFiles(const QString &user, const QString &password) const;
    [[nodiscard]] bool write(const QString &name, const QByteArray &text) const;
    [[nodiscard]] bool isUp() const;

    const QTemporaryDir m_folder;
    int m_port = 0;
    QProcess m_process;
    QString m_failure;
};
