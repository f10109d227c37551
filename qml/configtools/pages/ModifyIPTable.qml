// The table of the main page. It only requests; the page acts. F2 requests the note of the current row.
import QtQuick
import configtools

OVTable {
    id: root

    required property bool ipv6  // the rows are IPv6 devices: wider addresses, no address changes
    required property var deviceFactory  // a CDeviceFactory; provides the names of results
    signal editRequested(int row)  // change the address
    signal detailRequested(int row)  // open the details
    signal webRequested(int row)  // open the web page of the device
    signal liveRequested(int row)  // open the live window
    signal noteRequested(int row)  // edit the note

    /// The user shows the column of notes; otherwise an icon at the name marks a note.
    readonly property bool noteShown: shownColumns.some(column => column.key === "note")

    arrangeable: true
    Keys.onPressed: event => {
        event.accepted = event.key === Qt.Key_F2 && currentIndex >= 0;
        if (event.accepted)
            noteRequested(currentIndex);
    }

    // By key of a row. "vision": firmware version. "res": LoginResult of address change or initialisation, -1: none.
    columns: [
        {
            key: "num", title: qsTr("No."), width: Theme.columnNumber, leastWidth: Theme.columnUpgradeNumber,
            cell: numberCell
        },
        {
            key: "state", title: qsTr("状态"), width: Math.max(Theme.columnState, sampleState.neededWidth()),
            minimumWidth: Theme.columnStateMinimum, leastWidth: Theme.columnStateMinimum, sortable: true, cell: stateCell
        },
        {key: "name", title: qsTr("名称"), width: Theme.columnName, mostWidth: Theme.columnNameMost, stretch: 2, sortable: true, cell: nameCell},
        {key: "type", title: qsTr("类型"), width: Theme.columnType, sortable: true},
        {key: "model", title: qsTr("型号"), width: Theme.columnModel, mostWidth: Theme.columnNameMost, stretch: 2, sortable: true},
        {
            key: "ipport", title: qsTr("IP:端口"), width: root.ipv6 ? Theme.columnLongAddress : Theme.columnAddress,
            leastWidth: root.ipv6 ? Theme.columnLongAddress : Theme.columnUpgradeAddress,
            sortable: true, cell: addressCell
        },
        {
            key: "mac", title: "MAC", width: root.ipv6 ? Theme.columnShortMac : Theme.columnMac,
            sortable: true, cell: quietFigureCell
        },
        {
            key: "vision", title: qsTr("版本号"), width: Theme.columnVersion, stretch: 1,
            sortable: true, cell: figureCell
        },
        {key: "group", title: qsTr("分组"), width: Theme.columnType, stretch: 1, sortable: true, hidden: true},
        {key: "note", title: qsTr("备注"), width: Theme.columnNote, stretch: 1, sortable: true, hidden: true},
        {
            key: "res", title: qsTr("修改结果"), width: Theme.columnResult, leastWidth: Theme.columnResultLeast,
            sortable: true, cell: resultCell
        },
        {
            key: "operate", title: qsTr("操作"), width: Math.max(Theme.columnActions, sampleActions.neededWidth()),
            fixed: true, cell: actionCell
        }
    ]

    // Not shown: these cells measure the texts of the language.
    DeviceStateCell {
        id: sampleState
        visible: false
    }
    ModifyIPActions {
        id: sampleActions
        visible: false
    }

    Component {
        id: numberCell
        OVTableTextCell {
            font: Theme.figureFont
            text: rowIndex + 1
        }
    }

    // qmllint disable unqualified
    Component {
        id: nameCell
        OVTableCell {
            id: name

            OVFailedSign {  // of any batch, not only address changes
                id: failedSign
                anchors.verticalCenter: parent.verticalCenter
                failure: name.row?.failure ?? ""
                onlyNotDone: name.row?.onlyNotDone ?? false
            }
            OVLabel {
                id: nameText
                readonly property int signRoom: (noteSign.visible ? noteSign.width + Theme.signGap : 0)
                    + (newTag.visible ? newTag.width + Theme.signGap : 0)
                x: failedSign.visible ? failedSign.width + Theme.signGap : 0
                width: Math.min(implicitWidth, parent.width - x - Theme.unit - signRoom)
                height: parent.height
                text: name.value ?? ""
            }
            OVTag {
                id: newTag
                anchors.left: nameText.right
                anchors.leftMargin: Theme.signGap
                anchors.verticalCenter: parent.verticalCenter
                objectName: "newTag" + name.rowIndex
                text: qsTr("新")
                visible: name.row?.presence === KnownDevices.New
            }
            OVIcon {
                id: noteSign
                anchors.left: newTag.visible ? newTag.right : nameText.right
                anchors.leftMargin: Theme.signGap
                anchors.verticalCenter: parent.verticalCenter
                color: Theme.colours.faint
                name: "note"
                objectName: "noteSign" + name.rowIndex
                size: Theme.smallIconSize
                visible: !root.noteShown && (name.row?.note ?? "") !== ""

                HoverHandler {
                    id: notePointer
                    cursorShape: Qt.PointingHandCursor
                }
                TapHandler {
                    gesturePolicy: TapHandler.ReleaseWithinBounds  // the row must not receive the click
                    onTapped: root.noteRequested(name.rowIndex)
                }
                OVToolTip {
                    shown: notePointer.hovered
                    text: name.row?.note ?? ""
                }
            }
        }
    }
    // qmllint enable unqualified

    Component {
        id: figureCell
        OVTableTextCell {
            font: Theme.figureFont
        }
    }

    Component {
        id: quietFigureCell
        OVTableTextCell {
            color: Theme.colours.sub
            font: Theme.figureFont
        }
    }

    Component {
        id: stateCell
        DeviceStateCell {}
    }

    Component {
        id: addressCell
        DeviceAddressCell {}
    }

    // qmllint disable unqualified
    Component {
        id: resultCell
        OVTableCell {
            id: result

            OVIcon {
                id: sign
                x: 2 * Theme.unit
                anchors.verticalCenter: parent.verticalCenter
                color: result.value === 0 ? Theme.colours.ok
                    : (result.value ?? -1) === -1 ? Theme.colours.faint : Theme.colours.warn
                name: result.value === 0 ? "ok" : (result.value ?? -1) === -1 ? "unknown" : "alert"
                size: Theme.boxSize

                HoverHandler {
                    id: resultPointer
                }
                OVToolTip {
                    shown: resultPointer.hovered
                    text: resultPointer.hovered ? root.deviceFactory.getErrorName(result.value ?? -1) : ""
                }
            }
        }
    }
    // qmllint enable unqualified

    // qmllint disable unqualified
    Component {
        id: actionCell
        ModifyIPActions {
            editable: !root.ipv6
            onDetailRequested: row => root.detailRequested(row)
            onEditRequested: row => root.editRequested(row)
            onLiveRequested: row => root.liveRequested(row)
            onWebRequested: row => root.webRequested(row)
        }
    }
    // qmllint enable unqualified
}
