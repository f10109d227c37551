// A tab bar. A click, Left and Right only request a tab by activated(): the owner sets `currentIndex`. The bar is one
// stop of the Tab key.
import QtQuick
import configtools

Rectangle {
    id: root

    required property var tabs  // array of titles
    required property int currentIndex  // from 0
    property string namePrefix: "tab"  // prefix of the object names of the tabs
    /// Distance from the left edge of the bar to the right edge of the last tab.
    readonly property real tabsWidth: row.x + row.width
    signal activated(int index)  // also for the current tab

    implicitHeight: Theme.tabBarHeight
    color: Theme.colours.surface

    Accessible.role: Accessible.PageTabList

    Rectangle {
        anchors.bottom: parent.bottom
        width: parent.width
        height: Theme.line
        color: Theme.colours.line
    }

    Row {
        id: row
        x: Theme.pageMargin
        height: parent.height

        /// Horizontal padding of a tab, the sum of both sides; less if there is little room.
        readonly property real padding: {
            let room = root.width - 2 * x;
            for (let i = 0; i < repeater.count; ++i)
                room -= repeater.itemAt(i)?.contentItem.implicitWidth ?? 0;
            return Math.max(12, Math.min(28, Math.floor(room / Math.max(1, repeater.count))));
        }

        // qmllint disable unqualified
        Repeater {
            id: repeater
            model: root.tabs

            OVAbstractButton {
                id: tab

                required property int index
                required property string modelData
                readonly property bool current: index === root.currentIndex

                implicitWidth: label.implicitWidth + row.padding
                implicitHeight: Theme.tabBarHeight
                // The arrow keys switch tabs. A tab remains a stop of the Tab key while it has the focus.
                focusPolicy: current || activeFocus ? Qt.StrongFocus : Qt.ClickFocus
                objectName: root.namePrefix + index
                ownArrows: true
                text: modelData

                Accessible.role: Accessible.PageTab
                Accessible.selected: current

                onClicked: root.activated(index)
                Keys.onLeftPressed: root.step(-1)
                Keys.onRightPressed: root.step(1)

                contentItem: OVLabel {
                    id: label
                    color: tab.current ? Theme.colours.accent : tab.hovered ? Theme.colours.text
                                                                            : Theme.colours.sub
                    font: Theme.buttonFont
                    horizontalAlignment: Text.AlignHCenter
                    text: tab.text
                }

                background: Item {
                    Rectangle {
                        anchors.bottom: parent.bottom
                        x: 10
                        width: parent.width - 20
                        height: 2
                        color: tab.current ? Theme.colours.accent : Theme.colours.lineStrong
                        radius: 1
                        visible: tab.current || tab.hovered
                    }
                    OVFocusRing {
                        anchors.margins: Theme.half
                        shown: tab.visualFocus
                    }
                }
            }
        }
        // qmllint enable unqualified
    }

    /// Requests the next tab (1) or the previous one (-1), cyclically, and gives it the keyboard focus.
    function step(by) {
        const next = (currentIndex + by + tabs.length) % tabs.length;
        activated(next);
        repeater.itemAt(next)?.forceActiveFocus(Qt.TabFocusReason);
    }
}
