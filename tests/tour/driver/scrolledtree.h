// Clicks into a device tree that is scrolled to its end.
#pragma once

#include "tests/tour/driver/driver.h"

/// Clicks visible rows. The tour fails if the tree scrolls, or if another row reacts.
class ScrolledTree
{
public:
    explicit ScrolledTree(const Driver &driver);

    /// Clicks the row of the lowest device. Returns its address.
    [[nodiscard]] QString clickDevice() const;

    // Each function ticks with a click on the box and unticks with a second one.

    void tickDevice() const;
    void tickGroup() const;

private:
    [[nodiscard]] QQuickItem *lowest(bool isGroup) const;
    void click(const QQuickItem *row, qreal x) const;
    void tick(const QQuickItem *row, int devices) const;

    const Driver &m_driver;
    QQuickItem *const m_tree;
    qreal m_end = 0; ///< "contentY" at the end of the tree
};
