#include "media/viewgeometry.h"
#include "tests/datatable.h"

#include <cmath>

namespace {

constexpr QSizeF view(640, 360);

/// The point of the frame that is shown at a point of the view.
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
    void zoomLevelsAreLimited_data()
    {
        const auto row = dataTable<QList<double>, int>({"steps", "level"});
        row("one notch", QList<double>{1}, 1);
        row("there and back", QList<double>{2, -1}, 1);
        row("none", QList<double>{2, 0, std::nan("")}, 2);
        row("below the lowest", QList<double>{1, -5}, 0);
        row("above the highest", QList<double>{15, 15}, 20);
        row("far out of range", QList<double>{1e300, -1e300, INFINITY}, 20);
    }

    void zoomLevelsAreLimited()
    {
        QFETCH(QList<double>, steps);
        ViewGeometry geometry;
        for (const double step : steps)
            geometry.zoomBy(step, {0, 0}, view);
        QTEST(geometry.level(), "level");
        QVERIFY(std::abs(geometry.scale() / std::pow(1.2F, float(geometry.level())) - 1) < 1e-5F);
    }

    /// Zooming in never touches the limits of the window; zooming out again may.
    void zoomingKeepsThePointUnderThePointer()
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

    void theVisiblePartStaysInsideTheFrame_data()
    {
        const auto row = dataTable<int, QPointF, QPointF>({"level", "drag", "centre"});
        const double half = 0.5 / std::pow(1.2, 4);
        row("a little right and down", 4, QPointF(64, 36),
            QPointF(0.5 - 0.1 * 2 * half, 0.5 - 0.1 * 2 * half));
        row("far right and up", 4, QPointF(5000, -5000), QPointF(half, 1 - half));
        row("far left and down", 4, QPointF(-5000, 5000), QPointF(1 - half, half));
        row("no number", 4, QPointF(std::nan(""), 10), QPointF(0.5, 0.5));
    }

    void theVisiblePartStaysInsideTheFrame()
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
};

QTEST_GUILESS_MAIN(TestViewGeometry)
#include "tst_viewgeometry.moc"
