#include "device/dh/rows/founddevices.h"

#include "device/dh/logins/devicelogins.h"
#include "device/store/devicerow.h"
#include "device/store/devicestore.h"
#include "sdk/blocktext.h"
#include "sdk/callstop.h"
#include "sdk/netlibrary.h"

#include <utility>

using namespace std::chrono_literals;

namespace {

constexpr auto searchRequestWait = 5000ms;

void setText(auto &field, const QString &text)
{
    sdk::setBlockText(field, text.toLocal8Bit().toStdString());
}

} // namespace

FoundDevices::FoundDevices(std::shared_ptr<DeviceStore> store, sdk::SdkLibraries libraries,
                           const DeviceLogins &logins, UpgradeCheck isUpgrading)
    : m_store(std::move(store)), m_libraries(std::move(libraries)), m_logins(logins),
      m_isUpgrading(std::move(isUpgrading))
{
}

DeviceStep FoundDevices::initialisationStep(const QString &mac, const QString &account,
                                            const QString &password)
{
    return [this, mac, account, password](const StepControl &) {
        return isFound(mac) ? initialise(mac, account, password) : noteNotFound(mac);
    };
}

StepOutcome FoundDevices::initialise(const QString &mac, const QString &account, const QString &password)
{
    LoginResult result = LoginResult::Success;
    const std::optional<sdk::SearchResponse> record = m_store->record(mac);
    if (record && m_libraries.net) {
        sdk::InitDeviceAccountInput input{};
        input.size = sizeof(input);
        input.mac = record->device.mac;
        setText(input.account, account);
        setText(input.password, password);
        input.passwordResetWay = record->device.passwordResetWay;
        input.address = record->device.address;
        input.port = static_cast<std::uint16_t>(record->device.port);
        sdk::DeviceRequestOutput output{.size = sizeof(output)};
        if (!m_libraries.net->NetInitDeviceAccount(input, output, searchRequestWait, ""))
            result = loginResultOf(m_libraries.net->NetGetLastError());
        else
            m_store->changeRow(mac, [&](QJsonObject &row) {
                row.insert(DeviceRowKey::username, account);
                row.insert(DeviceRowKey::password, password);
            });
    }
    return noteResult(mac, result);
}

bool FoundDevices::isFound(const QString &mac) const
{
    const std::optional<sdk::SearchResponse> record = m_store->record(mac);
    return record &&
           !(sdk::blockText(record->device.mac).empty() && sdk::blockText(record->device.uuid).empty());
}

StepOutcome FoundDevices::noteNotFound(const QString &mac)
{
    StepOutcome outcome = noteResult(mac, LoginResult::NotSupported);
    outcome.text = tr("没有该设备的搜索应答，或应答中既没有MAC地址也没有UUID");
    return outcome;
}

void FoundDevices::changeAddress(const QString &mac, const QString &newip, const QString &newsubmask,
                                 const QString &newgateway, bool dhcpON)
{
    if (m_isUpgrading(mac))
        noteResult(mac, LoginResult::Upgrading);
    else
        requestAddress(mac, newip, newsubmask, newgateway, dhcpON, m_logins.accountOf(m_store->row(mac)),
                       StepControl());
}

DeviceStep FoundDevices::addressStep(const QString &mac, const QString &newip, const QString &newsubmask,
                                     const QString &newgateway, bool dhcpON)
{
    const QJsonObject row = m_store->row(mac);
    // A device without a row may be found before the step runs: the account is chosen by MAC.
    const DeviceAccount credentials =
        m_logins.accountOf(row.isEmpty() ? QJsonObject{{DeviceRowKey::mac, mac}} : row);
    return [=, this](const StepControl &control) {
        if (m_isUpgrading(mac))
            return noteResult(mac, LoginResult::Upgrading);
        if (!isFound(mac))
            return noteNotFound(mac);
        return requestAddress(mac, newip, newsubmask, newgateway, dhcpON, credentials, control);
    };
}

StepOutcome FoundDevices::requestAddress(const QString &mac, const QString &newip, const QString &newsubmask,
                                         const QString &newgateway, bool dhcpON,
                                         const DeviceAccount &credentials, const StepControl &control)
{
    std::optional<sdk::SearchResponse> record = m_store->record(mac);
    LoginResult result = LoginResult::Success;
    sdk::ModifyDeviceInput input{};
    if (record && m_libraries.net) {
        if (sdk::initialisationBits(record->device.initialisationState) ==
            sdk::InitialisationBits::Uninitialised)
            return noteResult(mac, LoginResult::NotInitialised);
        input.size = sizeof(input);
        input.device = record->device;
        input.device.dhcpEnabled = dhcpON ? 1 : 0;
        if (!dhcpON) {
            setText(input.device.address, newip);
            setText(input.device.subnetMask, newsubmask);
            setText(input.device.gateway, newgateway);
        }
        sdk::ModifyDeviceInput request = input; // the password is only in this copy; `input` is stored below
        request.device.currentAddress = record->device.address;
        setText(request.device.account, credentials.account);
        setText(request.device.password, credentials.password);
        sdk::DeviceRequestOutput output{.size = sizeof(output)};
        const sdk::CallStop callStop(control.stopToken(), [&control] { return control.isLate(); });
        if (!m_libraries.net->NetModifyDeviceBySearch(request, output, searchRequestWait))
            result = loginResultOf(m_libraries.net->NetGetLastError());
        if (result == LoginResult::Cancelled) // no request was sent
            return noteResult(mac, LoginResult::NotDone);
    }

    // The row shows the requested address even after a failure; "res" shows the result, and the next search
    // the actual address. With DHCP the address is unknown until then and empty in the row.
    const QString address = dhcpON ? QString() : newip;
    m_store->changeRow(mac, [&](QJsonObject &row) {
        const QStringList parts = row.value(DeviceRowKey::ipport).toString().split(QLatin1Char(':'));
        if (parts.size() == 2)
            row.insert(DeviceRowKey::ipport, QStringLiteral("%1:%2").arg(address, parts.at(1)));
        row.insert(DeviceRowKey::unconfirmed, result != LoginResult::Success);
    });
    if (record) {
        if (result == LoginResult::Success && input.size != 0)
            record->device = input.device; // new mask, gateway and DHCP state
        setText(record->device.address, address);
        m_store->putRecord(mac, *record);
    }
    StepOutcome outcome = noteResult(mac, result);
    const bool isUnknown = result == LoginResult::NetworkFailure || result == LoginResult::Unconfirmed;
    if (isUnknown && control.shouldEnd())
        outcome.text =
            control.isStopped() ? tr("已停止等待设备，地址可能已修改") : tr("超过时间限制，地址可能已修改");
    return outcome;
}

StepOutcome FoundDevices::noteResult(const QString &mac, LoginResult result)
{
    m_store->changeRow(mac,
                       [result](QJsonObject &row) { row.insert(DeviceRowKey::res, resultCode(result)); });
    return {.result = resultCode(result), .text = {}};
}
