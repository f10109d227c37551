// A popup menu of OVMenuItem; an OVMenu in it is a submenu. It is as wide as its widest entry, at least 180 pixels.
import QtQuick
import QtQuick.Templates as T
import configtools

T.Menu {
    id: root

    property string iconName  // icon of its entry in the parent menu, see OVIcon; "" for none

    implicitWidth: Math.max(180, entries.contentWidth)
    implicitHeight: entries.contentHeight + topPadding + bottomPadding
    cascade: true
    margins: Theme.half
    overlap: Theme.half
    topPadding: Theme.half
    bottomPadding: Theme.half

    delegate: OVMenuItem {
        iconName: (subMenu as OVMenu)?.iconName ?? ""
        objectName: subMenu?.objectName ? subMenu.objectName + "Item" : ""
    }

    contentItem: ListView {
        id: entries
        clip: true
        contentWidth: {
            let widest = 0;
            for (let i = 0; i < root.count; ++i)
                widest = Math.max(widest, root.itemAt(i)?.implicitWidth ?? 0);
            return widest;
        }
        currentIndex: root.currentIndex
        implicitHeight: contentHeight
        interactive: contentHeight > height
        model: root.contentModel
    }

    background: Rectangle {
        border.color: Theme.colours.line
        border.width: Theme.line
        color: Theme.colours.surface
        radius: Theme.controlRadius

        OVShadow { around: Theme.controlRadius; depth: 12 }
    }

    enter: Transition {
        NumberAnimation { property: "opacity"; from: 0; to: 1; duration: Theme.quick }
    }
}
