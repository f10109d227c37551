#include "media/videoitem.h"
#include "tests/datatable.h"
#include "tests/media/fakelibraries.h"

#include <QDir>
#include <QGuiApplication>
#include <QImage>
#include <QOpenGLContext>
#include <QQuickWindow>
#include <QSurfaceFormat>

#include <cmath>
#include <thread>

namespace {

constexpr QSize viewSize(320, 180);
const QColor background(10, 200, 30);

/// The exact RGB colour of a frame of one colour.
QColor expected(int y, int u, int v, sdk::FrameColour colour)
{
    const bool full = colour == sdk::FrameColour::Bt601Full || colour == sdk::FrameColour::Bt709Full;
    const bool hd = colour == sdk::FrameColour::Bt709Limited || colour == sdk::FrameColour::Bt709Full;
    const double red = hd ? 0.2126 : 0.299;
    const double blue = hd ? 0.0722 : 0.114;
    const double luma = full ? y / 255.0 : (y - 16) / 219.0;
    const double cb = (u - 128) / (full ? 255.0 : 224.0);
    const double cr = (v - 128) / (full ? 255.0 : 224.0);
    const double r = luma + 2 * (1 - red) * cr;
    const double b = luma + 2 * (1 - blue) * cb;
    const double g = (luma - red * r - blue * b) / (1 - red - blue);
    const auto bounded = [](double value) {
        return int(std::lround(255 * std::clamp(value, 0.0, 1.0)));
    };
    return {bounded(r), bounded(g), bounded(b)};
}

/// The OpenGL context of the window: "core", "es2", "es3", or the default.
QByteArray wantedContext()
{
    return qgetenv("CONFIGTOOLS_TEST_CONTEXT");
}

bool isLike(const QColor &one, const QColor &other)
{
    return std::abs(one.red() - other.red()) <= 3 && std::abs(one.green() - other.green()) <= 3 &&
           std::abs(one.blue() - other.blue()) <= 3;
}

/// Grey levels from 60 on, one for each cell of the frame.
PlainFrame cells(int width, int height, int columns, int rows)
{
    PlainFrame frame(width, height, 0, 128, 128, sdk::FrameColour::Bt601Full);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x)
            frame.bytes[std::size_t(y) * width + x] =
                std::uint8_t(60 + 40 * (y * rows / height * columns + x * columns / width));
    }
    return frame;
}

} // namespace

/// The pixels of a live view in a window with OpenGL. The window's colour shows where the view draws nothing.
class TestVideoFrame : public QObject
{
    Q_OBJECT
private:
    std::unique_ptr<FakeLibraries> m_fake;
    std::unique_ptr<QQuickWindow> m_window;
    VideoItem *m_item = nullptr;
    QList<PlainFrame> m_delivered; ///< the decoder's own buffers
    QImage m_seen;

    void deliver(const PlainFrame &frame)
    {
        m_delivered.append(frame);
        std::thread([this] {
            m_fake->decoder->deliver(m_delivered.constLast().bytes, m_delivered.constLast().information);
        }).join();
        QCoreApplication::sendPostedEvents(m_item, QEvent::MetaCall);
    }

    /// The colour at a point, in fractions of the view.
    [[nodiscard]] QColor at(double x, double y) const
    {
        return m_seen.pixelColor(int(x * m_seen.width()), int(y * m_seen.height()));
    }

    /// Empty if the view has the colour there; otherwise the actual colour.
    [[nodiscard]] QString instead(double x, double y, const QColor &wanted) const
    {
        return isLike(at(x, y), wanted) ? QString() : at(x, y).name() + " instead of " + wanted.name();
    }

private Q_SLOTS:
    void initTestCase()
    {
        QQuickWindow::setGraphicsApi(QSGRendererInterface::OpenGL);
        QVERIFY(QDir::setCurrent(CONFIGTOOLS_PROGRAM_DIRECTORY)); // contains the shaders
        CDeviceFactory::registerBackEnd("dh", [] { return std::make_shared<SessionBackEnd>(); });
    }

    void init()
    {
        m_fake = std::make_unique<FakeLibraries>();
        VideoItem::registerLibraries(m_fake->libraries());
        m_window = std::make_unique<QQuickWindow>();
        m_window->setColor(background);
        m_window->resize(viewSize);
        m_item = new VideoItem(m_window->contentItem());
        m_item->setSize(viewSize);
        m_window->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
        const auto *context = static_cast<QOpenGLContext *>(m_window->rendererInterface()->getResource(
            m_window.get(), QSGRendererInterface::OpenGLContextResource));
        QVERIFY(context);
        QCOMPARE(context->isOpenGLES(), wantedContext().startsWith("es"));
        QCOMPARE(context->format().profile() == QSurfaceFormat::CoreProfile, wantedContext() == "core");
        QVERIFY(m_item->start());
    }

