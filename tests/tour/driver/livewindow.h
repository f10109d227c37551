// Opening and closing the live window of a device, and its snapshots.
#pragma once

#include "tests/tour/driver/otherwindow.h"

#include <QDir>
#include <QImage>
#include <QVariantMap>

/// Enters an address in the search field of the main window and waits until the device is the first row.
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
    driver.activate(); // a live window may cover it
    findDevice(driver, ipport);
    driver.click(QStringLiteral("live0"));
    return awaitWindow(driver, QStringLiteral("liveWindow"));
}

/// Checks that `folder` has an image for each of `count` connected channels, and closes the snapshots.
inline void closeSnapshots(const Driver &live, const QString &folder, int count)
{
    const QDir images(folder);
    const QStringList files = images.entryList({QStringLiteral("*.jpg")}, QDir::Files);
    live.check(files.size() == count, QStringLiteral("a file for each connected channel"));
    for (const QString &file : files) {
        live.check(!QImage(images.filePath(file)).isNull(), QStringLiteral("%1 is an image").arg(file));
    }
    live.key(Qt::Key_Escape);
    live.await(QStringLiteral("the snapshots are closed"),
               [&] { return !live.find(QStringLiteral("snapshotGrid")); });
}

inline void closeLive(const Driver &driver, const Driver &live)
{
    live.click(QStringLiteral("liveCloseButton"));
    driver.await(QStringLiteral("the live window is closed"), [&] { return !live.window()->isVisible(); });
}
