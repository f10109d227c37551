// A real web server on a loopback port, for the measurement of HTTP commands.
#pragma once

#include <QProcess>
#include <QTemporaryDir>

/// Apache on 127.0.0.1 with the folders "digest", "strict", "basic" and "open". All except "open" require the
/// account: "digest" and "strict" by Digest, "basic" by Basic. "digest" accepts a Digest whose URI lacks the
/// query; "strict" refuses it, which is Apache's default. Each folder contains "text", "picture.jpg",
/// "picture.svg" and "recording.dav".
class ApacheServer
{
public:
    /// Starts the server with one account, and blocks until it accepts connections, up to 20 s. After an
    /// error failure() has the reason and the other functions are useless. Requires an Apache that is
    /// installed in the folders of Debian, the program `unshare`, and the permission to create user
    /// namespaces.
    ApacheServer(const QString &user, const QString &password);
    ~ApacheServer(); ///< ends the server; blocks for up to 10 s
    ApacheServer(const ApacheServer &) = delete;
    ApacheServer &operator=(const ApacheServer &) = delete;

    /// The reason why the constructor could not start the server; empty if it accepts connections.
    [[nodiscard]] const QString &failure() const { return m_failure; }

    /// The complete URL of `path`, which starts with "/", such as "/digest/text".
    [[nodiscard]] QString url(const QString &path) const;

    /// "status method URI" of each request that the server has responded to, the oldest first. Includes
    /// requests that were refused with status 401.
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
