// The live window of a device, as a user opens and closes it.
#pragma once

#include "tests/tour/otherwindow.h"

#include <QVariantMap>

/// Types an address into the search field of the main window until the device is the first row.
inline void findDevice(const Driver &driver, const QString &ipport)
{
    driver.click(QStringLiteral("tab0"));
    driver.fill(QStringLiteral("searchField"), ipport.section(u':', 0, 0));
    driver.await(QStringLiteral("the device is the first of the table"), [&] {
        const QQuickItem *row = driver.find(QStringLiteral("row0"));
        return row && row->property("values").toMap().value(QStringLiteral("ipport")) == ipport;
    });
}

inline QQuickWindow *openLive(const Driver &driver, const QString &ipport)
{
    driver.activate(); // a live window may be before it
    findDevice(driver, ipport);
    driver.click(QStringLiteral("live0"));
    return awaitWindow(driver, QStringLiteral("liveWindow"));
}

inline void closeLive(const Driver &driver, const Driver &live)
{
    live.click(QStringLiteral("liveCloseButton"));
    driver.await(QStringLiteral("the live window is closed"), [&] { return !live.window()->isVisible(); });
}
