// A row of buttons, which are its direct children. It shows the tool tip of a disabled OVAbstractButton, which receives
// no hover events itself; an enabled one shows its own tip.
import QtQuick
import configtools

Row {
    id: root

    /// The button under the pointer, null for none.
    readonly property OVAbstractButton over: pointer.hovered
        ? childAt(pointer.point.position.x, pointer.point.position.y) as OVAbstractButton : null
    readonly property bool explains: over !== null && !over.enabled  // the row shows the tip of `over`

    spacing: Theme.unit

    HoverHandler {
        id: pointer
    }

    Item {
        // An item without a size takes no part in the layout of the row.
        parent: root.explains ? root.over as Item : root
        width: parent === root ? 0 : parent.width
        height: parent === root ? 0 : parent.height

        OVToolTip {
            shown: root.explains
            text: root.over?.toolTip ?? ""
        }
    }
}
