#include "device/addresstools.h"

#include "device/ipv4address.h"
#include "device/searchrange.h"

bool AddressTools::isLegalAddress(const QString &text) const
{
    return ipv4Number(text).has_value();
}

double AddressTools::toNumber(const QString &text) const
{
    return ipv4Number(text).value_or(0);
}

AddressTools::RangeFault AddressTools::searchRangeFault(const QString &begin, const QString &end) const
{
    return static_cast<RangeFault>(::searchRangeFault(begin, end));
}
