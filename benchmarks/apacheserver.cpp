#include "benchmarks/apacheserver.h"

#include <QCryptographicHash>
#include <QDir>
#include <QElapsedTimer>
#include <QThread>

#include <arpa/inet.h>
#include <sys/socket.h>
#include <unistd.h>

namespace {

const QByteArray realm = QByteArrayLiteral("device");
const QStringList folders = {QStringLiteral("digest"), QStringLiteral("basic"), QStringLiteral("open"),
                             QStringLiteral("strict")};

sockaddr_in loopback(int port)
{
    sockaddr_in address = {};
    address.sin_family = AF_INET;
    address.sin_port = htons(static_cast<uint16_t>(port));
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    return address;
}

/// A free port. Another process may take it before it is used.
int freePort()
{
    const int socket = ::socket(AF_INET, SOCK_STREAM, 0);
    sockaddr_in address = loopback(0);
    socklen_t length = sizeof(address);
    auto *name = reinterpret_cast<sockaddr *>(&address);
    const bool isBound = bind(socket, name, length) == 0 && getsockname(socket, name, &length) == 0;
    close(socket);
    return isBound ? ntohs(address.sin_port) : 0;
}

const char *const configuration = R"conf(ServerName 127.0.0.1
ServerRoot @folder@
Listen 127.0.0.1:@port@
PidFile @folder@/pid
DefaultRuntimeDir @folder@
Mutex sem
ErrorLog @folder@/errors
LoadModule mpm_prefork_module @modules@/mod_mpm_prefork.so
LoadModule authn_core_module @modules@/mod_authn_core.so
LoadModule authn_file_module @modules@/mod_authn_file.so
LoadModule authz_core_module @modules@/mod_authz_core.so
LoadModule authz_user_module @modules@/mod_authz_user.so
LoadModule auth_digest_module @modules@/mod_auth_digest.so
LoadModule auth_basic_module @modules@/mod_auth_basic.so
LoadModule setenvif_module @modules@/mod_setenvif.so
LoadModule mime_module @modules@/mod_mime.so
TypesConfig /dev/null
AddType image/jpeg .jpg
AddType image/svg+xml .svg
AddType application/octet-stream .dav
BufferedLogs Off
LogFormat "%>s %m %U%q" plain
CustomLog @folder@/access plain
DocumentRoot @folder@/www
SetEnvIf Request_URI "^/digest" AuthDigestEnableQueryStringHack=On
<LocationMatch "^/(digest|strict)">
    AuthType Digest
    AuthName "device"
    AuthDigestProvider file
    AuthUserFile @folder@/digests
    Require valid-user
</LocationMatch>
<Location "/basic">
    AuthType Basic
    AuthName "device"
    AuthBasicProvider file
    AuthUserFile @folder@/passwords
    Require valid-user
</Location>
)conf";

} // namespace

ApacheServer::ApacheServer(const QString &user, const QString &password) : m_port(freePort())
{
    if (!writeFiles(user, password)) {
        m_failure = QStringLiteral("cannot write into ") + m_folder.path();
        return;
    }
    // Apache refuses to run as root, and another user could not read the folder. In a user namespace it runs
    // under another user ID with the rights of this user.
    m_process.setProcessChannelMode(QProcess::MergedChannels);
    m_process.start(
        QStringLiteral("unshare"),
        {QStringLiteral("--user"), QStringLiteral("--map-user=65534"), QStringLiteral("--map-group=65534"),
         QStringLiteral("--"), QStringLiteral("/usr/sbin/apache2"), QStringLiteral("-d"), m_folder.path(),
         QStringLiteral("-f"), m_folder.filePath(QStringLiteral("apache.conf")), QStringLiteral("-X")});
    constexpr int patience = 20000;
    QElapsedTimer timer;
    timer.start();
    while (timer.elapsed() < patience) {
        if (isUp())
            return;
        if (m_process.state() == QProcess::NotRunning && !m_process.waitForStarted(0))
            break;
        constexpr int interval = 20;
        m_process.waitForFinished(interval);
    }
    m_failure = QString::fromUtf8(m_process.readAll());
    QFile errors(m_folder.filePath(QStringLiteral("errors")));
    if (errors.open(QIODevice::ReadOnly))
        m_failure += QString::fromUtf8(errors.readAll());
    m_failure += QStringLiteral("the web server does not start");
}

ApacheServer::~ApacheServer()
{
    m_process.terminate();
    constexpr int patience = 5000;
    if (!m_process.waitForFinished(patience))
        m_process.kill();
    m_process.waitForFinished(patience);
}

QString ApacheServer::url(const QString &path) const
{
    return QStringLiteral("http://127.0.0.1:%1%2").arg(m_port).arg(path);
}

QStringList ApacheServer::requests() const
{
    QFile log(m_folder.filePath(QStringLiteral("access")));
    if (!log.open(QIODevice::ReadOnly))
        return {};
    return QString::fromUtf8(log.readAll()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}

bool ApacheServer::writeFiles(const QString &user, const QString &password) const
{
    const QByteArray name = user.toUtf8();
    const QByteArray secret = password.toUtf8();
    const QByteArray digest =
        QCryptographicHash::hash(name + ':' + realm + ':' + secret, QCryptographicHash::Md5).toHex();
    const QByteArray hash = QCryptographicHash::hash(secret, QCryptographicHash::Sha1).toBase64();
    const QByteArray text = QByteArray(configuration)
                                .replace("@folder@", m_folder.path().toUtf8())
                                .replace("@port@", QByteArray::number(m_port))
                                .replace("@modules@", "/usr/lib/apache2/modules");
    bool isWritten = write(QStringLiteral("apache.conf"), text) &&
                     write(QStringLiteral("digests"), name + ':' + realm + ':' + digest + '\n') &&
                     write(QStringLiteral("passwords"), name + ":{SHA}" + hash + '\n');
    for (const QString &folder : folders) {
        const QString path = QStringLiteral("www/") + folder;
        QDir(m_folder.path()).mkpath(path);
        isWritten = isWritten && write(path + QStringLiteral("/text"), "OK 东门\r\n") &&
                    write(path + QStringLiteral("/picture.jpg"), QByteArray("\xFF\xD8picture\0of", 12)) &&
                    write(path + QStringLiteral("/picture.svg"), "<svg/>") &&
                    write(path + QStringLiteral("/recording.dav"), QByteArray(300'000, 'd'));
    }
    return isWritten;
}

bool ApacheServer::write(const QString &name, const QByteArray &text) const
{
    QFile file(m_folder.filePath(name));
    return file.open(QIODevice::WriteOnly) && file.write(text) == text.size();
}

bool ApacheServer::isUp() const
{
    const int socket = ::socket(AF_INET, SOCK_STREAM, 0);
    const sockaddr_in address = loopback(m_port);
    const bool isConnected =
        connect(socket, reinterpret_cast<const sockaddr *>(&address), sizeof(address)) == 0;
    close(socket);
    return isConnected;
}
