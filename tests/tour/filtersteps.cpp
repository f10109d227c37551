#include "tests/tour/driver.h"
#include "tests/tour/rows.h"
#include "tests/tour/steps.h"

#include <QQuickItem>

namespace {

void walkSorting(Driver &driver)
{
    const Rows rows(driver);
    const QVariant first = rows.value(0, "ipport");
    driver.click(QStringLiteral("head_ipport"));
    driver.click(QStringLiteral("head_ipport"));
    driver.check(rows.value(0, "ipport").toString() > rows.value(rows.count() - 1, "ipport").toString(),
                 QStringLiteral("the highest address stands first"));
    driver.report(QStringLiteral("sorted"), QStringLiteral("addresses in descending order"));
    driver.click(QStringLiteral("head_ipport"));
    driver.check(rows.value(0, "ipport") == first,
                 QStringLiteral("the third click brings the list's order back"));
}

void walkTicks(Driver &driver)
{
    const Rows rows(driver);
    driver.click(QStringLiteral("check1"));
    driver.click(QStringLiteral("row3"));
    driver.key(Qt::Key_Space);
    driver.key(Qt::Key_Down, Qt::ShiftModifier);
    driver.key(Qt::Key_Down, Qt::ShiftModifier);
    driver.await(QStringLiteral("four rows are ticked by mouse and keys"),
                 [&] { return rows.countOf("checked", true) == 4; });
    driver.report(QStringLiteral("ticked"), driver.text(QStringLiteral("selectedCount")));
    driver.check(!driver.text(QStringLiteral("selectedCount")).contains(QStringLiteral(" 台")),
                 QStringLiteral("Chinese has no space between a number and its unit"));
    driver.click(QStringLiteral("checkAllBox"));
    driver.check(rows.countOf("checked", true) == rows.count(), QStringLiteral("every row is ticked"));
    driver.click(QStringLiteral("checkAllBox"));
    driver.check(rows.countOf("checked", true) == 0, QStringLiteral("no row is ticked"));
}

void walkFilters(Driver &driver)
{
    const Rows rows(driver);
    const int all = rows.count();
    const int uninitialised = rows.countOf("state", false);
    driver.check(uninitialised == 3, QStringLiteral("three devices are factory-new"));

    driver.click(QStringLiteral("initialisedBox"));
    driver.check(rows.count() == uninitialised, QStringLiteral("only factory-new devices are left"));
    driver.report(QStringLiteral("uninitialised-only"),
                  QStringLiteral("%1 factory-new devices").arg(rows.count()));
    driver.click(QStringLiteral("uninitialisedBox"));
    driver.check(rows.count() == 0, QStringLiteral("nothing is left"));
    driver.report(QStringLiteral("filtered-empty"), driver.text(QStringLiteral("emptyTitle")));
    driver.click(QStringLiteral("emptyActionButton"));
    driver.check(rows.count() == all, QStringLiteral("the filters are cleared"));

    driver.key(Qt::Key_F, Qt::ControlModifier);
    driver.type(QStringLiteral("录像"));
    driver.await(QStringLiteral("the text filter leaves some rows"),
                 [&] { return rows.count() > 0 && rows.count() < all; });
    driver.report(QStringLiteral("text-search"),
                  QStringLiteral("rows that hold the text: %1").arg(rows.count()));
    driver.key(Qt::Key_A, Qt::ControlModifier);
    driver.type(QStringLiteral("no such device"));
    driver.await(QStringLiteral("no row holds the text"), [&] { return rows.count() == 0; });
    driver.report(QStringLiteral("text-search-empty"), driver.text(QStringLiteral("emptyHint")));
    driver.key(Qt::Key_A, Qt::ControlModifier);
    driver.key(Qt::Key_Delete);
    driver.await(QStringLiteral("all rows are back"), [&] { return rows.count() == all; });

    driver.click(QStringLiteral("ipv6Choice"));
    driver.check(rows.count() > 0 && rows.value(0, "ipport").toString().startsWith(QLatin1Char('[')),
                 QStringLiteral("IPv6 devices are listed"));
    driver.report(QStringLiteral("ipv6"), QStringLiteral("%1 IPv6 devices").arg(rows.count()));
    driver.click(QStringLiteral("ipv4Choice"));
}

void walkConflict(Driver &driver)
{
    const Rows rows(driver);
    driver.check(rows.countOf("conflict", true) == 2, QStringLiteral("two rows have one address"));
    int conflict = 0;
    while (!rows.value(conflict, "conflict").toBool())
        ++conflict;
    driver.click(QStringLiteral("row0"));
    driver.key(Qt::Key_End);
    driver.await(QStringLiteral("the last row is in view"),
                 [&] { return driver.find(QStringLiteral("row%1").arg(rows.count() - 1)) != nullptr; });
    QQuickItem *row = driver.require(QStringLiteral("row%1").arg(conflict));
    const QPoint edge = row->mapToScene(QPointF(row->width() - 40, 4)).toPoint();
    driver.report(QStringLiteral("conflict"), QStringLiteral("two rows of one address"));
    const QImage image = driver.window()->grabWindow();
    const qreal scale = image.devicePixelRatio();
    driver.check(image.pixelColor((QPointF(edge) * scale).toPoint()) == QColor(0xFC, 0xE7, 0xE7),
                 QStringLiteral("a row in conflict is painted #FCE7E7"));
}

} // namespace

void walkTable(Driver &driver)
{
    walkSorting(driver);
    walkTicks(driver);
    walkFilters(driver);
    walkConflict(driver);
}
