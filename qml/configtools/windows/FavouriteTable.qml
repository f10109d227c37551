// The table of favourites (saved devices): columns and cells. Its model is a FavouriteListModel. It only requests; the
// window acts.
import QtQuick
import configtools

OVTable {
    id: root

    property bool editable: true  // notes can be edited and favourites deleted
    signal noteEdited(int row, string note)  // store the changed note
    signal deletionRequested(int row)  // ask, then delete the favourite

    columns: [
        {key: "num", title: qsTr("No."), width: Theme.columnNumber, cell: figureCell},
        {key: "type", title: qsTr("类型"), width: Theme.columnType},
        {key: "ip", title: qsTr("IP / P2P ID"), width: Theme.columnAddress, stretch: 1, cell: figureCell},
        {key: "port", title: qsTr("端口"), width: Theme.columnPort, cell: figureCell},
        {key: "username", title: qsTr("用户名"), width: Theme.columnAccount, stretch: 1},
        {key: "note", title: qsTr("备注"), width: Theme.columnModel, stretch: 2, cell: noteCell},
        {key: "progress", title: qsTr("添加结果"), width: Theme.columnOutcome, cell: resultCell},
        {key: "operate", title: qsTr("操作"), width: Theme.columnShortActions, cell: actionCell}
    ]

    Component {
        id: figureCell
        OVTableTextCell {
            font: Theme.figureFont
        }
    }

    Component {
        id: resultCell
        FavouriteResultCell {}
    }

    // qmllint disable unqualified
    Component {
        id: noteCell
        FavouriteNoteCell {
            editable: root.editable
            fullNote: root.model.device(row?.fileName ?? "").note ?? ""
            onEdited: note => root.noteEdited(rowIndex, note)
        }
    }

    Component {
        id: actionCell
        OVTableCell {
            id: actions

            OVLinkButton {
                anchors.verticalCenter: parent.verticalCenter
                enabled: root.editable
                focusPolicy: actions.current || activeFocus ? Qt.StrongFocus : Qt.NoFocus
                textColor: Theme.colours.bad
                objectName: "deleteFavourite" + actions.rowIndex
                text: qsTr("删除")
                toolTip: qsTr("从收藏夹中删除")
                onClicked: root.deletionRequested(actions.rowIndex)
            }
        }
    }
    // qmllint enable unqualified
}
