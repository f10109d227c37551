// All known values of a device, in groups, with search, copy and export. Values that need a login are read only when
// the user asks: a login takes time, and a wrong password counts towards the lock of the account. The owner copies and
// exports.
import QtQuick
import QtQuick.Templates as T
import configtools

OVDialog {
    id: root

    required property var deviceFactory  // a CDeviceFactory: access to the device list and the devices
    property string ipport  // "address:port"
    property string mac  // "" if unknown
    property bool isLent: false  // the last ask() has written its account to the row for the login
    readonly property alias asking: work.running  // the login or reading runs
    property string loginError  // error of the last login, "" for none
    signal copyRequested(string text)
    signal exportRequested(string fileName)  // fileName: suggested name without folder

    /// Shows known values of a device and clears the search text. `detail`: map of the values of its row ("ipport",
    /// "mac" and others), and optionally further ones. Cancels running work. The caller opens the dialog.
    function load(detail) {
        cancel();
        loginError = "";
        ipport = detail.ipport ?? "";
        mac = detail.mac ?? "";
        searchField.text = "";
        lines.load(detail);
    }

    /// Writes all values to a text file at the local `path`, replacing an existing one. Returns false on failure.
    function write(path) {
        return lines.write(path);
    }

    /// Logs in with the account of LoginMemory.accountFor() and reads further values. If that is an account for all
    /// following devices, the row has it for this login, and keeps it if the device accepts it. A failure or a
    /// cancellation removes it.
    function ask() {
        loginError = "";
        notice = "";
        const known = LoginMemory.accountFor(ipport, deviceFactory);
        isLent = known.isForAll;
        if (isLent)
            setAccount(known.user, known.password);
        work.readDetail(ipport);
    }

    /// Cancels running work.
    function cancel() {
        if (asking && isLent)
            setAccount("", "");
        work.cancel();
    }

    /// Sets the account of the row; two empty texts remove it.
    function setAccount(account, password) {
        deviceFactory.updataDeviceInfo("dh", "username", account, mac, ipport);
        deviceFactory.updataDeviceInfo("dh", "password", password, mac, ipport);
    }

    /// Takes the result of ask(): adds the values, or shows the error and asks for another account if that may help.
    function add(detail) {
        const result = detail.loginResult ?? -1;
        const account = LoginMemory.accountFor(ipport, deviceFactory).user;
        LoginMemory.note(ipport, result);
        if (result === 0) {
            lines.add(detail);
            return;
        }
        if (isLent)
            setAccount("", "");
        loginError = qsTr("登录失败：%1").arg(deviceFactory.getErrorName(result));
        // Another account or password may help.
        if (result === 1 || result === LoginMemory.wrongPassword || result === 4)
            relogin.instance().ask(mac, ipport, account, result);
    }

    wantedWidth: Theme.detailWidth
    objectName: "detailDialog"
    okText: qsTr("复制全部")
    cancelText: qsTr("关闭")
    title: qsTr("设备详情")
    onAccepted: copyRequested(lines.text)
    onAboutToHide: {
        cancel();
        relogin.item?.close();
    }
    onOpened: list.forceActiveFocus()

    footContent: Row {
        anchors.verticalCenter: parent.verticalCenter
        spacing: Theme.unit

        OVButton {
            busy: root.asking
            enabled: !root.asking
            objectName: "detailLoginButton"
            text: qsTr("登录读取更多")
            toolTip: qsTr("登录设备，读取端口、通道和硬盘等信息")
            onClicked: root.ask()
        }
        OVButton {
            objectName: "detailExportButton"
            text: qsTr("导出")
            toolTip: qsTr("保存为文本文件")
            onClicked: root.exportRequested(lines.fileName)
        }
    }

    DeviceDetailModel {
        id: lines
        searchText: searchField.text
    }
    DeviceWork {
        id: work
        deviceFactory: root.deviceFactory
        onEnded: detail => root.add(detail)
    }

    Column {
        width: parent.width
        spacing: Theme.controlGap

        OVTextField {
            id: searchField
            width: parent.width
            accessibleName: placeholderText
            clearable: true
            iconName: "search"
            objectName: "detailSearchField"
            placeholderText: qsTr("搜索名称或内容")
            Keys.onDownPressed: list.forceActiveFocus()
            Keys.onEnterPressed: list.forceActiveFocus()
            Keys.onReturnPressed: list.forceActiveFocus()
        }
        OVNotice {
            width: parent.width
            iconColor: Theme.colours.bad
            iconName: "error"
            objectName: "detailLoginError"
            text: root.loginError
            visible: root.loginError !== ""
        }
        Item {
            width: parent.width
            height: Math.min(Theme.detailHeight, root.contentRoom - searchField.height - Theme.controlGap)
                - (root.loginError !== "" ? Theme.controlHeight + Theme.controlGap : 0)

            ListView {
                id: list
                anchors.fill: parent
                activeFocusOnTab: true
                boundsBehavior: Flickable.StopAtBounds
                cacheBuffer: 0  // lines created ahead would be read after a change
                clip: true
                keyNavigationEnabled: true
                model: lines
                objectName: "detailList"
                section.property: "group"

                Accessible.role: Accessible.List
                Accessible.name: root.title

                T.ScrollBar.vertical: OVScrollBar {}

                onCountChanged: currentIndex = Math.min(0, count - 1)

                Keys.onPressed: event => {
                    const copies = event.key === Qt.Key_C && event.modifiers & Qt.ControlModifier;
                    event.accepted = true;
                    if (copies && currentIndex >= 0)
                        root.copyRequested(lines.lineText(currentIndex));
                    else if (event.key === Qt.Key_Home)
                        currentIndex = 0;
                    else if (event.key === Qt.Key_End)
                        currentIndex = count - 1;
                    else
                        event.accepted = false;
                }

                section.delegate: Item {
                    required property string section

                    width: ListView.view.width
                    height: Theme.tableHeadHeight

                    OVLabel {
                        anchors.bottom: parent.bottom
                        width: parent.width
                        height: Theme.unit * 3
                        color: Theme.colours.sub
                        font: Theme.headFont
                        text: parent.section
                    }
                    Rectangle {
                        anchors.bottom: parent.bottom
                        width: parent.width
                        height: Theme.line
                        color: Theme.colours.line
                    }
                }

                // qmllint disable unqualified
                delegate: DeviceDetailLine {
                    width: ListView.view.width
                    current: index === list.currentIndex && list.activeFocus
                    onCopyRequested: root.copyRequested(lines.lineText(index))
                }
                // qmllint enable unqualified
            }
            OVParagraph {
                anchors.centerIn: parent
                width: parent.width
                color: Theme.colours.sub
                horizontalAlignment: Text.AlignHCenter
                objectName: "detailNothing"
                text: qsTr("没有包含这些文字的信息")
                visible: lines.count === 0
            }
        }
    }

    // qmllint disable unqualified
    OVOnDemand {
        id: relogin
        visible: false
        sourceComponent: ReloginDialog {
            deviceFactory: root.deviceFactory
            onResponded: (account, password) => {
                if (account === "" && password === "")
                    return;
                // ReloginDialog has set the password of the row.
                root.deviceFactory.updataDeviceInfo("dh", "username", account, mac, ipport);
                root.ask();
            }
        }
    }
    // qmllint enable unqualified
}
