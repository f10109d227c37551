#include "tests/tour/driver/driver.h"
#include "tests/tour/driver/rows.h"
#include "tests/tour/steps.h"

using namespace Qt::StringLiterals;

namespace {

void walkSorting(Driver &driver)
{
    const Rows rows(driver);
    const QVariant first = rows.value(0, "ipport");
    driver.click(u"head_ipport"_s);
    driver.click(u"head_ipport"_s);
    driver.check(rows.value(0, "ipport").toString() > rows.value(rows.count() - 1, "ipport").toString(),
                 u"the highest address stands first"_s);
    driver.report(u"sorted"_s, u"addresses in descending order"_s);
    driver.click(u"head_ipport"_s);
    driver.check(rows.value(0, "ipport") == first, u"the third click brings the list's order back"_s);
}

void walkTicks(Driver &driver)
{
    const Rows rows(driver);
    driver.click(u"check1"_s);
    driver.click(u"row3"_s);
    driver.key(Qt::Key_Space);
    driver.key(Qt::Key_Down, Qt::ShiftModifier);
    driver.key(Qt::Key_Down, Qt::ShiftModifier);
    driver.await(u"four rows are ticked by mouse and keys"_s,
                 [&] { return rows.countOf("checked", true) == 4; });
    driver.report(u"ticked"_s, driver.text(u"selectedCount"_s));
    driver.check(!driver.text(u"selectedCount"_s).contains(u" 台"_s),
                 u"Chinese has no space between a number and its unit"_s);
    driver.click(u"checkAllBox"_s);
    driver.check(rows.countOf("checked", true) == rows.count(), u"every row is ticked"_s);
    driver.click(u"checkAllBox"_s);
    driver.check(rows.countOf("checked", true) == 0, u"no row is ticked"_s);
}

void walkFilters(Driver &driver)
{
    const Rows rows(driver);
    const int all = rows.count();
    const int uninitialised = rows.countOf("state", false);
    driver.check(uninitialised == 3, u"three devices are factory-new"_s);

    driver.click(u"initialisedBox"_s);
    driver.check(rows.count() == uninitialised, u"only factory-new devices are left"_s);
    driver.report(u"uninitialised-only"_s, u"%1 factory-new devices"_s.arg(rows.count()));
    driver.click(u"uninitialisedBox"_s);
    driver.check(rows.count() == 0, u"nothing is left"_s);
    driver.report(u"filtered-empty"_s, driver.text(u"emptyTitle"_s));
    driver.click(u"emptyActionButton"_s);
    driver.check(rows.count() == all, u"the filters are cleared"_s);

    driver.key(Qt::Key_F, Qt::ControlModifier);
    driver.type(u"录像"_s);
    driver.await(u"the text filter leaves some rows"_s,
                 [&] { return rows.count() > 0 && rows.count() < all; });
    driver.report(u"text-search"_s, u"rows that hold the text: %1"_s.arg(rows.count()));
    driver.key(Qt::Key_A, Qt::ControlModifier);
    driver.type(u"no such device"_s);
    driver.await(u"no row holds the text"_s, [&] { return rows.count() == 0; });
    driver.report(u"text-search-empty"_s, driver.text(u"emptyHint"_s));
    driver.key(Qt::Key_A, Qt::ControlModifier);
    driver.key(Qt::Key_Delete);
    driver.await(u"all rows are back"_s, [&] { return rows.count() == all; });

    driver.click(u"ipv6Choice"_s);
    driver.check(rows.count() > 0 && rows.value(0, "ipport").toString().startsWith(QLatin1Char('[')),
                 u"IPv6 devices are listed"_s);
    driver.report(u"ipv6"_s, u"%1 IPv6 devices"_s.arg(rows.count()));
    driver.click(u"ipv4Choice"_s);
}

void walkConflict(Driver &driver)
{
    const Rows rows(driver);
    driver.check(rows.countOf("conflict", true) == 2, u"two rows have one address"_s);
    int conflict = 0;
    while (!rows.value(conflict, "conflict").toBool())
        ++conflict;
    driver.click(u"row0"_s);
    driver.key(Qt::Key_End);
    driver.await(u"the last row is in view"_s,
                 [&] { return driver.find(u"row%1"_s.arg(rows.count() - 1)) != nullptr; });
    QQuickItem *row = driver.require(u"row%1"_s.arg(conflict));
    const QPoint edge = row->mapToScene(QPointF(row->width() - 40, 4)).toPoint();
    driver.report(u"conflict"_s, u"two rows of one address"_s);
    const QImage image = driver.window()->grabWindow();
    const qreal scale = image.devicePixelRatio();
    driver.check(image.pixelColor((QPointF(edge) * scale).toPoint()) == QColor(0xFC, 0xE7, 0xE7),
                 u"a row in conflict is painted #FCE7E7"_s);
}

} // namespace

void walkTable(Driver &driver)
{
    walkSorting(driver);
    walkTicks(driver);
    walkFilters(driver);
    walkConflict(driver);
}
