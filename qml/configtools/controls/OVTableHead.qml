// The head of an OVTable: titles with sort marks, edges to drag, and the tick box for all rows.
import QtQuick
import configtools

Rectangle {
    id: root

    required property var columns
    required property var columnWidths
    required property bool checkable
    required property int checkWidth  // without tick boxes: the room before the first column
    required property int checkState
    required property int rowCount
    required property string sortKey
    required property int sortOrder
    required property real scrolled
    readonly property bool keyGroup: true
    signal sortRequested(string key)
    signal allToggled
    signal widthDragged(int column, real width)

    implicitHeight: Theme.tableHeadHeight
    clip: true
    color: Theme.colours.head
    radius: Theme.paneRadius - Theme.line

    Rectangle {  // the lower corners are square
        y: parent.height - height
        width: parent.width
        height: parent.radius
        color: parent.color
    }
    Rectangle {
        y: parent.height - height
        z: 1
        width: parent.width
        height: Theme.line
        color: Theme.colours.line
    }

    Row {
        x: -root.scrolled
        height: parent.height

        Item {
            width: root.checkWidth
            height: parent.height

            OVCheckBox {
                visible: root.checkable
                anchors.centerIn: parent
                checkState: root.checkState
                nextCheckState: () => checkState
                enabled: root.rowCount > 0
                objectName: "checkAllBox"
                toolTip: qsTr("全选")
                tristate: true
                onClicked: root.allToggled()
            }
        }

        // qmllint disable unqualified
        Repeater {
            model: root.columns

            OVAbstractButton {
                id: head

                required property int index
                required property var modelData
                readonly property bool sorted: modelData.key === root.sortKey && root.sortKey !== ""
                readonly property bool sortable: modelData.sortable ?? false

                width: root.columnWidths[index] ?? 0
                height: root.height
                focusPolicy: sortable ? Qt.TabFocus : Qt.NoFocus
                objectName: "head_" + modelData.key
                text: modelData.title

                Accessible.role: Accessible.ColumnHeader

                onClicked: if (sortable) root.sortRequested(modelData.key)

                contentItem: Item {
                    OVLabel {
                        id: title
                        readonly property int room: head.width - Theme.unit - (mark.visible ? 16 : 0)
                        width: Math.min(implicitWidth, room)
                        height: parent.height
                        color: head.sorted || (head.hovered && head.sortable) ? Theme.colours.ink
                                                                               : Theme.colours.sub
                        font: Theme.headFont
                        text: head.text
                    }
                    OVIcon {
                        id: mark
                        anchors.left: title.right
                        anchors.leftMargin: 3
                        anchors.verticalCenter: parent.verticalCenter
                        color: head.sorted ? Theme.colours.accent : Theme.colours.faint
                        name: head.sorted && root.sortOrder === Qt.DescendingOrder ? "sortDown" : "sortUp"
                        size: 12
                        visible: head.sorted || (head.hovered && head.sortable)
                    }
                }

                background: Item {
                    OVFocusRing {
                        anchors.margins: Theme.focusRing
                        anchors.leftMargin: -Theme.half
                        shown: head.visualFocus
                    }
                }

                MouseArea {
                    id: edge
                    x: parent.width - width
                    width: Theme.unit
                    height: parent.height
                    cursorShape: Qt.SplitHCursor
                    hoverEnabled: true
                    preventStealing: true
                    onPositionChanged: mouse => {
                        if (pressed)
                            root.widthDragged(head.index, mapToItem(head, mouse.x, 0).x + width / 2);
                    }

                    Rectangle {
                        visible: head.index < root.columns.length - 1
                        x: 2
                        y: 10
                        width: edge.containsMouse || edge.pressed ? 2 : Theme.line
                        height: parent.height - 20
                        color: edge.pressed || edge.containsMouse ? Theme.colours.accent : Theme.colours.line
                    }
                }
            }
        }
        // qmllint enable unqualified
    }
}
