// A thin scroll bar. Hidden while the whole content is in view.
import QtQuick
import QtQuick.Templates as T
import configtools

T.ScrollBar {
    id: root

    implicitWidth: 10
    implicitHeight: 10
    minimumSize: 0.06
    padding: 2
    visible: size < 1.0

    contentItem: Rectangle {
        implicitWidth: 6
        implicitHeight: 6
        color: root.pressed ? Theme.colours.sub : root.hovered ? Theme.colours.faint : Theme.colours.lineStrong
        radius: 3

        Behavior on color { ColorAnimation { duration: Theme.quick } }
    }
}
