#include "device/dh/logins/devicelogins.h"

#include "device/store/devicerow.h"
#include "device/store/devicestore.h"
#include "sdk/netlibrary.h"

#include <utility>

DeviceLogins::DeviceLogins(std::shared_ptr<DeviceStore> store, sdk::SdkLibraries libraries)
    : m_store(std::move(store)), m_libraries(std::move(libraries))
{
}

DeviceAccount DeviceLogins::accountAt(const QString &ipport) const
{
    return accountOf(m_store->rowAt(ipport));
}

DeviceAccount DeviceLogins::accountOf(const QJsonObject &row) const
{
    return m_accounts.of(row).account;
}

SecureLogin DeviceLogins::logIn(const QString &ipport, const DeviceAccount &account) const
{
    SecureLogin login = secureLogin(m_libraries.net.get(), ipport, account.account, account.password);
    note(ipport, login.result);
    return login;
}

void DeviceLogins::note(const QString &ipport, LoginResult result) const
{
    const bool isIn = result == LoginResult::Success;
    if (m_store->rowAt(ipport).value(DeviceRowKey::loggedIn).toBool() != isIn)
        m_store->changeRowAt(ipport, [isIn](QJsonObject &row) { row.insert(DeviceRowKey::loggedIn, isIn); });
}

StepOutcome DeviceLogins::inLogin(const QString &ipport, const DeviceAccount &account,
                                  const StepControl &control,
                                  const std::function<StepOutcome(sdk::LLONG loginHandle)> &work) const
{
    const SecureLogin login = logIn(ipport, account);
    if (login.result != LoginResult::Success)
        return {.result = resultCode(login.result), .text = {}};
    StepOutcome outcome = {.result = resultCode(LoginResult::NotDone), .text = {}};
    if (!control.shouldEnd())
        outcome = work(login.handle);
    m_libraries.net->NetLogout(login.handle);
    return outcome;
}
