// A row of an OVTable. The view reuses it for other rows: signals have the identity of the row, not its index. The row
// only reports input.
import QtQuick
import configtools

Rectangle {
    id: root

    required property int index  // from 0
    required property bool checked
    required property bool conflict  // the row is highlighted
    required property string identity  // unique name of the row in the model
    required property var values  // by key, from get() of the model
    required property var columns  // the shown ones, see OVTable
    required property var columnWidths  // in pixels, parallel to `columns`
    required property bool checkable
    required property int checkWidth
    required property bool current
    readonly property bool absent: values.absent ?? false  // greyed, without a check box
    property string pressedIdentity  // identity at the press of a mouse button, "" without a press
    property int readings: 0  // incremented by read()
    property int pooledIndex: -1  // index when the view put the item aside
    signal clicked(string identity, int modifiers)  // outside of the check column; modifiers: Qt::KeyboardModifiers
    signal tickToggled(string identity, int modifiers)  // a click in the check column; the check state does not change
    signal doubleClicked(string identity)  // after clicked()
    signal menuRequested(string identity, real x, real y)  // in coordinates of the view's content

    /// The identity at the time of the press: this item may show another row since. A screen reader clicks without a
    /// press.
    function takePressed() {
        const identity = pressedIdentity !== "" ? pressedIdentity : root.identity;
        pressedIdentity = "";
        return identity;
    }

    /// The width in pixels of the column that shows this row without eliding.
    function fittingWidth(column) {
        return (cells.itemAt(column) as Loader)?.item?.fittingWidth() ?? 0;
    }

    /// Makes the owner read `values` again.
    function read() {
        ++readings;
    }

    height: Theme.rowHeight
    color: current ? Theme.colours.rowSelected
        : conflict ? Theme.colours.rowConflict
        : index % 2 === 1 ? Theme.colours.rowAlternate : Theme.colours.row
    objectName: "row" + index

    Accessible.role: Accessible.Row
    Accessible.name: values.ipport ?? values.name ?? columns.map(column => values[column.key] ?? "").join(" ")
    Accessible.selected: current
    Accessible.checkable: checkable && !absent
    Accessible.checked: checked

    ListView.onPooled: {
        pressedIdentity = "";  // a press released elsewhere
        pooledIndex = index;
    }
    ListView.onReused: if (index === pooledIndex) read()  // the row of this index may have changed

    HoverHandler {
        id: pointer
    }

    Rectangle {
        anchors.fill: parent
        color: Theme.colours.rowHoverVeil
        visible: pointer.hovered && !root.current
    }

    MouseArea {
        anchors.fill: parent
        onPressed: root.pressedIdentity = root.identity
        onClicked: mouse => root.clicked(root.takePressed(), mouse.modifiers)
        onDoubleClicked: root.doubleClicked(root.takePressed())
    }

    MouseArea {
        anchors.fill: parent
        acceptedButtons: Qt.RightButton
        onPressed: mouse => root.menuRequested(root.identity, root.x + mouse.x, root.y + mouse.y)
    }

    // The click area is the entire check column.
    MouseArea {
        width: root.checkWidth
        height: parent.height
        objectName: "check" + root.index
        visible: root.checkable && !root.absent
        onPressed: root.pressedIdentity = root.identity
        onClicked: mouse => root.tickToggled(root.takePressed(), mouse.modifiers)

        OVCheckBox {
            anchors.centerIn: parent
            checked: root.checked
            enabled: true
            focusPolicy: Qt.NoFocus
            hoverEnabled: false
            nextCheckState: () => checkState
            Accessible.ignored: true

            // The model owns the check state.
            MouseArea {
                anchors.fill: parent
                onPressed: root.pressedIdentity = root.identity
                onClicked: mouse => root.tickToggled(root.takePressed(), mouse.modifiers)
            }
        }
    }

    Row {
        x: root.checkWidth
        height: parent.height
        opacity: root.absent ? Theme.absentOpacity : 1

        // qmllint disable unqualified
        Repeater {
            id: cells
            model: root.columns

            Loader {
                required property int index
                required property var modelData

                width: root.columnWidths[index] ?? 0
                height: Theme.rowHeight
                sourceComponent: modelData.cell ?? textCell

                onLoaded: {
                    const cell = item as OVTableCell;
                    cell.key = modelData.key;
                    cell.row = Qt.binding(() => root.values);
                    cell.conflict = Qt.binding(() => root.conflict);
                    cell.rowIndex = Qt.binding(() => root.index);
                    cell.current = Qt.binding(() => root.current);
                }
            }
        }
        // qmllint enable unqualified
    }

    Component {
        id: textCell
        OVTableTextCell {}
    }
}