    void cleanup()
    {
        m_window.reset();
        VideoItem::registerLibraries({});
        m_fake.reset();
        m_delivered.clear();
    }

    void cleanupTestCase() { CDeviceFactory::deleteInstance(); }

    void showsTheColoursOfAFrame_data()
    {
        const auto addRow = dataTable<int, int, int, int>({"colour", "y", "u", "v"});
        const QList<QByteArray> names = {"BT.601 limited", "BT.601 full", "BT.709 limited", "BT.709 full"};
        for (int colour = 0; colour < names.size(); ++colour) {
            const auto row = [&](const char *name, int y, int u, int v) {
                addRow((names.at(colour) + ' ' + name).constData(), colour, y, u, v);
            };
            row("black", 16, 128, 128);
            row("white", 235, 128, 128);
            row("red", 81, 90, 240);
            row("green", 145, 54, 34);
            row("blue", 41, 240, 110);
            row("skin", 160, 110, 150);
        }
    }

    void showsTheColoursOfAFrame()
    {
        QFETCH(int, colour);
        QFETCH(int, y);
        QFETCH(int, u);
        QFETCH(int, v);
        const auto frameColour = static_cast<sdk::FrameColour>(colour);
        deliver({32, 18, std::uint8_t(y), std::uint8_t(u), std::uint8_t(v), frameColour});
        m_seen = m_window->grabWindow();
        const QColor wanted = expected(y, u, v, frameColour);
        QCOMPARE(instead(0.5, 0.5, wanted), QString());
        QCOMPARE(instead(0.01, 0.01, wanted), QString()); // to its edges
        QCOMPARE(instead(0.99, 0.99, wanted), QString());
    }

    /// Lines that are not a multiple of the graphics driver's alignment, and half a sample of U and V at the
    /// edges. The last column of U and V has a different colour and must remain at the edge.
    void showsFramesOfOddSizes_data()
    {
        const auto row = dataTable<QSize>({"size"});
        row("odd both ways", QSize(33, 17));
        row("width of 2 beyond 4", QSize(34, 18));
        row("one pixel", QSize(1, 1));
    }

    void showsFramesOfOddSizes()
    {
        QFETCH(QSize, size);
        m_item->setFillMode(VideoItem::Stretch);
        PlainFrame frame(size.width(), size.height(), 120, 128, 128);
        deliver(frame);
        m_seen = m_window->grabWindow();
        const QColor grey = expected(120, 128, 128, sdk::FrameColour::Bt601Limited);
        for (const QPointF point : {QPointF(0.01, 0.01), QPointF(0.5, 0.5), QPointF(0.99, 0.99)})
            QCOMPARE(instead(point.x(), point.y(), grey), QString());

        const int chromaWidth = (size.width() + 1) / 2;
        const int chromaHeight = (size.height() + 1) / 2;
        if (chromaWidth < 4)
            return;
        std::uint8_t *planeV =
            frame.bytes.data() + std::size_t(size.width()) * size.height() + chromaWidth * chromaHeight;
        for (int line = 0; line < chromaHeight; ++line)
            planeV[line * chromaWidth + chromaWidth - 1] = 200;
        deliver(frame);
        m_seen = m_window->grabWindow();
        const QColor red = expected(120, 128, 200, sdk::FrameColour::Bt601Limited);
        QCOMPARE(instead(0.999, 0.5, red), QString());
        // The centre of the second last sample is that far to the left.
        const double grayFrom = (2.0 * (chromaWidth - 2) + 1) / size.width();
        QCOMPARE(instead(grayFrom - 0.005, 0.5, grey), QString());
        const double halfway = 2.0 * (chromaWidth - 1) / size.width();
        const QColor mixed = expected(120, 128, 164, sdk::FrameColour::Bt601Limited);
        QVERIFY(std::abs(at(halfway, 0.5).red() - mixed.red()) < 12);
    }

    void fillsTheViewOrKeepsTheAspectRatio()
    {
        deliver(cells(60, 60, 2, 2));
        m_seen = m_window->grabWindow();
        // As high as the view, 180 pixels wide in the middle of 320: from 0.219 to 0.781.
        QCOMPARE(instead(0.2, 0.5, background), QString()); // transparent next to it
        QCOMPARE(instead(0.8, 0.5, background), QString());
        QCOMPARE(instead(0.3, 0.2, QColor(60, 60, 60)), QString()); // upright, not mirrored
        QCOMPARE(instead(0.7, 0.2, QColor(100, 100, 100)), QString());
        QCOMPARE(instead(0.3, 0.8, QColor(140, 140, 140)), QString());
        QCOMPARE(instead(0.7, 0.8, QColor(180, 180, 180)), QString());

        m_item->setFillMode(VideoItem::Stretch);
        m_seen = m_window->grabWindow();
        QCOMPARE(instead(0.01, 0.1, QColor(60, 60, 60)), QString());
        QCOMPARE(instead(0.99, 0.9, QColor(180, 180, 180)), QString());
    }

