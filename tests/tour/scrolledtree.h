// A device tree that is scrolled to its end, and what clicks into it do.
#pragma once

#include "tests/tour/driver.h"

/// Every click is one into the rows in view. The tour ends when the tree moves under it, or when another row
/// takes it.
class ScrolledTree
{
public:
    explicit ScrolledTree(const Driver &driver);

    /// Clicks the row of the lowest device. Returns its address.
    [[nodiscard]] QString clickDevice() const;

    // Each ticks by a click into the box, and unticks by a second one.

    void tickDevice() const;
    void tickGroup() const;

private:
    [[nodiscard]] QQuickItem *lowest(bool isGroup) const;
    void click(const QQuickItem *row, qreal x) const;
    void tick(const QQuickItem *row, int devices) const;

    const Driver &m_driver;
    QQuickItem *const m_tree;
    qreal m_end = 0; ///< "contentY" when it is scrolled to its end
};
