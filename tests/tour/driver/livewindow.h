// Opening and closing the live window (live video of a device) and its snapshots. `driver` drives the main
// window, `live` the live window. A failed check ends the process.
#pragma once

#include "tests/tour/driver/otherwindow.h"

#include <QDir>
#include <QImage>
#include <QVariantMap>

/// Opens the device page, enters the address in its search field and waits until the device with this
/// "address:port" is the first row.
inline void findDevice(const Driver &driver, const QString &ipport)
{
    driver.click(QStringLiteral("tab0"));
    driver.fill(QStringLiteral("searchField"), ipport.section(u':', 0, 0));
    driver.await(QStringLiteral("the device is the first of the table"), [&] {
        const QQuickItem *row = driver.find(QStringLiteral("row0"));
        return row && row->property("values").toMap().value(QStringLiteral("ipport")) == ipport;
    });
}

/// Opens the live window of a device from the device page. Returns the window, which the application owns.
inline QQuickWindow *openLive(const Driver &driver, const QString &ipport)
{
    driver.activate(); // a live window may cover it
    findDevice(driver, ipport);
    driver.click(QStringLiteral("live0"));
    return awaitWindow(driver, QStringLiteral("liveWindow"));
}

/// Checks that `folder` has exactly `count` images ("*.jpg"), one for each channel with a camera, and closes
/// the snapshots in the live window.
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

/// Closes the live window, whose driver cannot be used any longer.
inline void closeLive(const Driver &driver, const Driver &live)
{
    live.click(QStringLiteral("liveCloseButton"));
    awaitClosed(driver, live);
}
