// The title bar of the main window: logo, name, device counter and buttons. It moves the window when dragged; the
// buttons and a double click only emit signals.
import QtQuick
import configtools

Rectangle {
    id: root

    required property string title
    required property string version  // name and version of the application, for the tool tip of the name
    required property bool maximised
    required property var cursor  // a CLocalConfig; its cursorPos() returns the pointer's screen position
    property int count: 0  // number of devices found by the search, shown left of the buttons
    property bool searching: false  // the icon of the search turns
    property string remark  // text next to the name, "" for none
    property string remarkTip  // tool tip of the remark
    readonly property bool keyGroup: true  // one stop of the Tab key, see keygroups.js
    readonly property alias menuButton: menuButton  // the menu opens below it
    signal searchRequested  // start a search
    signal settingsRequested
    signal menuRequested
    signal minimiseRequested
    signal maximiseRequested  // or restore, if `maximised`
    signal closeRequested

    component BarButton: OVIconButton {
        fillHover: Theme.colours.barHover
        fillPressed: Theme.colours.barPressed
        iconColor: Theme.colours.barText
        iconHoverColor: Theme.colours.barText
    }

    implicitHeight: Theme.titleBarHeight
    color: Theme.colours.bar

    Accessible.role: Accessible.TitleBar
    Accessible.name: title

    OVTitleDragArea {
        anchors.fill: parent
        cursor: root.cursor
        onMaximiseRequested: root.maximiseRequested()
    }

    Item {
        x: Theme.pageMargin
        width: name.x + name.width
        height: parent.height

        OVLogo {
            id: logo
            anchors.verticalCenter: parent.verticalCenter
            name: root.title
        }
        OVLabel {
            id: name
            x: logo.width + Theme.controlGap
            height: parent.height
            color: Theme.colours.barText
            font: Theme.titleFont
            objectName: "titleText"
            text: root.title
        }
        HoverHandler {
            id: namePointer
        }
        OVToolTip {
            shown: namePointer.hovered
            text: root.version
        }
    }

    OVLabel {
        id: remark
        x: Theme.pageMargin + name.x + name.width + Theme.pageMargin
        width: Math.max(0, Math.min(implicitWidth, controls.x - x - Theme.pageMargin))
        height: parent.height
        color: Theme.colours.barSub
        font: Theme.hintFont
        objectName: "titleRemark"
        showsFullTextOnHover: false
        text: root.remark

        HoverHandler {
            id: remarkPointer
        }
        OVToolTip {
            shown: remarkPointer.hovered && root.remark !== ""
            text: root.remarkTip
        }
    }

    Row {
        id: controls
        anchors.right: parent.right
        anchors.rightMargin: Theme.unit
        y: (parent.height - Theme.controlHeight) / 2
        spacing: Theme.controlGap

        Row {
            spacing: Theme.signGap

            OVLabel {
                height: Theme.controlHeight
                color: Theme.colours.barText
                font: Theme.counterFont
                objectName: "counterNumber"
                text: root.count
            }
            OVLabel {
                height: Theme.controlHeight + 3  // aligns with the baseline of the number
                color: Theme.colours.barSub
                objectName: "counterText"
                //: Follows a number in the title bar, as in "24 devices found".
                text: qsTr("台设备被搜索到", "", root.count)
            }
        }
        BarButton {
            fill: Theme.colours.barHover
            fillHover: Theme.colours.barPressed
            iconName: root.searching ? "spinner" : "search"
            objectName: "searchButton"
            toolTip: qsTr("搜索设备")
            turning: root.searching
            onClicked: root.searchRequested()
        }
        BarButton {
            iconName: "settings"
            objectName: "searchSettingsButton"
            toolTip: qsTr("搜索设置")
            onClicked: root.settingsRequested()
        }
        BarButton {
            id: menuButton
            iconName: "menu"
            objectName: "menuButton"
            toolTip: qsTr("关于")
            onClicked: root.menuRequested()
        }
        Rectangle {
            y: (Theme.controlHeight - height) / 2
            width: Theme.line
            height: 20
            color: Theme.colours.barLine
        }
        BarButton {
            iconName: "minimise"
            iconSize: Theme.boxSize
            objectName: "minimiseButton"
            toolTip: qsTr("最小化")
            onClicked: root.minimiseRequested()
        }
        BarButton {
            iconName: root.maximised ? "restore" : "maximise"
            iconSize: Theme.smallIconSize
            objectName: "maximiseButton"
            toolTip: root.maximised ? qsTr("向下还原") : qsTr("最大化")
            onClicked: root.maximiseRequested()
        }
        BarButton {
            fillHover: Theme.colours.barClose
            fillPressed: Theme.colours.barClosePressed
            iconName: "close"
            iconSize: Theme.boxSize
            objectName: "closeButton"
            toolTip: qsTr("关闭")
            onClicked: root.closeRequested()
        }
    }
}
