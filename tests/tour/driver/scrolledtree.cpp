#include "tests/tour/driver/scrolledtree.h"

#include "device/models/treerows.h"

#include <QTest>

using namespace Qt::StringLiterals;

ScrolledTree::ScrolledTree(const Driver &driver) : m_driver(driver), m_tree(driver.require(u"deviceTree"_s))
{
    constexpr int toTheEnd = -100;
    m_driver.turnWheel(m_tree->mapToScene({m_tree->width() / 2, m_tree->height() / 2}), toTheEnd);
    m_end = m_tree->property("contentY").toReal();
    m_driver.check(m_end > 0, u"the device tree is scrolled"_s);
}

QQuickItem *ScrolledTree::lowest(bool isGroup) const
{
    QQuickItem *row = nullptr;
    for (qreal y = m_tree->height() - 2; y > 0 && !row; y -= 4) {
        QMetaObject::invokeMethod(m_tree, "itemAt", QReturnArgument<QQuickItem *>("QQuickItem*", row),
                                  Q_ARG(qreal, 1), Q_ARG(qreal, m_tree->property("contentY").toReal() + y));
        if (row && row->property("isGroup").toBool() != isGroup)
            row = nullptr;
    }
    m_driver.check(row != nullptr, u"a matching row is visible"_s);
    return row;
}

void ScrolledTree::click(const QQuickItem *row, qreal x) const
{
    QTest::mouseClick(m_driver.window(), Qt::LeftButton, Qt::NoModifier,
                      row->mapToScene({x, row->height() / 2}).toPoint());
    m_driver.check(qFuzzyCompare(m_tree->property("contentY").toReal(), m_end),
                   u"a click does not scroll the tree"_s);
}

QString ScrolledTree::clickDevice() const
{
    const QQuickItem *row = lowest(false);
    const QString device = row->property("title").toString();
    click(row, row->width() / 2);
    // A refused login opens a dialog. The tree then loses the focus, and the row is no longer marked as
    // current.
    m_driver.check(row->property("title").toString() == device &&
                       (row->property("current").toBool() || row->property("chosen").toBool()),
                   u"the clicked row of %1 is the current one"_s.arg(device));
    return device;
}

void ScrolledTree::tick(const QQuickItem *row, int devices) const
{
    const QString title = row->property("title").toString();
    const QQuickItem *box = m_driver.require(u"tick_"_s + title);
    const auto *rows = m_tree->property("rows").value<DeviceTreeRows *>();
    for (const int expected : {devices, 0}) {
        click(row, box->x() + box->width() / 2);
        m_driver.check(row->property("tick").toInt() == (expected > 0 ? Qt::Checked : Qt::Unchecked) &&
                           rows->tree()->checkedCount() == expected,
                       u"a click into the box of %1 ticks %2 devices, not %3"_s.arg(title).arg(expected).arg(
                           rows->tree()->checkedCount()));
    }
}

void ScrolledTree::tickDevice() const
{
    tick(lowest(false), 1);
}

void ScrolledTree::tickGroup() const
{
    const QQuickItem *row = lowest(true);
    tick(row, row->property("deviceCount").toInt());
}
