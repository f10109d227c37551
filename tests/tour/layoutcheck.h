// What is wrong with the layout of a window, as it stands at the moment.
#pragma once

#include <QStringList>

class QQuickWindow;

/// One line for each fault, with the name of the item. Faults are:
/// - a text or a control that is cut by its window, or by what it lies in and cannot be scrolled there,
/// - a text that is elided, and no tool tip shows the whole of it,
/// - texts or controls that lie over each other,
/// - a tool tip over the heading of a table.
[[nodiscard]] QStringList layoutFaults(const QQuickWindow &window);
