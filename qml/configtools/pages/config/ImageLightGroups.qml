// The image settings of the third subject of ImagePanel: day and night, lamps. Each change is written to the device
// immediately.
import QtQuick
import configtools

Column {
    id: root

    required property ImageWork work  // reads and writes the settings
    readonly property var lamps: [qsTr("远近光"), qsTr("近光"), qsTr("远光")]  // the index is the number on the device

    spacing: Theme.pageMargin

    ImageGroup {
        id: dayNight
        key: "dayNight"
        work: root.work
        title: qsTr("日夜转换")

        ImageChoice {
            choices: dayNight.list("allDayNightType")
            group: dayNight
            label: qsTr("模式")
            subKey: "Type"
        }
        ImageChoice {
            choices: [qsTr("低"), qsTr("中"), qsTr("高")]
            first: 1
            group: dayNight
            label: qsTr("灵敏度")
            subKey: "Sensitivity"
        }
        ImageChoice {
            choices: Array.from({length: 9}, (_, index) => qsTr("%1秒").arg(index + 2))
            first: 2
            group: dayNight
            label: qsTr("切换延时")
            subKey: "SwitchDelay"
        }
    }
    ImageGroup {
        id: light
        key: "lightControl"
        work: root.work
        title: qsTr("补光灯")

        ImageChoice {
            choices: light.list("allLightControlType")
            group: light
            label: qsTr("模式")
            subKey: "controlMode"
        }
        ImageChoice {
            choices: root.lamps
            group: light
            label: qsTr("灯光")
            subKey: "LightMode"
        }
        ImageSlider {
            group: light
            label: qsTr("近光亮度")
            subKey: "NearLight"
        }
        ImageSlider {
            group: light
            label: qsTr("远光亮度")
            subKey: "FarLight"
        }
        ImageSlider {
            group: light
            label: qsTr("灯光校正")
            subKey: "Correction"
        }
    }
    ImageGroup {
        id: mixed
        key: "lightControlEx"
        work: root.work
        title: qsTr("混合补光")

        ImageChoice {
            choices: mixed.list("allLightControlType")
            group: mixed
            label: qsTr("模式")
            subKey: "controlMode"
        }
        ImageChoice {
            choices: mixed.list("allmixLightType")
            group: mixed
            label: qsTr("补光方式")
            subKey: "mixMode"
        }
        ImageChoice {
            choices: root.lamps
            group: mixed
            label: qsTr("灯光")
            subKey: "LightMode"
        }
        ImageChoice {
            choices: [qsTr("低"), qsTr("中"), qsTr("高")]
            group: mixed
            label: qsTr("灵敏度")
            numbers: [1, 3, 5]
            subKey: "Sensitive"
        }
        ImageSlider {
            group: mixed
            label: qsTr("灯光校正")
            least: Math.max(1, mixed.least("Correction"))
            subKey: "Correction"
        }
        ImageSlider {
            group: mixed
            label: qsTr("亮度")
            least: Math.max(1, mixed.least("Brightness"))
            subKey: "Brightness"
        }
        OVFormRow {
            width: parent.width
            label: qsTr("延时(秒)")
            labelWidth: Theme.imageLabelWidth

            ImageNumber {
                accessibleName: qsTr("延时(秒)")
                group: mixed
                largest: 3600
                subKey: "Delay"
            }
        }
    }
}
