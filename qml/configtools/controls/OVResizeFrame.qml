// The edges and corners by which a frameless window is resized, as an item over the whole window. It only reports a
// press: the window resizes itself.
import QtQuick
import configtools

Item {
    id: root

    required property bool active  // false: the window cannot be resized, as it is maximised or in full screen
    signal resizeRequested(int edges)  // a combination of Qt::Edge, for Window.startSystemResize()

    // qmllint disable unqualified
    Repeater {
        model: root.active ? [
            Qt.LeftEdge, Qt.RightEdge, Qt.TopEdge, Qt.BottomEdge, Qt.TopEdge | Qt.LeftEdge,
            Qt.TopEdge | Qt.RightEdge, Qt.BottomEdge | Qt.LeftEdge, Qt.BottomEdge | Qt.RightEdge
        ] : []

        MouseArea {
            required property int modelData
            readonly property bool onLeft: modelData & Qt.LeftEdge
            readonly property bool onRight: modelData & Qt.RightEdge
            readonly property bool onTop: modelData & Qt.TopEdge
            readonly property bool onBottom: modelData & Qt.BottomEdge
            readonly property bool onSide: onLeft || onRight
            readonly property bool onEnd: onTop || onBottom

            x: onLeft ? 0 : onRight ? root.width - width : Theme.resizeEdge
            y: onTop ? 0 : onBottom ? root.height - height : Theme.resizeEdge
            width: onSide ? Theme.resizeEdge : root.width - 2 * Theme.resizeEdge
            height: onEnd ? Theme.resizeEdge : root.height - 2 * Theme.resizeEdge
            cursorShape: !onEnd ? Qt.SizeHorCursor : !onSide ? Qt.SizeVerCursor
                : onTop === onLeft ? Qt.SizeFDiagCursor : Qt.SizeBDiagCursor
            onPressed: root.resizeRequested(modelData)
        }
    }
    // qmllint enable unqualified
}
