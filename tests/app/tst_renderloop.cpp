// The thread that draws the windows: two render threads crash in Mesa's software renderer.

#include "app/renderloop.h"

#include <QGuiApplication>
#include <QOpenGLContext>
#include <QOpenGLFunctions>
#include <QQuickWindow>
#include <QTest>
#include <QThread>

class TestRenderLoop : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void windowsAreDrawnOnTheMainThreadInSoftware();
};

void TestRenderLoop::windowsAreDrawnOnTheMainThreadInSoftware()
{
    qunsetenv("QSG_RENDER_LOOP");
    QQuickWindow::setGraphicsApi(QSGRendererInterface::OpenGL);
    avoidRenderThreadsInSoftware();

    QQuickWindow window;
    QByteArray renderer;
    QThread *thread = nullptr;
    connect(
        &window, &QQuickWindow::beforeRendering, &window,
        [&] {
            renderer = reinterpret_cast<const char *>(
                QOpenGLContext::currentContext()->functions()->glGetString(GL_RENDERER));
            thread = QThread::currentThread();
        },
        Qt::DirectConnection);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    if (!renderer.contains("llvmpipe"))
        QSKIP("this host has another OpenGL renderer");
    QCOMPARE(thread, QGuiApplication::instance()->thread());
}

QTEST_MAIN(TestRenderLoop)

#include "tst_renderloop.moc"
