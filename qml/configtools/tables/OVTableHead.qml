// The head of an OVTable: titles with sort icons, edges for resizing, and the check box of all rows. If `arrangeable`,
// titles can be dragged and the right mouse button opens a menu; keyboard: Ctrl+Left/Right moves the column,
// Alt+Left/Right changes its width, Menu or Shift+F10 opens the menu. The head only requests changes by its signals.
import QtQuick
import configtools

Rectangle {
    id: root

    required property var columns  // the shown ones, see OVTable
    required property var columnWidths  // in pixels, parallel to `columns`
    property bool arrangeable: false  // the user chooses and moves the columns
    required property bool checkable  // the check box is shown
    required property int checkWidth  // without check boxes: room before the first column
    required property int checkState  // of the check box, a Qt::CheckState
    required property int rowCount  // without rows the check box is disabled
    required property string sortKey  // "" for none
    required property int sortOrder  // a Qt::SortOrder
    required property real scrolled  // contentX of the rows, in pixels
    readonly property bool keyGroup: true  // one stop of the Tab key, see keygroups.js
    signal sortRequested(string key)  // by a click on the title of a sortable column
    signal allToggled  // a click on the check box; its state does not change
    signal widthChosen(int column, real width)  // in pixels, not limited yet
    signal fitRequested(int column)  // by a double click on the right edge of the title
    signal columnReached(int column)  // got the keyboard focus
    signal columnMoved(string key, int index)  // to this index in `columns`, counted without the moved one
    signal menuRequested(int column, var position)  // position: see OVEntryMenu.openAt(); column: -1 for none

    property int draggedColumn: -1  // index of the dragged column, -1 for none
    property int dropIndex: -1  // index before which it would be dropped, -1 for none

    /// Left edge of the column in the head, in pixels; for the index after the last one, the right edge of the last
    /// one.
    function leftOf(column) {
        return columnWidths.slice(0, column).reduce((sum, width) => sum + width, checkWidth) - scrolled;
    }

    /// The column at this x, -1 for none.
    function columnAt(x) {
        return columns.findIndex((column, i) => x >= leftOf(i) && x < leftOf(i + 1));
    }

    /// Index of the column before which a column is dropped at this x; not after the first fixed column.
    function dropIndexAt(x) {
        const behind = columns.filter((column, i) => !(column.fixed ?? false) && x > (leftOf(i) + leftOf(i + 1)) / 2);
        return behind.length;
    }

    /// Ends the drag: requests the new position of the dragged column, if there is one.
    function drop() {
        const column = draggedColumn;
        const index = dropIndex;
        draggedColumn = dropIndex = -1;
        if (column >= 0 && index >= 0)
            columnMoved(columns[column].key, index > column ? index - 1 : index);
    }

    /// Gives the title the keyboard focus; after the last column, the last title.
    function focusColumn(column) {
        heads.itemAt(Math.min(column, heads.count - 1))?.forceActiveFocus(Qt.TabFocusReason);
    }

    /// The width in pixels of the column that shows its title without eliding; 0 for an invalid index.
    function fittingWidth(column) {
        return heads.itemAt(column)?.fittingWidth ?? 0;
    }

    /// The column whose head has the keyboard focus, -1 for none.
    function focusedColumn() {
        for (let column = 0; column < heads.count; ++column) {
            if (heads.itemAt(column).activeFocus)
                return column;
        }
        return -1;
    }

    /// Requests to move the column by 1 or -1. Its title keeps the keyboard focus.
    function moveByKey(column, by) {
        const key = columns[column].key;
        columnMoved(key, column + by);
        focusColumn(columns.findIndex(other => other.key === key));
    }

    onColumnsChanged: draggedColumn = dropIndex = -1

    Keys.onPressed: event => {
        const column = focusedColumn();
        const by = event.key === Qt.Key_Left ? -1 : event.key === Qt.Key_Right ? 1 : 0;
        const opensMenu = event.key === Qt.Key_Menu || event.key === Qt.Key_F10 && (event.modifiers & Qt.ShiftModifier);
        event.accepted = arrangeable;
        if (!arrangeable)
            return;
        if (opensMenu)
            menuRequested(column, {item: root, x: Math.max(0, leftOf(Math.max(0, column))), y: height, byKey: true});
        else if (by !== 0 && column >= 0 && (event.modifiers & Qt.ControlModifier))
            moveByKey(column, by);
        else if (by !== 0 && column >= 0 && (event.modifiers & Qt.AltModifier))
            widthChosen(column, columnWidths[column] + by * Theme.unit);
        else
            event.accepted = false;
    }

    implicitHeight: Theme.tableHeadHeight
    clip: true
    color: Theme.colours.head
    radius: Theme.paneRadius - Theme.line

    Rectangle {  // square lower corners
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

    Rectangle {  // drop position
        x: root.leftOf(root.dropIndex) - width
        z: 1
        width: 2
        height: parent.height
        color: Theme.colours.accent
        objectName: "dropMark"
        visible: root.dropIndex >= 0
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
            id: heads
            model: root.columns

            OVAbstractButton {
                id: head

                required property int index
                required property var modelData
                readonly property bool sorted: modelData.key === root.sortKey && root.sortKey !== ""
                readonly property bool sortable: modelData.sortable ?? false
                readonly property real fittingWidth: title.implicitWidth + Theme.unit + (sortable ? 16 : 0)

                width: root.columnWidths[index] ?? 0
                height: root.height
                focusPolicy: sortable || root.arrangeable ? Qt.TabFocus : Qt.NoFocus
                objectName: "head_" + modelData.key
                opacity: root.draggedColumn === index ? 0.5 : 1
                text: modelData.title
                onActiveFocusChanged: if (activeFocus) root.columnReached(index)

                Accessible.role: Accessible.ColumnHeader

                onClicked: if (sortable) root.sortRequested(modelData.key)

                DragHandler {
                    id: dragHandler
                    enabled: root.arrangeable && !(head.modelData.fixed ?? false)
                    target: null
                    yAxis.enabled: false
                    onActiveChanged: {
                        if (active)
                            root.draggedColumn = head.index;
                        else
                            Qt.callLater(root.drop);  // the heads are created again
                    }
                    onCentroidChanged: {
                        if (active)
                            root.dropIndex = root.dropIndexAt(head.mapToItem(root, centroid.position.x, 0).x);
                    }
                }

                contentItem: Item {
                    OVLabel {
                        id: title
                        readonly property int room: head.width - Theme.unit - (mark.visible ? 16 : 0)
                        width: Math.min(implicitWidth, room)
                        height: parent.height
                        color: head.sorted || (head.hovered && head.sortable) ? Theme.colours.text
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
                    onDoubleClicked: root.fitRequested(head.index)
                    onPositionChanged: mouse => {
                        if (pressed)
                            root.widthChosen(head.index, mapToItem(head, mouse.x, 0).x + width / 2);
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

    MouseArea {
        anchors.fill: parent
        acceptedButtons: Qt.RightButton
        enabled: root.arrangeable
        onPressed: mouse => root.menuRequested(root.columnAt(mouse.x), {item: root, x: mouse.x, y: mouse.y, byKey: false})
    }
}
