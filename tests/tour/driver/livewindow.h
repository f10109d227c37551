// Opening and closing the live window (live video of a device) and its snapshots. `driver` drives the main
// window, `live` the live window. A failed check ends the process.
#pragma once

#include "tests/tour/driver/otherwindow.h"

#include <QCoreApplication>
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

/// Waits until the snapshots have ended, at most 90 s.
inline void awaitSnapshotsEnd(const Driver &live)
{
    const QString running =
        QCoreApplication::translate("SnapshotDialog", "正在抓图 %1 / %2").section(u'%', 0, 0);
    const auto hasEnded = [&] {
        return live.find(QStringLiteral("snapshotImage")) &&
               !live.text(QStringLiteral("snapshotSummary")).startsWith(running);
    };
    live.await(QStringLiteral("all channels have a snapshot or a reason"), hasEnded, 90);
}

/// The button that takes the first snapshot again that failed because no frame was decoded in time; empty if
/// there is none. Channels without a camera are not meant.
inline QString retryButton(const Driver &live)
{
    const int channels = live.require(QStringLiteral("snapshotGrid"))->property("count").toInt();
    for (int channel = 0; channel < channels; ++channel) {
        const QString name = QStringLiteral("snapshotAgain%1").arg(channel);
        const QQuickItem *button = live.find(name);
        const QVariantMap snapshot = button ? button->parentItem()->property("entry").toMap() : QVariantMap();
        if (snapshot.value(QStringLiteral("message")) ==
            QCoreApplication::translate("SnapThread", "抓图失败"))
            return name;
    }
    return {};
}

/// Waits for the end of the snapshots and checks their summary. Frames may come too late while other
/// processes use the processors: such snapshots are taken again, as a user does.
inline void awaitSnapshots(const Driver &live, const QString &expected)
{
    constexpr int maximumRetries = 5;
    awaitSnapshotsEnd(live);
    for (int retry = 0; retry < maximumRetries && !retryButton(live).isEmpty(); ++retry) {
        live.click(retryButton(live));
        awaitSnapshotsEnd(live);
    }
    const QString summary = live.text(QStringLiteral("snapshotSummary"));
    live.check(summary == expected, QStringLiteral("the snapshots end with \"%1\"").arg(expected));
}

/// Closes the live window, whose driver cannot be used any longer.
inline void closeLive(const Driver &driver, const Driver &live)
{
    live.click(QStringLiteral("liveCloseButton"));
    awaitClosed(driver, live);
}
