#include "device/registry/deviceimport.h"

#include "device/registry/mapkeys.h"

QVariantMap importFailure(const ImportPosition &position, const StepOutcome &outcome)
{
    const int code = outcome.result == unusableLine ? resultCode(LoginResult::Unknown) : outcome.result;
    return {{ListLineKey::line, position.number},
            {ListLineKey::address, position.address},
            {ListLineKey::code, code},
            {ListLineKey::reason, outcome.text.isEmpty() ? resultName(code) : outcome.text}};
}

DeviceToAdd deviceToAdd(const QVariantMap &values)
{
    return {.address = values.value(ListLineKey::address).toString(),
            .port = values.value(DeviceToAddKey::port).toInt(),
            .account = values.value(DeviceToAddKey::account).toString(),
            .password = values.value(DeviceToAddKey::password).toString(),
            .p2p = values.value(DeviceToAddKey::mode).toInt() != 0};
}
