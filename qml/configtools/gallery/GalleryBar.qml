// The bar of the gallery: progress or summary on the left, buttons on the right. It stops and resumes the batch of
// `gallery` itself; the other buttons emit signals.
import QtQuick
import configtools

Rectangle {
    id: root

    required property ImageGallery gallery  // the images and their devices
    required property string otherBatch  // title of another running batch, "" for none
    readonly property Batch batch: gallery.batch  // batch that fetches images; null while none is fetched
    readonly property bool paused: batch?.paused ?? false  // several passwords in a row were refused: asks to continue
    /// Whether images can be fetched now: there are devices, and no batch runs.
    readonly property bool canFetch: batch === null && otherBatch === "" && gallery.count > 0
    property string outcome  // text about the last save of images, set and removed by the owner; "" for none
    property bool outcomeIsBad: false  // the outcome is an error
    readonly property bool showsOutcome: outcome !== "" && batch === null
    readonly property bool keyGroup: true  // one stop of the Tab key, see keygroups.js
    signal againRequested  // fetch all images again
    signal saveRequested  // save all images
    signal folderRequested  // open the folder of the saved images

    implicitHeight: Theme.toolBarHeight
    color: Theme.colours.surface

    Row {
        x: Theme.pageMargin
        width: actions.x - x - Theme.pageMargin
        height: parent.height
        clip: true
        spacing: Theme.controlGap

        OVIcon {
            anchors.verticalCenter: parent.verticalCenter
            color: root.paused ? Theme.colours.warn : root.outcomeIsBad ? Theme.colours.bad : Theme.colours.ok
            name: root.paused ? "alert" : root.outcomeIsBad ? "error" : "ok"
            size: Theme.boxSize
            visible: root.paused || root.showsOutcome
        }
        OVLabel {
            width: Math.min(implicitWidth, parent.width - (link.visible ? link.width + 6 * Theme.unit : 0))
            height: parent.height
            color: root.paused ? Theme.colours.warnText : Theme.colours.text
            font: root.batch || root.showsOutcome ? Theme.bodyFont : Theme.titleFont
            objectName: "gallerySummary"
            text: root.paused ? qsTr("连续多台设备密码错误，继续可能锁定账户。是否继续？")
                : root.batch ? (root.batch.stopping ? qsTr("正在停止…")
                    : qsTr("正在获取图像 %1 / %2").arg(root.batch.done).arg(root.batch.total))
                : root.showsOutcome ? root.outcome
                : qsTr("%n 幅图像", "", root.gallery.images)
        }
        OVProgressBar {
            anchors.verticalCenter: parent.verticalCenter
            value: root.batch?.progress ?? 0
            visible: root.batch !== null && !root.paused
            width: Theme.batchBarWidth
        }
        OVLabel {
            height: parent.height
            color: Theme.colours.bad
            objectName: "galleryFailures"
            text: qsTr("%n 幅失败", "", root.gallery.failures)
            visible: root.gallery.failures > 0 && !root.paused && !root.showsOutcome
        }
        OVLabel {
            height: parent.height
            color: Theme.colours.sub
            objectName: "galleryLeftOut"
            text: qsTr("另有 %n 台设备未显示", "", root.gallery.leftOut)
            visible: root.gallery.leftOut > 0 && !root.paused && !root.showsOutcome
        }
        OVLinkButton {
            id: link
            anchors.verticalCenter: parent.verticalCenter
            objectName: root.paused ? "galleryContinue" : "galleryFolder"
            text: root.paused ? qsTr("继续") : qsTr("打开文件夹")
            visible: root.paused || (root.showsOutcome && !root.outcomeIsBad)
            onClicked: root.paused ? root.batch.resume() : root.folderRequested()
        }
    }
    OVActionRow {
        id: actions
        anchors.right: parent.right
        anchors.rightMargin: Theme.pageMargin
        anchors.verticalCenter: parent.verticalCenter

        OVButton {
            enabled: !(root.batch?.stopping ?? false)
            objectName: "galleryStopButton"
            text: qsTr("停止")
            visible: root.batch !== null
            onClicked: root.gallery.stop()
        }
        OVButton {
            enabled: root.canFetch
            objectName: "galleryAgainButton"
            text: qsTr("全部重新获取")
            toolTip: root.otherBatch !== "" && !root.batch
                ? qsTr("“%1”正在进行，请等待其完成").arg(root.otherBatch) : qsTr("重新获取所有图像（F5）")
            visible: root.batch === null
            onClicked: root.againRequested()
        }
        OVButton {
            busy: root.gallery.saving
            enabled: root.gallery.images > 0 && !root.gallery.saving && root.batch === null
            kind: OVButton.Primary
            objectName: "gallerySaveButton"
            text: qsTr("全部保存")
            toolTip: qsTr("把所有图像写入抓图文件夹（Ctrl+S）")
            onClicked: root.saveRequested()
        }
    }
    Rectangle {
        y: parent.height - height
        width: parent.width
        height: Theme.line
        color: Theme.colours.line
    }
}
