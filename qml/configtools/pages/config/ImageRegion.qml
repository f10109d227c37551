// The region of backlight compensation, in 1/8192 of the image's width and height. All four sides are written together,
// when one of them is changed and none is inconsistent.
import QtQuick
import configtools

OVFormRow {
    id: root

    required property ImageGroup group  // the group "backMode"
    /// On the device: numbers by "Left", "Top", "Right" and "Bottom".
    readonly property var region: group.values.BacklightRegion ?? ({})
    readonly property var sides: [
        {key: "Left", name: qsTr("左")}, {key: "Top", name: qsTr("上")},
        {key: "Right", name: qsTr("右")}, {key: "Bottom", name: qsTr("下")}
    ]
    readonly property int fullScale: 8192
    /// The numbers in the fields, by the same keys.
    property var typed: ({Left: 0, Top: 0, Right: fullScale, Bottom: fullScale})
    readonly property bool acrossWrong: typed.Left > typed.Right  // left is greater than right
    readonly property bool downWrong: typed.Top > typed.Bottom  // top is greater than bottom
    readonly property bool wrong: acrossWrong || downWrong

    label: qsTr("区域(0–8192)")
    labelWidth: Theme.imageLabelWidth
    width: parent?.width ?? 0

    Column {
        spacing: Theme.unit

        Grid {
            columns: 4
            columnSpacing: Theme.unit
            rowSpacing: Theme.unit

            // qmllint disable unqualified
            Repeater {
                model: root.sides

                Row {
                    id: side

                    required property var modelData

                    spacing: Theme.half

                    OVLabel {
                        height: Theme.controlHeight
                        color: Theme.colours.sub
                        text: side.modelData.name
                    }
                    ImageNumber {
                        accessibleName: side.modelData.name
                        current: Number(root.region[side.modelData.key] ?? 0) || 0
                        group: root.group
                        largest: root.fullScale
                        objectName: "region" + side.modelData.key
                        subKey: ""
                        width: Theme.rangeFieldWidth - Theme.pageMargin
                        wrong: root.wrong
                        onFinished: root.group.change("BacklightRegion", root.typed)
                        onTextChanged: root.typed = Object.assign({}, root.typed, {[side.modelData.key]: Number(text)})
                    }
                }
            }
            // qmllint enable unqualified
        }
        OVLabel {
            color: Theme.colours.bad
            font: Theme.hintFont
            objectName: "regionError"
            text: root.acrossWrong ? qsTr("左边不能大于右边") : qsTr("上边不能大于下边")
            visible: root.wrong
        }
    }
}
