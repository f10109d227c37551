// The part of the picture that backlight is measured in, in 8192ths of its sides.
import QtQuick
import configtools

OVFormRow {
    id: root

    required property ImageGroup group
    readonly property var region: group.values.BacklightRegion ?? ({})
    readonly property var sides: [
        {key: "Left", name: qsTr("左")}, {key: "Top", name: qsTr("上")},
        {key: "Right", name: qsTr("右")}, {key: "Bottom", name: qsTr("下")}
    ]
    readonly property int whole: 8192

    label: qsTr("区域(0–8192)")
    labelWidth: Theme.imageLabelWidth
    width: parent?.width ?? 0

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
                    largest: root.whole
                    objectName: "region" + side.modelData.key
                    subKey: "BacklightRegion"
                    width: Theme.rangeFieldWidth - Theme.pageMargin
                    onFinished: number => {
                        const changed = {Top: 0, Bottom: root.whole, Left: 0, Right: root.whole};
                        Object.assign(changed, root.region);
                        changed[side.modelData.key] = number;
                        root.group.change("BacklightRegion", changed);
                    }
                }
            }
        }
        // qmllint enable unqualified
    }
}
