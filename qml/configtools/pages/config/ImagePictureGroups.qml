// The image settings of the first subject of ImagePanel: colours, sharpness, mirroring, rotation, stabilisation,
// defog. Each change is written to the device immediately, that of a slider on release.
import QtQuick
import configtools

Column {
    id: root

    required property ImageWork work  // reads and writes the settings

    spacing: Theme.pageMargin

    ImageGroup {
        id: picture
        key: "picture"
        work: root.work
        title: qsTr("图像")

        ImageChoice {
            choices: [qsTr("柔和"), qsTr("标准"), qsTr("艳丽")]
            first: 1
            group: picture
            label: qsTr("风格")
            subKey: "colorStyle"
        }
        ImageSlider {
            group: picture
            label: qsTr("亮度")
            subKey: "brightnessSlider"
        }
        ImageSlider {
            group: picture
            label: qsTr("对比度")
            subKey: "contrastSlider"
        }
        ImageSlider {
            group: picture
            label: qsTr("饱和度")
            subKey: "saturationSlider"
        }
        ImageSlider {
            group: picture
            label: qsTr("色调")
            subKey: "hue"
        }
        ImageSlider {
            group: picture
            label: qsTr("伽马")
            subKey: "gamma"
        }
    }
    ImageGroup {
        id: sharpness
        key: "sharpness"
        work: root.work
        title: qsTr("锐度")

        ImageSlider {
            group: sharpness
            label: qsTr("强度")
            subKey: "value"
        }
    }
    ImageGroup {
        id: mirror
        key: "mirror"
        work: root.work
        title: qsTr("镜像与旋转")

        ImageSwitch {
            group: mirror
            label: qsTr("镜像")
            subKey: "value"
        }
        ImageChoice {
            choices: [qsTr("正常视角"), qsTr("走廊模式1"), qsTr("走廊模式2"), qsTr("倒影")]
            group: mirror
            label: qsTr("旋转")
            subKey: "Rotate"
            visible: mirror.values.rotateSupport !== false
        }
    }
    ImageGroup {
        id: stable
        key: "stable"
        work: root.work
        title: qsTr("防抖")

        ImageSwitch {
            group: stable
            label: qsTr("电子防抖")
            subKey: "value"
        }
    }
    ImageGroup {
        id: defog
        key: "inDefog"
        work: root.work
        title: qsTr("透雾")

        ImageChoice {
            choices: defog.list("allInDefogType")
            group: defog
            label: qsTr("模式")
            subKey: "DefogMode"
        }
        ImageSlider {
            group: defog
            label: qsTr("强度")
            subKey: "Intensity"
        }
    }
}
