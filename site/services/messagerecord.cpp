#include "site/services/messagerecord.h"

#include "site/logging.h"

#include <QFile>

#include <atomic>

using namespace Qt::StringLiterals;

namespace site {

namespace {

void write(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qCWarning(siteLog, "%ls cannot be written: %ls", qUtf16Printable(path),
                  qUtf16Printable(file.errorString()));
}

} // namespace

void recordExchange(const QString &folder, const HttpReceiver &receiver, const QByteArray &request,
                    const QByteArray &response)
{
    static std::atomic<int> last = 0;
    QString device = receiver.mac;
    device.replace(u':', u'-');
    const QString begin = u"%1/%2-%3-"_s.arg(folder).arg(++last, 8, 10, QLatin1Char('0')).arg(device);
    write(begin + u"request.xml"_s, request);
    write(begin + u"response.xml"_s, response);
}

} // namespace site
