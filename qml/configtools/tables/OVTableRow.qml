// A row of an OVTable.
import QtQuick
import configtools

Rectangle {
    id: root

    required property int index
    required property bool checked
    required property bool conflict
    required property string identity
    required property var values  // from get() of the model
    required property var columns
    required property var columnWidths
    required property bool checkable
    required property int checkWidth
    required property bool current
    property string pressedIdentity
    property int readings: 0  // incremented to read the values again
    property int pooledIndex: -1
    signal clicked(string identity, int modifiers)
    signal tickToggled(string identity, int modifiers)
    signal doubleClicked(string identity)
    signal menuRequested(string identity, real x, real y)  // in coordinates of the view's content

    /// The identity at the time of the press: this item may show another row since. A screen reader clicks without a
    /// press.
    function takePressed() {
        const identity = pressedIdentity !== "" ? pressedIdentity : root.identity;
        pressedIdentity = "";
        return identity;
    }

    function fittingWidth(column) {
        return (cells.itemAt(column) as Loader)?.item?.fittingWidth() ?? 0;
    }

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
    Accessible.checkable: checkable
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
        visible: root.checkable
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
