#include "device/dh/logins/foundlogins.h"

#include "device/dh/session/configsession.h"
#include "device/dh/session/securelogin.h"
#include "device/store/devicerow.h"
#include "device/store/devicestore.h"
#include "sdk/blocktext.h"
#include "sdk/loginblocks.h"
#include "sdk/threadpriority.h"

#include <utility>

namespace {

constexpr int parallelLogins = 8;

bool isText(const QJsonObject &row, QLatin1StringView key)
{
    return !row.value(key).toString().isEmpty();
}

/// Whether a login can add something to a row. Uninitialised devices accept no login.
bool lacksSomething(const QJsonObject &row)
{
    return row.value(DeviceRowKey::state).toBool() &&
           !(isText(row, DeviceRowKey::model) && isText(row, DeviceRowKey::mac) &&
             isText(row, DeviceRowKey::vision));
}

bool isRefusal(LoginResult result)
{
    return result == LoginResult::WrongPassword || result == LoginResult::NoSuchAccount ||
           result == LoginResult::AccountLocked;
}

} // namespace

FoundLogins::FoundLogins(std::shared_ptr<DeviceStore> store, sdk::SdkLibraries libraries)
    : m_store(std::move(store)), m_libraries(std::move(libraries))
{
    m_threads.setMaxThreadCount(parallelLogins);
}

FoundLogins::~FoundLogins()
{
    requestStop();
    m_threads.waitForDone();
}

void FoundLogins::begin(const std::optional<AccountChoice> &accounts)
{
    m_threads.clear();
    const std::scoped_lock lock(m_mutex);
    m_attempted.clear();
    m_accounts = accounts;
}

void FoundLogins::logInToNew()
{
    const std::scoped_lock lock(m_mutex);
    if (!m_accounts || m_stop.stop_requested() || !m_libraries.net)
        return;
    const QVariantList rows = m_store->ipv4Rows();
    for (const QVariant &value : rows) {
        const QJsonObject row = value.toJsonObject();
        const QString name = rowName(row);
        const QString ipport = row.value(DeviceRowKey::ipport).toString();
        if (m_attempted.contains(name) || !lacksSomething(row))
            continue;
        const DeviceAccount account = m_accounts->of(row).account;
        if (m_refused.value(name) == account || m_refused.value(ipport) == account)
            continue;
        m_attempted.insert(name);
        m_threads.start([this, name, ipport, account] { logIn(name, ipport, account); });
    }
}

void FoundLogins::stop()
{
    {
        const std::scoped_lock lock(m_mutex);
        m_accounts.reset();
    }
    m_threads.clear();
}

void FoundLogins::waitForDone()
{
    m_threads.waitForDone();
}

void FoundLogins::requestStop()
{
    m_stop.request_stop();
    stop();
}

void FoundLogins::logIn(const QString &name, const QString &ipport, const DeviceAccount &account)
{
    if (m_stop.stop_requested())
        return;
    sdk::giveWayToWindow();
    const SecureLogin login = secureLogin(m_libraries.net.get(), ipport, account.account, account.password);
    if (login.handle != 0) {
        m_store->changeRowNamed(name, [](QJsonObject &row) { row.insert(DeviceRowKey::loggedIn, true); });
        complete(name, ipport, login.handle);
        m_libraries.net->NetLogout(login.handle);
        return;
    }
    if (!isRefusal(login.result))
        return;
    const std::scoped_lock lock(m_mutex);
    m_refused.insert(name, account);
    m_refused.insert(ipport, account);
}

void FoundLogins::complete(const QString &name, const QString &ipport, std::int64_t loginHandle)
{
    const ConfigSession session(m_libraries, loginHandle);
    sdk::DeviceAttributes attributes{};
    if (m_stop.stop_requested() ||
        !session.queryBlock(sdk::QueryCommand::DeviceAttributes, attributes, ConfigSession::usualWait))
        return;
    const QString mac = fieldText(attributes.mac);
    const bool isMacFree = m_store->row(mac).isEmpty(); // no other row has this MAC
    bool isChanged = false;
    m_store->changeRowNamed(name, [&](QJsonObject &row) {
        isChanged = false;
        if (row.value(DeviceRowKey::ipport) != ipport)
            return;
        const auto fill = [&](QLatin1StringView key, const QString &text) {
            if (text.isEmpty() || isText(row, key))
                return;
            row.insert(key, text);
            isChanged = true;
        };
        fill(DeviceRowKey::model, fieldText(attributes.detailModel));
        fill(DeviceRowKey::vision, versionText(fieldText(attributes.softwareVersion)));
        if (isMacFree)
            fill(DeviceRowKey::mac, mac);
    });
    if (!isChanged)
        return;
    std::optional<sdk::SearchResponse> record = m_store->record(name);
    if (record && sdk::blockText(record->device.serialNumber).empty()) {
        record->device.serialNumber = attributes.serialNumber;
        m_store->putRecord(name, *record);
    }
    Q_EMIT rowsChanged();
}
