#include "device/batch/batches.h"
#include "tests/gallery/imagesbackend.h"
#include "tests/qml/configtools/qmlscene.h"

#include <QGuiApplication>
#include <QQuickItemGrabResult>
#include <QTemporaryDir>

namespace {

const char *const scene =
    "    visible: false\n"
    "    GalleryWindow {\n"
    "        batches: allBatches; deviceFactory: factory; localConfig: ({cursorPos: () => Qt.point(0, 0)})\n"
    "    }\n";

} // namespace

/// The gallery window with keyboard and mouse.
class TestGalleryWindow : public QObject
{
    Q_OBJECT
private:
    QTemporaryDir m_folder;
    std::unique_ptr<ImagesFactory> m_site;
    std::unique_ptr<BatchEngine> m_batchEngine;
    std::unique_ptr<Batches> m_batches;
    std::unique_ptr<QQmlEngine> m_engine;
    std::unique_ptr<QQuickWindow> m_scene;
    QQuickWindow *m_window = nullptr;
    QObject *m_gallery = nullptr;
    std::unique_ptr<QSignalSpy> m_watched;

    [[nodiscard]] ImagesBackEnd &devices() const { return *m_site->devices; }

    [[nodiscard]] QQuickItem *find(const QString &name) const
    {
        return findBelow(m_window->contentItem(), name, Sight::Visible);
    }
    [[nodiscard]] QQuickItem *inCell(int cell, const QString &name) const
    {
        QQuickItem *item = find(QStringLiteral("galleryCell%1").arg(cell));
        return item ? findBelow(item, name, Sight::Visible) : nullptr;
    }
    [[nodiscard]] QString textIn(int cell, const QString &name) const
    {
        const QQuickItem *item = inCell(cell, name);
        return item ? item->property("text").toString() : QString();
    }
    [[nodiscard]] int current() const { return find("galleryGrid")->property("currentIndex").toInt(); }
    [[nodiscard]] int columns() const { return find("galleryGrid")->property("columns").toInt(); }
    void click(const QString &name) const
    {
        QQuickItem *item = find(name);
        QVERIFY2(item, qPrintable(name));
        const QPointF middle = item->mapToScene(QPointF(item->width() / 2, item->height() / 2));
        QTest::mouseClick(m_window, Qt::LeftButton, Qt::NoModifier, middle.toPoint());
    }
    void open()
    {
        QVERIFY(QMetaObject::invokeMethod(m_window, "open", Q_ARG(QVariant, m_site->rows())));
        QVERIFY(QTest::qWaitForWindowActive(m_window));
        QTRY_VERIFY(!m_batches->isRunning());
    }

private Q_SLOTS:
    void init()
    {
        QDir::setCurrent(m_folder.path());
        m_site = std::make_unique<ImagesFactory>();
        m_batchEngine = std::make_unique<BatchEngine>(nullptr);
        m_batches = std::make_unique<Batches>(m_site->factory, *m_batchEngine, [] { return 2; });
        m_engine = std::make_unique<QQmlEngine>();
        m_scene =
            openScene(*m_engine, scene, {{"factory", &m_site->factory}, {"allBatches", m_batches.get()}});
        QVERIFY(m_scene);
        m_window = m_scene->findChild<QQuickWindow *>("galleryWindow");
        QVERIFY(m_window);
        m_gallery = m_window->property("gallery").value<QObject *>();
        m_watched = std::make_unique<QSignalSpy>(m_window, SIGNAL(liveRequested(QString, int)));
    }
    void cleanup()
    {
        devices().release();
        m_watched.reset();
        delete m_window; // QML does not own it
        m_scene.reset();
        m_engine.reset();
        m_batches.reset();
        m_batchEngine.reset();
        m_site.reset();
    }

