// A progress bar for `value` from 0 to 1. While it is `indeterminate`, a segment moves along the bar instead.
import QtQuick
import QtQuick.Templates as T
import configtools

T.ProgressBar {
    id: root

    property color barColor: Theme.colours.accent

    implicitWidth: 220
    implicitHeight: 6

    Accessible.role: Accessible.ProgressBar
    Accessible.name: indeterminate ? "" : Math.round(100 * position) + "%"

    background: Rectangle {
        color: Theme.colours.pressed
        radius: height / 2
    }

    contentItem: Item {
        clip: true

        Rectangle {
            id: segment
            property real way

            x: root.indeterminate ? way * (parent.width + width) - width : 0
            width: root.indeterminate ? parent.width * 0.3 : root.position * parent.width
            height: parent.height
            color: root.barColor
            radius: height / 2

            NumberAnimation on way {
                duration: Theme.turn * 1.4
                easing.type: Easing.InOutQuad
                from: 0
                to: 1
                loops: Animation.Infinite
                running: root.indeterminate && root.visible
            }
        }
    }
}
