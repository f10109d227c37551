#include "media/viewgeometry.h"
#include "tests/datatable.h"

#include <cmath>

namespace {

constexpr QSizeF view(640, 360);

/// The point of the scene that is shown at a point of the view.
QPointF sceneAt(const ViewGeometry &geometry, const QPointF &point)
{
    return {geometry.centre().x() + (point.x() / view.width() - 0.5) / geometry.scale(),
            geometry.centre().y() + (point.y() / view.height() - 0.5) / geometry.scale()};
}

bool isNear(const QPointF &one, const QPointF &other)
{
    return std::hypot(one.x() - other.x(), one.y() - other.y()) < 1e-5;
}

} // namespace

class TestViewGeometry : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void levelsEndAtTheirLimits_data()
    {
        const auto row = dataTable<QList<double>, int>({"steps", "level"});
        row("one notch", QList<double>{1}, 1);
        row("a part of a notch", QList<double>{0.1}, 1);
        row("three notches at once", QList<double>{3}, 3);
        row("there and back", QList<double>{2, -1}, 1);
        row("none", QList<double>{2, 0, std::nan("")}, 2);
        row("below the lowest", QList<double>{1, -5}, 0);
        row("above the highest", QList<double>{15, 15}, 20);
        row("far out of range", QList<double>{1e300, -1e300, INFINITY}, 20);
    }

    void levelsEndAtTheirLimits()
    {
        QFETCH(QList<double>, steps);
        ViewGeometry geometry;
        for (const double step : steps)
            geometry.zoomBy(step, {0, 0}, view);
        QTEST(geometry.level(), "level");
        QVERIFY(std::abs(geometry.scale() / std::pow(1.2F, float(geometry.level())) - 1) < 1e-5F);
    }

    /// Zooming in never touches the limits of the window; zooming out again may.
    void thePointUnderThePointerStays()
    {
        for (const QPointF anchor : {QPointF(320, 180), QPointF(0, 0), QPointF(640, 10), QPointF(100, 300)}) {
            ViewGeometry geometry;
            const QPointF scene = sceneAt(geometry, anchor);
            for (int level = 1; level <= ViewGeometry::maximumLevel; ++level) {
                geometry.zoomTo(level, anchor, view);
                QVERIFY(isNear(sceneAt(geometry, anchor), scene));
            }
            geometry.zoomTo(7, anchor, view);
            QVERIFY(isNear(sceneAt(geometry, anchor), scene));
        }
    }

    void theWindowStaysInside_data()
    {
        const auto row = dataTable<int, QPointF, QPointF>({"level", "drag", "centre"});
        const double half = 0.5 / std::pow(1.2, 4);
        row("whole, pinned", 0, QPointF(50, -50), QPointF(0.5, 0.5));
        row("a little right and down", 4, QPointF(64, 36),
            QPointF(0.5 - 0.1 * 2 * half, 0.5 - 0.1 * 2 * half));
        row("far right and up", 4, QPointF(5000, -5000), QPointF(half, 1 - half));
        row("far left and down", 4, QPointF(-5000, 5000), QPointF(1 - half, half));
        row("no number", 4, QPointF(std::nan(""), 10), QPointF(0.5, 0.5));
    }

    void theWindowStaysInside()
    {
        QFETCH(int, level);
        QFETCH(QPointF, drag);
        QFETCH(QPointF, centre);
        ViewGeometry geometry;
        geometry.zoomTo(level, {320, 180}, view);
        geometry.drag(drag.x(), drag.y(), view);
        QVERIFY2(isNear(geometry.centre(), centre),
                 qPrintable(QString("%1 %2").arg(geometry.centre().x()).arg(geometry.centre().y())));
    }

    void anEmptyViewMovesNothing()
    {
        ViewGeometry geometry;
        geometry.zoomTo(5, {0, 0}, {0, 360});
        geometry.drag(10, 10, {640, 0});
        QCOMPARE(geometry.centre(), QPointF(0.5, 0.5));
        QCOMPARE(geometry.level(), 5);
    }

    void zoomingOutComesBackInside()
    {
        ViewGeometry geometry;
        geometry.zoomTo(20, {0, 0}, view); // into the corner
        geometry.zoomTo(1, {640, 360}, view);
        const double half = 0.5 / 1.2;
        QVERIFY(geometry.centre().x() > half - 1e-6 && geometry.centre().y() > half - 1e-6);
        geometry.zoomTo(0, {640, 360}, view);
        QCOMPARE(geometry.centre(), QPointF(0.5, 0.5));
    }

    void fillsTheView_data()
    {
        const auto row = dataTable<bool, QSizeF, QSizeF>({"stretch", "picture", "filled"});
        row("same shape", false, QSizeF(1920, 1080), QSizeF(1, 1));
        row("narrower", false, QSizeF(360, 360), QSizeF(0.5625, 1));
        row("wider", false, QSizeF(1280, 360), QSizeF(1, 0.5));
        row("stretched", true, QSizeF(360, 360), QSizeF(1, 1));
        row("empty", false, QSizeF(0, 0), QSizeF(1, 1));
    }

    void fillsTheView()
    {
        QFETCH(bool, stretch);
        QFETCH(QSizeF, picture);
        const auto fill = stretch ? PictureFill::Stretch : PictureFill::PreserveAspectFit;
        QTEST(filledPart(fill, picture, view), "filled");
    }

    /// What is drawn is what the window says, also beside bars.
    void matricesFollowTheWindow()
    {
        ViewGeometry geometry;
        geometry.zoomTo(6, {500, 50}, view);
        const QSizeF filled(0.5625, 1);
        const ViewMatrices matrices = viewMatrices(geometry, filled);
        const QPointF inPicture(0.25, 0.75); // from its left and its top
        const QVector3D drawn =
            (matrices.project * matrices.model)
                .map(QVector3D(float(2 * inPicture.x() - 1), float(1 - 2 * inPicture.y()), 0));
        const QPointF inView((drawn.x() + 1) / 2 * view.width(), (1 - drawn.y()) / 2 * view.height());
        const QPointF inScene(0.5 + filled.width() * (inPicture.x() - 0.5), inPicture.y());
        QVERIFY(isNear(sceneAt(geometry, inView), inScene));
    }
};

QTEST_GUILESS_MAIN(TestViewGeometry)
#include "tst_viewgeometry.moc"