    void cellsShowTheirState()
    {
        devices().addDevice(20, "gate", {});
        devices().addDevice(21, "shed", {.result = 2});
        devices().addDevice(22, "yard", {.waits = true});
        QVERIFY(QMetaObject::invokeMethod(m_window, "open", Q_ARG(QVariant, m_site->rows())));
        QTRY_COMPARE(textIn(2, "galleryState"), QStringLiteral("获取中"));
        QTRY_COMPARE(textIn(1, "galleryMessage"), QStringLiteral("密码错误"));
        QCOMPARE(textIn(1, "galleryState"), QStringLiteral("失败"));
        QVERIFY(!inCell(1, "galleryImage"));
        QTRY_VERIFY(inCell(0, "galleryImage") && !inCell(0, "galleryMessage"));
        QCOMPARE(textIn(0, "galleryTitle"), "gate");
        QCOMPARE(textIn(0, "galleryAddress"), ImagesBackEnd::ipportOf(20));
        QVERIFY(find("galleryStopButton") && !find("galleryAgainButton"));
        QTRY_VERIFY(find("gallerySummary")->property("text").toString().contains("2 / 3"));
        devices().release();
        QTRY_VERIFY(find("galleryAgainButton"));
        QCOMPARE(find("galleryFailures")->property("text").toString(), QStringLiteral("1 幅失败"));
    }

    void everyCellIsReachedByKeyboard()
    {
        for (int number = 20; number < 40; ++number)
            devices().addDevice(number, QStringLiteral("D%1").arg(number), {});
        devices().change(21, {.channels = {"north", "south"}, .channelCount = 2});
        open();
        QTRY_COMPARE(m_gallery->property("count").toInt(), 21);
        QTest::keyClick(m_window, Qt::Key_Right);
        QTest::keyClick(m_window, Qt::Key_Right);
        QCOMPARE(current(), 2);
        QTest::keyClick(m_window, Qt::Key_Return);
        QCOMPARE(m_watched->size(), 1);
        QCOMPARE(m_watched->last(), (QVariantList{ImagesBackEnd::ipportOf(21), 1}));
        QTest::keyClick(m_window, Qt::Key_Down);
        QCOMPARE(current(), 2 + columns());
        QTest::keyClick(m_window, Qt::Key_End);
        QCOMPARE(current(), 20);
        QTRY_VERIFY(find("galleryCell20")); // it has scrolled into view
        QTest::keyClick(m_window, Qt::Key_Home);
        QCOMPARE(current(), 0);

        static_cast<void>(devices().takeOrders());
        QTest::keyClick(m_window, Qt::Key_R);
        QTRY_VERIFY(!m_batches->isRunning());
        QCOMPARE(devices().takeOrders(), QStringList(ImagesBackEnd::ipportOf(20) + " -1"));
        QTest::keyClick(m_window, Qt::Key_F5);
        QTRY_VERIFY(!m_batches->isRunning());
        QCOMPARE(devices().takeOrders().size(), 20);
        QTest::keyClick(m_window, Qt::Key_S, Qt::ControlModifier);
        QTRY_VERIFY(find("galleryFolder"));
        QVERIFY(QFile::exists("snap/192.168.1.21_37777/1.jpg"));
        QVERIFY(find("gallerySummary")->property("text").toString().contains("21"));
        QTest::keyClick(m_window, Qt::Key_Escape);
        QVERIFY(!m_window->isVisible());
        QCOMPARE(m_gallery->property("count").toInt(), 0); // the images are removed
    }

    void aClickOpensTheLiveView()
    {
        devices().addDevice(20, "gate", {});
        devices().addDevice(21, "yard", {.result = 5});
        open();
        QTRY_VERIFY(inCell(1, "galleryAgain1"));
        click("galleryTitle");
        QCOMPARE(m_watched->size(), 1);
        static_cast<void>(devices().takeOrders());
        click("galleryAgain1");
        QCOMPARE(m_watched->size(), 1); // has a different effect
        QTRY_VERIFY(!m_batches->isRunning());
        QCOMPARE(devices().takeOrders(), QStringList(ImagesBackEnd::ipportOf(21) + " -1"));
        QCOMPARE(current(), 1);
    }

    void manyImagesNeedLittleMemory()
    {
        for (int number = 1; number <= 200; ++number)
            devices().addDevice(number, QStringLiteral("D%1").arg(number), {.result = number > 12 ? 5 : 0});
        open();
        const auto *grid = find("galleryGrid");
        QVERIFY(grid->property("contentItem").value<QQuickItem *>()->childItems().size() < 60);
        QQuickItem *image = nullptr;
        QTRY_VERIFY((image = inCell(0, "galleryImage")) && image->property("status").toInt() == 1);
        QVERIFY(image->implicitWidth() <= image->width() + 1); // of a file of 960
        QVERIFY(image->property("asynchronous").toBool());
    }
};

QTEST_MAIN(TestGalleryWindow)
#include "tst_gallerywindow.moc"
