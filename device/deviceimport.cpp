#include "device/deviceimport.h"

QVariantMap importFailure(const ImportPlace &place, const StepOutcome &outcome)
{
    const int code = outcome.result == unusableLine ? resultCode(LoginResult::Unknown) : outcome.result;
    return {{QStringLiteral("line"), place.number},
            {QStringLiteral("address"), place.address},
            {QStringLiteral("code"), code},
            {QStringLiteral("reason"), outcome.text.isEmpty() ? resultName(code) : outcome.text}};
}