    void showsANewFrameSizeDuringAStream()
    {
        deliver({64, 36, 60, 128, 128, sdk::FrameColour::Bt601Full});
        QVERIFY(isLike(m_window->grabWindow().pixelColor(160, 90), QColor(60, 60, 60)));
        m_delivered.last().bytes.assign(m_delivered.last().bytes.size(), 128); // the decoder's next frame
        m_item->update();
        QVERIFY(isLike(m_window->grabWindow().pixelColor(160, 90),
                       QColor(60, 60, 60))); // painting again reads no frame
        deliver({128, 72, 150, 128, 128, sdk::FrameColour::Bt601Full});
        m_seen = m_window->grabWindow();
        QCOMPARE(instead(0.99, 0.99, QColor(150, 150, 150)), QString());
        deliver({31, 18, 200, 128, 128, sdk::FrameColour::Bt601Full});
        m_seen = m_window->grabWindow();
        QCOMPARE(instead(0.5, 0.9, QColor(200, 200, 200)), QString());

        const QSize wider(400, 180); // and of the view
        m_window->resize(wider);
        m_item->setSize(wider);
        QTRY_COMPARE(m_window->width(), 400);
        m_seen = m_window->grabWindow();
        QCOMPARE(instead(0.05, 0.5, background), QString());
        QCOMPARE(instead(0.5, 0.5, QColor(200, 200, 200)), QString());
    }

    void isEmptyWithoutAFrame()
    {
        QVERIFY(isLike(m_window->grabWindow().pixelColor(160, 90), background));
        deliver({64, 36, 60, 128, 128});
        QVERIFY(!isLike(m_window->grabWindow().pixelColor(160, 90), background));
        m_item->stop();
        m_delivered.clear(); // the decoder's buffers have ended
        QVERIFY(isLike(m_window->grabWindow().pixelColor(160, 90), background));
        QVERIFY(m_item->start());
        QVERIFY(
            isLike(m_window->grabWindow().pixelColor(160, 90), background)); // nothing of the earlier frame
        deliver({64, 36, 200, 128, 128, sdk::FrameColour::Bt601Full});
        QVERIFY(isLike(m_window->grabWindow().pixelColor(160, 90), QColor(200, 200, 200)));
    }

    void findsTheShadersOfTheApplication_data()
    {
        const auto row = dataTable<bool>({"areThere"});
        row("missing", false);
        row("next to the application", true);
    }

    void findsTheShadersOfTheApplication()
    {
        QFETCH(bool, areThere);
        QDir program(QCoreApplication::applicationDirPath());
        QVERIFY(program.mkpath("Shaders"));
        for (const QString name : {"Shaders/vertex.vsh", "Shaders/fragment.fsh"})
            QVERIFY(!areThere || QFile::copy(name, program.filePath(name)));
        const QString workingDirectory = QDir::currentPath();
        QVERIFY(QDir::setCurrent(QDir::rootPath()));
        MessageLog log;
        delete m_item;
        m_item = new VideoItem(m_window->contentItem()); // with a separate renderer
        m_item->setSize(viewSize);
        QVERIFY(m_item->start());
        deliver({64, 36, 60, 128, 128, sdk::FrameColour::Bt601Full});
        m_seen = m_window->grabWindow();
        QVERIFY(QDir::setCurrent(workingDirectory));
        QVERIFY(program.cd("Shaders") && program.removeRecursively());
        QCOMPARE(instead(0.5, 0.5, areThere ? QColor(60, 60, 60) : background), QString());
        const QStringList lines = log.take();
        QCOMPARE(lines.contains(" add vertex shader file failed."), !areThere);
        QCOMPARE(lines.contains(" add fragment shader file failed."), !areThere);
        QTRY_COMPARE(m_item->problemText().contains("Shaders"), !areThere);
    }
};

int main(int argc, char **argv)
{
    const QByteArray context = wantedContext();
    QSurfaceFormat format = QSurfaceFormat::defaultFormat();
    if (context == "core") {
        format.setVersion(3, 3);
        format.setProfile(QSurfaceFormat::CoreProfile);
    } else if (context == "es2" || context == "es3") {
        format.setRenderableType(QSurfaceFormat::OpenGLES);
        format.setVersion(context == "es2" ? 2 : 3, 0);
    }
    QSurfaceFormat::setDefaultFormat(format);
    const QGuiApplication application(argc, argv);
    TestVideoFrame test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_videoframe.moc"
