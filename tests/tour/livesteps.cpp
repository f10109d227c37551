#include "device/registry/devicefactory.h"
#include "sdk/demo/demosite.h"
#include "sdk/demo/scene/fault.h"
#include "sdk/netlibrary.h"
#include "tests/tour/driver/commonsteps.h"
#include "tests/tour/driver/driver.h"
#include "tests/tour/driver/livewindow.h"
#include "tests/tour/steps.h"

#include <QCoreApplication>
#include <QSize>
#include <QTest>
#include <QVariantMap>

using namespace Qt::StringLiterals;

namespace {

const QString camera = u"192.168.1.101:8800"_s;
const QString cameraMac = u"02:1a:c5:00:40:25"_s;
const QString recorder = u"192.168.1.120:8800"_s;
const QString recorderMac = u"02:1a:c5:00:40:72"_s;

QQuickItem *videoIn(const Driver &live, int index)
{
    const QQuickItem *player = live.find(u"liveCell%1"_s.arg(index));
    return player ? player->findChild<QQuickItem *>(u"liveVideo"_s) : nullptr;
}

QSize frameSize(const Driver &live, int index)
{
    const QQuickItem *video = videoIn(live, index);
    return video ? video->property("frameSize").toSize() : QSize();
}

bool plays(const Driver &live, int index)
{
    return !frameSize(live, index).isEmpty();
}

void awaitFrames(const Driver &live, int indexes)
{
    live.await(u"%1 live views show frames"_s.arg(indexes), [&] {
        for (int index = 0; index < indexes; ++index) {
            if (!plays(live, index))
                return false;
        }
        return true;
    });
}

void walkCamera(Driver &live)
{
    awaitFrames(live, 1);
    live.report(u"camera"_s, live.text(u"liveChannelName"_s));
    live.key(Qt::Key_I);
    live.await(u"the figures of the stream are shown"_s,
               [&] { return live.text(u"liveFigures"_s).contains(u"H.26"_s); });
    live.report(u"figures"_s, live.text(u"liveFigures"_s).replace(u'\n', u' '));
    live.key(Qt::Key_I);

    QQuickItem *video = videoIn(live, 0);
    const QPointF corner(video->width() / 4, video->mapToScene({0, video->height() / 4}).y());
    live.turnWheel(corner, 4);
    live.check(video->property("zoomLevel").toInt() == 4, u"the wheel zooms"_s);
    live.report(u"zoomed"_s, u"about the pointer"_s);
    const QPoint from = video->mapToScene({video->width() / 2, video->height() / 2}).toPoint();
    QTest::mousePress(live.window(), Qt::LeftButton, Qt::NoModifier, from);
    QTest::mouseMove(live.window(), from - QPoint(120, 60));
    QTest::mouseRelease(live.window(), Qt::LeftButton, Qt::NoModifier, from - QPoint(120, 60));
    live.report(u"panned"_s, u"dragged to the left and up"_s);
    live.turnWheel(from, -20);
    live.check(video->property("zoomLevel").toInt() == 0, u"the complete frame is shown"_s);

    live.click(u"liveStretchButton"_s);
    live.report(u"stretched"_s, u"the frame fills its cell"_s);
    live.click(u"liveStretchButton"_s);
    live.click(u"liveSoundButton"_s);
    live.check(video->property("isAudioOutput").toBool(), u"the sound is on"_s);
    live.key(Qt::Key_M);
    live.check(!video->property("isAudioOutput").toBool(), u"the sound is off"_s);
}

/// The encode page sets another frame size, and the live view shows it.
void walkOtherSize(Driver &driver, Driver &live)
{
    const QSize before = frameSize(live, 0);
    driver.activate();
    driver.click(u"tab2"_s);
    driver.click(u"device_"_s + camera);
    driver.require(u"mainResolutionChoice"_s);
    awaitConfigIdle(driver);
    awaitFrames(live, 1); // the page has logged in again
    const QQuickItem *choice = driver.require(u"mainResolutionChoice"_s);
    const int other = choice->property("currentIndex").toInt() == 0 ? 1 : 0;
    driver.click(u"mainResolutionChoice"_s);
    driver.key(Qt::Key_Home);
    driver.click(u"choice%1"_s.arg(other));
    driver.await(u"the size is chosen"_s, [&] { return driver.find(u"changeMark"_s) != nullptr; });
    driver.report(u"live-other-size"_s, driver.text(u"encodeNotice"_s));
    driver.click(u"encodeSaveButton"_s);
    live.await(u"the live view has the new size"_s,
               [&] { return plays(live, 0) && frameSize(live, 0) != before; });
    live.report(u"other-size"_s, u"%1 x %2 instead of %3 x %4"_s.arg(frameSize(live, 0).width())
                                     .arg(frameSize(live, 0).height())
                                     .arg(before.width())
                                     .arg(before.height()));
}

void walkBreak(Driver &live, sdk::demo::DemoSite &site)
{
    site.setFault(cameraMac, {.fault = sdk::demo::Fault::DropsStreamAfter, .number = 1});
    live.await(u"the interruption is shown"_s, [&] { return live.find(u"liveRetryText"_s) != nullptr; });
    live.report(u"broken"_s, u"%1, %2"_s.arg(live.text(u"liveStateText"_s), live.text(u"liveRetryText"_s)));
    site.clearFault(cameraMac, sdk::demo::Fault::DropsStreamAfter);
    awaitFrames(live, 1);
    live.report(u"back"_s, live.text(u"liveChannelName"_s));
}

void walkRecorder(Driver &live)
{
    awaitFrames(live, 4);
    live.report(u"recorder"_s, live.text(u"liveTitle"_s));
    const QSize small = frameSize(live, 1);
    live.doubleClick(u"liveCell1"_s);
    live.await(u"the enlarged view shows the main stream"_s,
               [&] { return plays(live, 1) && frameSize(live, 1).width() > small.width(); });
    live.report(u"enlarged"_s, live.text(u"liveChannelName"_s));
    live.key(Qt::Key_Escape);
    awaitFrames(live, 4);
    live.click(u"liveChannel6"_s);
    live.await(u"a channel without a camera is reported"_s, [&] {
        return live.texts(u"liveStateText"_s)
            .contains(QCoreApplication::translate("OV_MediaPlayer", "通道未连接"));
    });
    live.report(u"not-connected"_s, live.texts(u"liveStateText"_s).join(u' '));
    live.click(u"liveNineButton"_s);
    awaitFrames(live, 6);
    live.report(u"nine"_s, live.text(u"livePage"_s));
    live.click(u"liveNextButton"_s);
    awaitFrames(live, 2);
    live.click(u"liveOneButton"_s);
    live.key(Qt::Key_F11);
    live.await(u"the window fills the screen"_s,
               [&] { return live.window()->visibility() == QWindow::FullScreen; });
    awaitFrames(live, 1);
    live.report(u"full-screen"_s, live.text(u"liveChannelName"_s));
    live.key(Qt::Key_Escape);
    live.await(u"the window has its frame again"_s,
               [&] { return live.window()->visibility() == QWindow::Windowed; });
}

void walkSnapshots(Driver &live)
{
    live.click(u"liveSnapAllButton"_s);
    live.await(u"the first snapshot is shown"_s, [&] { return live.find(u"snapshotImage"_s) != nullptr; });
    live.report(u"snapshots-running"_s, live.text(u"snapshotSummary"_s));
    const QString expected = QCoreApplication::translate("SnapshotDialog", "成功 %n", nullptr, 11) +
                             translated("SnapshotDialog", "，") +
                             QCoreApplication::translate("SnapshotDialog", "失败 %n", nullptr, 5);
    awaitSnapshots(live, expected);
    live.report(u"snapshots"_s, live.text(u"snapshotSummary"_s));
    live.click(u"snapshotAgain0"_s);
    awaitSnapshots(live, expected);

    closeSnapshots(live, u"snap/192.168.1.120_8800"_s, 11);
}

void restartRecorder(const Driver &driver, sdk::demo::DemoSite &site, int seconds)
{
    site.setFault(recorderMac, {.fault = sdk::demo::Fault::RebootTakes, .number = seconds});
    const qint64 session =
        CDeviceFactory::getinstance()->getConfigData(u"dh"_s, u"loginHandle"_s).toLongLong();
    driver.check(site.libraries().net->NetRebootDevice(session, std::chrono::seconds(1)),
                 u"the recorder restarts"_s);
}

/// The window is opened while its device restarts. The stream starts without a user action.
void walkRestart(const Driver &driver, sdk::demo::DemoSite &site, const QString &folder)
{
    constexpr int longerThanALogin = 8;
    restartRecorder(driver, site, longerThanALogin);
    Driver live(openLive(driver, recorder), folder);
    const QString failure = QCoreApplication::translate("LoginMemory", "%1 没有应答").arg(recorder);
    live.await(u"the time of the next attempt is shown"_s, [&] {
        const QString hint = live.text(u"emptyHint"_s);
        return hint.startsWith(failure) && hint != failure;
    });
    live.report(u"device-restarts"_s, live.text(u"emptyHint"_s));
    awaitFrames(live, 4);
    live.report(u"device-restarted"_s, live.text(u"liveTitle"_s));

    constexpr int shorterThanTheTimeout = 3;
    restartRecorder(driver, site, shorterThanTheTimeout);
    live.await(u"the interruption of all streams is shown"_s,
               [&] { return live.texts(u"liveRetryText"_s).size() == 4; });
    awaitFrames(live, 4);
    live.report(u"device-restarted-while-shown"_s, live.text(u"liveTitle"_s));
    site.clearFault(recorderMac, sdk::demo::Fault::RebootTakes);
    closeLive(driver, live);
}

} // namespace

void walkLive(Driver &driver, sdk::demo::DemoSite &site, const QString &folder)
{
    Driver live(openLive(driver, camera), folder);
    walkCamera(live);
    walkOtherSize(driver, live);
    walkBreak(live, site);
    openLive(driver, recorder);
    walkRecorder(live);
    walkSnapshots(live);
    closeLive(driver, live);
    walkRestart(driver, site, folder + u"/restart"_s);
    driver.activate();
    driver.fill(u"searchField"_s, QString());
    driver.key(Qt::Key_Escape);
}
