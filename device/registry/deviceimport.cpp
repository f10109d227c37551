#include "device/registry/deviceimport.h"

QVariantMap importFailure(const ImportPlace &place, const StepOutcome &outcome)
{
    const int code = outcome.result == unusableLine ? resultCode(LoginResult::Unknown) : outcome.result;
    return {{QStringLiteral("line"), place.number},
            {QStringLiteral("address"), place.address},
            {QStringLiteral("code"), code},
            {QStringLiteral("reason"), outcome.text.isEmpty() ? resultName(code) : outcome.text}};
}

DeviceToAdd deviceToAdd(const QVariantMap &values)
{
    return {.address = values.value(QStringLiteral("address")).toString(),
            .port = values.value(QStringLiteral("port")).toInt(),
            .account = values.value(QStringLiteral("account")).toString(),
            .password = values.value(QStringLiteral("password")).toString(),
            .p2p = values.value(QStringLiteral("mode")).toInt() != 0};
}
