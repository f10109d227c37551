// The stored and restored position of the window.
#include "qml/configtools/windowgeometry.h"
#include "tests/datatable.h"
#include "tests/qml/configtools/qmlscene.h"

#include <QScreen>

namespace {

const QSize least(640, 360);
const QList<QRect> twoScreens = {QRect(0, 0, 1920, 1040), QRect(1920, 0, 1280, 1024)};

} // namespace

class TestWindowGeometry : public QObject
{
    Q_OBJECT
private:
    /// A window with a stored position.
    static std::unique_ptr<QQuickWindow> open(QQmlEngine &engine, const QByteArray &stored)
    {
        return openScene(engine, "id: window\n    width: 600; height: 400; minimumWidth: 300; visible: true\n"
                                 "    WindowGeometry { objectName: 'geometry'; window: window; stored: '" +
                                     stored + "' }\n");
    }

    static QString textOf(const QQuickWindow &window)
    {
        return window.findChild<WindowGeometry *>("geometry")->text();
    }

private Q_SLOTS:
    void positionsAreLimitedToTheScreens_data()
    {
        const auto row = dataTable<QRect, QList<QRect>, QRect>({"wanted", "screens", "expected"});
        row("as it was", {100, 80, 1280, 720}, twoScreens, {100, 80, 1280, 720});
        row("on the second screen", {2000, 50, 1100, 700}, twoScreens, {2000, 50, 1100, 700});
        row("the second screen is removed", {2000, 50, 1100, 700}, {twoScreens.first()},
            {820, 50, 1100, 700});
        row("far away", {-30'000, 90'000, 1280, 720}, twoScreens, {0, 320, 1280, 720});
        row("the title bar is above the screen", {100, -30, 1280, 720}, twoScreens, {100, 0, 1280, 720});
        row("only the buttons are seen", {-1180, 100, 1280, 720}, twoScreens, {0, 100, 1280, 720});
        row("partly outside the screen", {-300, 900, 1280, 720}, twoScreens, {-300, 900, 1280, 720});
        row("on two screens", {1500, 100, 1280, 720}, twoScreens, {1500, 100, 1280, 720});
        row("larger than the screen", {0, 0, 9000, 9000}, twoScreens, {0, 0, 1920, 1040});
        row("smaller than it may be", {10, 10, 1, 1}, twoScreens, {10, 10, 640, 360});
        row("the screen is smaller than the window may be", {0, 0, 640, 360}, {QRect(0, 0, 600, 300)},
            {0, 0, 600, 300});
    }

    void positionsAreLimitedToTheScreens()
    {
        QFETCH(QRect, wanted);
        QFETCH(QList<QRect>, screens);
        QTEST(WindowGeometry::fitted(wanted, least, screens), "expected");
    }

    void aWindowOpensAtItsLastPosition_data()
    {
        const auto row = dataTable<QByteArray, QRect, bool>({"stored", "normal", "maximised"});
        row("position and size", "30 40 500 300", {30, 40, 500, 300}, false);
        row("maximised", "30 40 500 300 maximised", {30, 40, 500, 300}, true);
    }

    void aWindowOpensAtItsLastPosition()
    {
        QFETCH(const QByteArray, stored);
        QFETCH(const QRect, normal);
        QFETCH(const bool, maximised);
        QQmlEngine engine;
        const auto window = open(engine, stored);
        QVERIFY(window);
        QVERIFY(QTest::qWaitForWindowExposed(window.get()));
        QCOMPARE(window->visibility() == QWindow::Maximized, maximised);
        QCOMPARE(textOf(*window), QString(stored));
        if (!maximised) // on this platform a maximised window has a special size
            QCOMPARE(window->geometry(), normal);
    }

    void invalidTextChangesNothing_data()
    {
        const auto row = namedTable<QByteArray>({"stored"});
        for (const char *stored : {"", "maximised", "1 2 3", "1 2 300 400 minimised", "1,2 300 400",
                                   "1 2 300 999999", "@Rect(1 2 3 4)", " 1 2 300 400"})
            row(stored);
    }

    void invalidTextChangesNothing()
    {
        QFETCH(const QByteArray, stored);
        QQmlEngine engine;
        const auto window = open(engine, stored);
        QVERIFY(window);
        QCOMPARE(window->size(), QSize(600, 400));
        QCOMPARE(window->visibility(), QWindow::Windowed);
    }

    /// The normal size of a maximised window is stored as well.
    void theNormalSizeOfAMaximisedWindowIsStored()
    {
        QQmlEngine engine;
        const auto window = open(engine, "");
        QVERIFY(window);
        QVERIFY(QTest::qWaitForWindowExposed(window.get()));
        window->setGeometry(20, 30, 420, 310);
        QTRY_COMPARE(textOf(*window), "20 30 420 310");
        window->showMaximized();
        QTRY_COMPARE(textOf(*window), "20 30 420 310 maximised");
        window->showMinimized();
        QTRY_COMPARE(window->visibility(), QWindow::Minimized);
        QCOMPARE(textOf(*window), "20 30 420 310 maximised");
        window->showNormal();
        QTRY_COMPARE(textOf(*window), "20 30 420 310");
    }

    /// A closed window is destroyed when its work has ended. The next one has its position and size.
    void aClosedWindowIsCreatedAgain()
    {
        QQmlEngine engine;
        const auto scene =
            openScene(engine, "    Timer { objectName: 'later'; interval: 0 }\n"
                              "    OVWindowOnDemand {\n"
                              "        id: loader; objectName: 'loader'\n"
                              "        sourceComponent: T.ApplicationWindow {\n"
                              "            id: window; width: 300; height: 200\n"
                              "            property string storedGeometry: loader.geometry\n"
                              "            function geometryText() { return geometry.text(); }\n"
                              "            WindowGeometry {\n"
                              "                id: geometry; objectName: 'geometry'; window: window\n"
                              "                stored: window.storedGeometry\n"
                              "            }\n"
                              "        }\n"
                              "    }\n");
        QVERIFY(scene);
        auto *loader = scene->findChild<QQuickItem *>("loader");
        const auto open = [loader] {
            QMetaObject::invokeMethod(loader, "instance");
            const QPointer<QQuickWindow> window(
                qobject_cast<QQuickWindow *>(loader->property("item").value<QObject *>()));
            if (window)
                window->show();
            return window;
        };
        auto *later = scene->findChild<QObject *>("later");
        const auto awaitRelease = [later] { // a timer that starts later ends later
            QMetaObject::invokeMethod(later, "restart");
            QTRY_VERIFY(!later->property("running").toBool());
        };
        const QPointer<QQuickWindow> first = open();
        QVERIFY(first && QTest::qWaitForWindowExposed(first));
        first->setGeometry(20, 30, 420, 310);
        QTRY_COMPARE(textOf(*first), "20 30 420 310");
        loader->setProperty("kept", true);
        first->close();
        awaitRelease();
        QVERIFY(first);
        QCOMPARE(open(), first); // opened again before its work has ended
        loader->setProperty("kept", false);
        awaitRelease();
        QVERIFY(first);
        loader->setProperty("kept", true);
        first->close();
        loader->setProperty("kept", false);
        QTRY_VERIFY(!first);
        const QPointer<QQuickWindow> second = open();
        QVERIFY(second);
        QCOMPARE(second->geometry(), QRect(20, 30, 420, 310));
    }
};

QTEST_MAIN(TestWindowGeometry)
#include "tst_windowgeometry.moc"
