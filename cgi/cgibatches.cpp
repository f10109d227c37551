#include "cgi/cgibatches.h"

#include "cgi/cgistep.h"
#include "cgi/internal/longresponses.h"
#include "cgi/internal/responsepaths.h"
#include "device/registry/devicefactory.h"
#include "device/registry/devicefamily.h"
#include "device/store/devicerow.h"

#include <QSet>

#include <algorithm>
#include <utility>

namespace {

/// Commands are sent to addresses. Of two devices with the same address, only one is identified by it.
void nameByAddress(QList<BatchDevice> &devices)
{
    QSet<QString> addresses;
    for (BatchDevice &device : devices) {
        if (!addresses.contains(device.ipport))
            device.name = device.ipport;
        addresses.insert(device.ipport);
    }
}

} // namespace

CgiBatches::CgiBatches(CDeviceFactory &factory, Batches &batches, CgiSurroundings surroundings,
                       QObject *parent)
    : QObject(parent), m_factory(factory), m_batches(batches), m_surroundings(std::move(surroundings)),
      m_responses(std::make_shared<LongResponses>())
{
    m_surroundings.checkLogin = m_factory.backEnd(dhFamily)->loginCheck();
    m_surroundings.watch = {};
    m_surroundings.ownPath = [paths = std::make_shared<ResponsePaths>()](const QString &path) {
        return paths->own(path);
    };
    m_workbooks = new CgiWorkbooks(m_factory, m_batches, m_surroundings, this);
    m_surroundings.explainsFailures = true; // the file of a workbook contains only the library's text
}

Batch *CgiBatches::send(const QString &title, const QStringList &identities, const QString &command)
{
    BatchPlan plan = {.family = dhFamily,
                      .title = title,
                      .work = QStringLiteral("cgi %1").arg(qHash(command)), // it may hold a password
                      .devices = batchDevices(m_factory, dhFamily, identities),
                      .policy = commandPolicy(m_batches)};
    plan.isByAddress = true;
    plan.accountOf = m_batches.rowAccounts(dhFamily);
    nameByAddress(plan.devices);
    const QList<BatchDevice> devices = plan.devices;
    plan.stepOf = [this, command](const BatchDevice &device) {
        return deviceStep(device, command);
    };
    plan.takeOutcomes = [this](const QList<BatchOutcome> &outcomes) {
        QStringList changed;
        for (const auto &[device, outcome] : outcomes) {
            m_factory.updataDeviceInfo(dhFamily, DeviceRowKey::result, cgiResultText(outcome),
                                       device.identity, device.ipport);
            changed.append(device.identity);
        }
        Q_EMIT responded(changed);
    };
    Batch *batch = m_batches.start(std::move(plan));
    if (!batch)
        return nullptr;
    for (const BatchDevice &device : devices)
        m_factory.updataDeviceInfo(dhFamily, DeviceRowKey::url, command, device.identity, device.ipport);
    return batch;
}

DeviceStep CgiBatches::deviceStep(const BatchDevice &device, const QString &command)
{
    const QString address = addressOf(device.ipport, command);
    if (address.isEmpty())
        return refusedCgiStep(resultCode(LoginResult::NetworkFailure), tr("没有通往设备网页端口的隧道。"));
    const QVariantMap account = m_factory.accountOf(dhFamily, device.identity);
    return cgiStep(m_surroundings,
                   {.url = address,
                    .user = account.value(QStringLiteral("account")).toString(),
                    .password = account.value(QStringLiteral("password")).toString(),
                    .ipport = device.ipport},
                   [responses = m_responses, identity = device.identity](const QString &response) {
                       responses->keep(identity, response);
                   });
}

/// A device behind a tunnel has a separate local port for its web page. Empty when there is none, since the
/// default port would belong to this host. A device that reports no web port uses the default port.
QString CgiBatches::addressOf(const QString &ipport, const QString &command)
{
    constexpr int usualPort = 80;
    const qsizetype colon = ipport.lastIndexOf(QLatin1Char(':'));
    const QString ip = ipport.left(colon);
    const bool isTunnel = ip == QLatin1String("127.0.0.1");
    const QVariantMap row = isTunnel ? QVariantMap() : m_factory.getDeviceInfo(dhFamily, ipport);
    const int port = isTunnel ? m_factory.getP2PWebPort(QStringView(ipport).mid(colon + 1).toInt())
                              : row.value(DeviceRowKey::httpport).toInt();
    if (isTunnel && port == 0)
        return {};
    const QString scheme =
        row.value(DeviceRowKey::https).toBool() ? QStringLiteral("https") : QStringLiteral("http");
    return QStringLiteral("%1://%2:%3").arg(scheme, ip).arg(port != 0 ? port : usualPort) + command;
}

QString CgiBatches::responseOf(const QString &identity, const QString &result) const
{
    return m_responses->complete(identity, result);
}

QStringList CgiBatches::failuresOf(Batch *batch) const
{
    QList<std::pair<QString, QString>> failures; // result and address
    if (!batch)
        return {};
    for (const Batch::Entry &entry : batch->entries()) {
        if (entry.outcome.result != resultCode(LoginResult::Success))
            failures.append({cgiResultText(entry.outcome).simplified(), entry.device.ipport});
    }
    std::stable_sort(failures.begin(), failures.end(),
                     [](const auto &left, const auto &right) { return left.first < right.first; });
    QStringList lines;
    for (const auto &[result, address] : std::as_const(failures))
        lines.append(address + QStringLiteral("  ") + result);
    return lines;
}
