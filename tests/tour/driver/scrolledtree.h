// Clicks into the device tree of the current page while it is scrolled to its end.
#pragma once

#include "tests/tour/driver/driver.h"

/// Clicks visible rows. The tour fails if a click scrolls the tree, or if another row reacts. The tree must
/// be higher than its view.
class ScrolledTree
{
public:
    /// Scrolls the tree to its end. `driver` must outlive this object.
    explicit ScrolledTree(const Driver &driver);

    /// Clicks the row of the lowest visible device. Returns its "address:port".
    [[nodiscard]] QString clickDevice() const;

    // Each function clicks the box of a row twice: the first click ticks it, the second one unticks it. No
    // device may be ticked before.

    /// The lowest visible device.
    void tickDevice() const;
    /// The lowest visible group; its box ticks all devices of the group.
    void tickGroup() const;

private:
    [[nodiscard]] QQuickItem *lowest(bool isGroup) const;
    void click(const QQuickItem *row, qreal x) const;
    void tick(const QQuickItem *row, int devices) const;

    const Driver &m_driver;
    QQuickItem *const m_tree;
    qreal m_end = 0; ///< "contentY" at the end of the tree
};
