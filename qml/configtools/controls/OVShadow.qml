// A soft shadow around its parent, the background of a popup. It is drawn in layers: this version of Qt Quick has no
// blur.
import QtQuick
import configtools

Item {
    id: root

    /// Distance in pixels that the shadow reaches at the sides; also the number of layers. The shadow is moved down by
    /// a third of it, so that it reaches less far above and farther below.
    property int depth: 16
    property int around: Theme.paneRadius  // corner radius of the popup

    anchors.fill: parent
    z: -1

    // qmllint disable unqualified
    Repeater {
        model: root.depth

        Rectangle {
            required property int index
            readonly property int reach: index + 1

            x: -reach
            y: -reach + Math.round(root.depth / 3)
            width: root.width + 2 * reach
            height: root.height + 2 * reach
            color: Theme.colours.shadow
            radius: root.around + reach
        }
    }
    // qmllint enable unqualified
}
