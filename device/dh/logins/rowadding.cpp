#include "device/dh/logins/rowadding.h"

#include "device/registry/p2pports.h"
#include "device/store/devicerow.h"
#include "device/store/devicestore.h"

#include <QCoreApplication>

namespace {

StepOutcome outcomeOf(LoginResult result)
{
    return {.result = resultCode(result), .text = {}};
}

/// The outcome if no local port to the device can be opened.
StepOutcome noTunnel(const QString &fault)
{
    const QString text =
        QCoreApplication::translate("DeviceAdding", "没有取得通往该设备的本地端口，请检查P2P ID和网络");
    return {.result = resultCode(LoginResult::NetworkFailure),
            .text = fault.isEmpty() ? text : text + QLatin1Char('\n') + fault};
}

} // namespace

RowAdding::RowAdding(DeviceStore &store, sdk::SdkLibraries libraries, std::shared_ptr<P2PPorts> ports)
    : m_store(store), m_libraries(std::move(libraries)), m_ports(std::move(ports))
{
}

StepOutcome RowAdding::add(const DeviceToAdd &device, const StepControl &control, const Review &review) const
{
    if (device.p2p)
        return addThroughTunnel(device, control, review);
    int webPort = 0;
    return logIn(device, device.port, control, review, webPort);
}

StepOutcome RowAdding::addNew(const DeviceToAdd &device, const StepControl &control) const
{
    const QString ipport = QStringLiteral("%1:%2").arg(device.address).arg(device.port);
    if (!device.p2p && !m_store.rowAt(ipport).isEmpty())
        return outcomeOf(LoginResult::AlreadyListed);
    return add(device, control, {});
}

StepOutcome RowAdding::addThroughTunnel(const DeviceToAdd &device, const StepControl &control,
                                        const Review &review) const
{
    const int localPort = m_ports ? m_ports->claim(device.address, device.port) : 0;
    if (localPort <= 0)
        return noTunnel(m_ports ? m_ports->faultText() : QString());
    int webPort = 0;
    StepOutcome outcome = control.shouldEnd() ? outcomeOf(LoginResult::NotDone)
                                              : logIn(device, localPort, control, review, webPort);
    if (outcome.result == resultCode(LoginResult::Success))
        m_ports->pair(localPort, m_ports->portFor(device.address, webPort, 0));
    // The port stays open if the store has a row for it or others use it.
    m_ports->giveBack(
        localPort, [&] { return !m_store.rowAt(QStringLiteral("127.0.0.1:%1").arg(localPort)).isEmpty(); });
    return outcome;
}

StepOutcome RowAdding::logIn(const DeviceToAdd &device, int port, const StepControl &control,
                             const Review &review, int &webPort) const
{
    RowLoginOutcome login = loginForRow(m_libraries,
                                        {.address = device.address,
                                         .account = device.account,
                                         .password = device.password,
                                         .port = port,
                                         .reachedBy = device.p2p ? ReachedBy::P2P : ReachedBy::Address,
                                         .devicePort = QString::number(device.port)},
                                        control);
    if (login.result != LoginResult::Success)
        return outcomeOf(login.result);
    if (review) {
        if (const std::optional<StepOutcome> refusal = review(login))
            return *refusal;
    }
    webPort = login.row.value(DeviceRowKey::httpport).toInt();
    m_store.upsertRow(login.row, login.record);
    return outcomeOf(LoginResult::Success);
}
