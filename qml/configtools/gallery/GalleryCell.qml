// A channel of the gallery: image, title, address, and state or error. The view sets the required properties from the
// roles of ImageGallery with the same names. A click on the cell emits chosen(), then liveRequested(); a click on its
// button chosen(), then againRequested().
import QtQuick
import configtools

Item {
    id: root

    required property int index  // in the view
    required property string ipport  // "address:port" of the device
    required property string device  // its name, otherwise its model or address
    required property string name  // of the channel; "" while the device has one cell
    /// An ImageGallery.State: Waiting, Fetching, Taken, Failed, or Skipped (no request, because of the device's state).
    required property int stage
    required property string image  // URL of the file, of the older image while another one is fetched; "" for none
    required property string message  // reason of Failed or Skipped; without meaning in other states
    required property string takenAt  // local time of the image as "HH:mm:ss"; "" for none
    /// States that not all channels of the device are shown, in its last cell only; "" if all are shown.
    required property string note
    property bool current: false  // the current cell of the view
    property bool canFetch: true  // the button that fetches the image again is enabled
    readonly property bool skipped: stage === ImageGallery.Skipped
    readonly property bool failed: stage === ImageGallery.Failed
    readonly property bool busy: stage === ImageGallery.Fetching
    readonly property string title: name === "" ? device : name.startsWith(device) ? name : device + " · " + name
    signal chosen  // make this cell the current one
    signal liveRequested  // open the live view of the channel
    signal againRequested  // fetch the image again

    objectName: "galleryCell" + index

    Accessible.role: Accessible.ListItem
    Accessible.name: title + ", " + ipport + ", " + state.text
    Accessible.onPressAction: liveRequested()

    Rectangle {  // a large mark of the current cell
        anchors.fill: parent
        color: root.current ? Theme.colours.rowSelected : pointer.hovered ? Theme.colours.hover : Theme.colours.clear
        radius: Theme.paneRadius

        OVFocusRing { shown: root.current && root.GridView.view.activeFocus }
    }
    HoverHandler {
        id: pointer
    }
    MouseArea {
        anchors.fill: parent
        cursorShape: Qt.PointingHandCursor
        onClicked: {
            root.chosen();
            root.liveRequested();
        }
    }
    Rectangle {
        id: frame
        x: Theme.unit
        y: Theme.unit
        width: parent.width - 2 * x
        height: Math.round(width * 9 / 16)
        color: Theme.colours.videoGround
        clip: true
        radius: Theme.smallRadius

        // Decoded on a thread of Qt at the size shown, and freed with the cell.
        Image {
            anchors.fill: parent
            asynchronous: true
            cache: false
            fillMode: Image.PreserveAspectFit
            objectName: "galleryImage"
            opacity: root.stage === ImageGallery.Taken ? 1 : 0.3
            source: root.image
            sourceSize.width: Math.round(width * Screen.devicePixelRatio)
            visible: root.image !== ""

            Accessible.ignored: true
        }
        Column {
            anchors.centerIn: parent
            width: parent.width - 2 * Theme.unit
            spacing: Theme.unit
            visible: root.stage !== ImageGallery.Taken

            OVSpinner {
                anchors.horizontalCenter: parent.horizontalCenter
                color: Theme.colours.barSub
                running: root.busy
                visible: root.busy
            }
            OVIcon {
                anchors.horizontalCenter: parent.horizontalCenter
                color: Theme.colours.barSub
                name: root.failed || root.skipped ? "noVideo" : "video"
                visible: !root.busy
            }
            OVParagraph {
                width: parent.width
                color: Theme.colours.barSub
                elide: Text.ElideRight
                font: Theme.hintFont
                horizontalAlignment: Text.AlignHCenter
                maximumLineCount: 3
                objectName: "galleryMessage"
                text: root.busy ? qsTr("正在获取…")
                    : root.failed || root.skipped ? root.message : qsTr("等待中")
            }
        }
    }
    Rectangle {
        x: frame.x + Theme.half
        y: frame.y + Theme.half
        width: Math.min(noteLabel.implicitWidth + 2 * Theme.unit, frame.width - Theme.unit)
        height: Theme.unit * 3
        color: Theme.colours.videoVeil
        radius: Theme.smallRadius
        visible: root.note !== ""

        OVLabel {
            id: noteLabel
            x: Theme.unit
            width: parent.width - 2 * x
            height: parent.height
            color: Theme.colours.barText
            font: Theme.hintFont
            objectName: "galleryNote"
            text: root.note
        }
    }
    OVLabel {
        id: titleLabel
        x: Theme.unit
        y: frame.y + frame.height + Theme.half
        width: parent.width - x - (again.visible ? again.width + Theme.half : Theme.unit)
        height: Theme.unit * 3
        objectName: "galleryTitle"
        text: root.title
    }
    OVIconButton {
        id: again
        anchors.right: parent.right
        anchors.rightMargin: Theme.half
        y: titleLabel.y - Theme.half
        activeFocusOnTab: false
        enabled: root.canFetch
        iconName: "history"
        iconSize: Theme.smallIconSize
        objectName: "galleryAgain" + root.index
        toolTip: qsTr("重新获取（R）")
        visible: root.stage === ImageGallery.Taken || root.failed || root.skipped
        onClicked: {
            root.chosen();
            root.againRequested();
        }
    }
    OVLabel {
        x: Theme.unit
        y: titleLabel.y + titleLabel.height
        width: (sign.visible ? sign.x : state.x) - x - Theme.half
        height: Theme.unit * 2 + Theme.half
        color: Theme.colours.sub
        font: Theme.smallFigureFont
        objectName: "galleryAddress"
        text: root.ipport
    }
    OVIcon {
        id: sign
        x: state.x - width - Theme.half
        anchors.verticalCenter: state.verticalCenter
        color: root.failed ? Theme.colours.bad : root.skipped ? Theme.colours.sub : Theme.colours.ok
        name: root.failed ? "error" : root.skipped ? "mixed" : "ok"
        size: Theme.smallIconSize
        visible: root.stage === ImageGallery.Taken || root.failed || root.skipped
    }
    OVLabel {
        id: state
        anchors.right: parent.right
        anchors.rightMargin: Theme.unit
        y: titleLabel.y + titleLabel.height
        height: Theme.unit * 2 + Theme.half
        color: root.failed ? Theme.colours.bad : Theme.colours.sub
        font: Theme.hintFont
        objectName: "galleryState"
        text: root.stage === ImageGallery.Taken ? root.takenAt
            : root.failed ? qsTr("失败")
            : root.skipped ? qsTr("已跳过")
            : root.busy ? qsTr("获取中") : qsTr("等待中")
    }
}
