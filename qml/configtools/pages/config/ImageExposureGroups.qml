// The image settings of the second subject of ImagePanel: exposure, backlight, white balance. Each change is written to
// the device immediately.
import QtQuick
import configtools

Column {
    id: root

    required property ImageWork work  // reads and writes the settings

    spacing: Theme.pageMargin

    ImageGroup {
        id: exposure
        key: "exposure"
        work: root.work
        title: qsTr("曝光")

        ImageChoice {
            choices: exposure.list("allAntiFlickerType")
            group: exposure
            label: qsTr("防闪烁")
            subKey: "antiFlicker"
        }
        ImageChoice {
            choices: exposure.list("allExposureType")
            group: exposure
            label: qsTr("曝光模式")
            subKey: "value"
        }
        ImageShutter {
            form: root.work.form
            group: exposure
        }
        OVFormRow {
            width: parent.width
            label: qsTr("增益")
            labelWidth: Theme.imageLabelWidth
            visible: exposure.supports("gain")

            ImageNumber {
                accessibleName: qsTr("增益")
                group: exposure
                largest: exposure.most("GainValue")
                least: exposure.least("GainValue")
                subKey: "GainValue"
            }
        }
        OVFormRow {
            width: parent.width
            label: qsTr("增益范围")
            labelWidth: Theme.imageLabelWidth
            visible: exposure.supports("gain")

            Row {
                spacing: Theme.unit

                ImageNumber {
                    accessibleName: qsTr("最小增益")
                    group: exposure
                    largest: exposure.most("GainMin")
                    least: exposure.least("GainMin")
                    subKey: "GainMin"
                }
                OVLabel {
                    height: Theme.controlHeight
                    color: Theme.colours.sub
                    text: "–"
                }
                ImageNumber {
                    accessibleName: qsTr("最大增益")
                    group: exposure
                    largest: exposure.most("GainMax")
                    least: exposure.least("GainMax")
                    subKey: "GainMax"
                }
            }
        }
        ImageSlider {
            group: exposure
            label: qsTr("曝光补偿")
            subKey: "Compensation"
        }
        ImageSwitch {
            group: exposure
            label: qsTr("自动光圈")
            subKey: "irisAuto"
        }
        ImageSwitch {
            asNumber: true
            group: exposure
            label: qsTr("3D降噪")
            subKey: "3DType"
            visible: exposure.values.noiseReductionSupport !== false
        }
        ImageSlider {
            group: exposure
            label: qsTr("降噪等级")
            most: Math.min(4, exposure.most("3D"))
            subKey: "3D"
            visible: exposure.values.noiseReductionSupport !== false
        }
    }
    ImageGroup {
        id: backMode
        key: "backMode"
        work: root.work
        title: qsTr("背光")

        ImageChoice {
            choices: backMode.list("allBackModeType")
            group: backMode
            label: qsTr("背光模式")
            subKey: "backmode"
        }
        ImageChoice {
            choices: [qsTr("整个画面"), qsTr("自定义区域")]
            group: backMode
            label: qsTr("补偿区域")
            subKey: "backlightmode"
        }
        ImageRegion {
            group: backMode
            visible: backMode.supports("backlightmode") && backMode.number("backlightmode") === 1
        }
        ImageSlider {
            group: backMode
            label: qsTr("宽动态")
            subKey: "WideDynamic"
        }
        ImageSlider {
            group: backMode
            label: qsTr("强光抑制")
            subKey: "GlareInhibition"
        }
    }
    ImageGroup {
        id: whiteBalance
        key: "whiteBalance"
        work: root.work
        title: qsTr("白平衡")

        ImageChoice {
            choices: whiteBalance.list("allType")
            group: whiteBalance
            label: qsTr("白平衡模式")
            subKey: "whiteBalanceType"
        }
        ImageSlider {
            group: whiteBalance
            label: qsTr("蓝增益")
            subKey: "GainBlue"
        }
        ImageSlider {
            group: whiteBalance
            label: qsTr("红增益")
            subKey: "GainRed"
        }
    }
}
