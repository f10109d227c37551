// Actions side by side. A disabled control takes no part in hovering, so the row watches in its place: a user
// who cannot press something is the one who wants to know why.
import QtQuick
import configtools

Row {
    id: root

    readonly property OVAbstractButton over: pointer.hovered
        ? childAt(pointer.point.position.x, pointer.point.position.y) as OVAbstractButton : null
    readonly property bool explains: over !== null && !over.enabled

    spacing: Theme.unit

    HoverHandler {
        id: pointer
    }

    Item {
        // Positioners leave out what has no size; the bubble belongs under the control it speaks of.
        parent: root.explains ? root.over as Item : root
        width: parent === root ? 0 : parent.width
        height: parent === root ? 0 : parent.height

        OVToolTip {
            shown: root.explains
            text: root.over?.toolTip ?? ""
        }
    }
}
