// Faults in the current layout of a window.
#pragma once

#include <QStringList>

class QQuickWindow;

/// Checks the visible items once. Returns one line for each fault, with the name of the item; empty without
/// faults. Faults are:
/// - a text or a control that is truncated by its window, or by an enclosing item that does not scroll,
/// - an elided text without a tool tip that shows it completely,
/// - overlapping texts or controls,
/// - a tool tip over the heading of a table.
[[nodiscard]] QStringList layoutFaults(const QQuickWindow &window);
