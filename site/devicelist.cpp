#include "site/devicelist.h"

#include "sdk/demo/demosite.h"
#include "site/services/devicenetwork.h"
#include "site/siteserver.h"

using namespace sdk::demo;
using namespace Qt::StringLiterals;

namespace site {

namespace {

/// The prefix length of the first local device.
int localPrefixLength(const QList<SceneDevice> &devices)
{
    constexpr int usual = 24;
    for (const SceneDevice &device : devices) {
        if (!device.address.isEmpty() && !device.inOtherSegment && SiteServer::objectionTo(device).isEmpty())
            return prefixLengthOf(device.mask);
    }
    return usual;
}

QString lineOf(const SceneDevice &device)
{
    QStringList accounts;
    for (const SceneAccount &account : device.accounts)
        accounts.append(account.user + u'/' + account.password);
    QStringList remarks;
    if (const QString objection = SiteServer::objectionTo(device); !objection.isEmpty())
        remarks.append(u"left out: "_s + objection);
    if (device.isUninitialised())
        remarks.append(u"not initialised"_s);
    if (device.inOtherSegment)
        remarks.append(u"other segment"_s);
    for (const FaultSetting &fault : device.faults)
        remarks.append(u"fault "_s + faultName(fault.fault));
    const QString kind = !SiteServer::objectionTo(device).isEmpty() ? u"left-out"_s
                         : device.inOtherSegment                    ? u"elsewhere"_s
                                                                    : u"device"_s;
    const auto orDash = [](const QString &text) {
        return text.isEmpty() ? u"-"_s : text;
    };
    return QStringList{kind,
                       device.mac,
                       orDash(device.address),
                       orDash(device.ipv6),
                       device.type,
                       device.model,
                       orDash(accounts.join(u' ')),
                       device.name,
                       remarks.join(u"; "_s)}
        .join(u'\t');
}

} // namespace

QString deviceList(const DemoSite &site)
{
    const QList<SceneDevice> devices = site.devices();
    QString list = u"installer\t%1/%2\n"_s.arg(site.localAddress()).arg(localPrefixLength(devices));
    for (const SceneDevice &device : devices)
        list += lineOf(device) + u'\n';
    return list;
}

} // namespace site
