// A field for a CGI command. After each typed change, and on the Down key, it suggests recent and favourite commands
// that contain its text. The star adds the command to the stored favourite commands or removes it.
import QtQuick
import configtools

FocusScope {
    id: root

    required property CgiCommands commands  // recent and favourite commands
    property alias text: field.text
    property alias errorText: field.errorText
    readonly property bool starred: commands.isFavourite(field.text.trim())  // the command is a favourite
    property var suggestions: []  // texts of the commands that were suggested last
    property int marked: -1  // index of the selected suggestion, -1 for none
    property real topInWindow: 0  // y of the top edge in the window, in pixels, when suggestions were last shown
    signal edited  // the text was changed by typing or by a suggestion
    signal accepted  // Enter was pressed without a selected suggestion

    /// Shows the suggestions for the text. Closes the list if there are none or the field has no keyboard focus.
    function suggest() {
        suggestions = field.activeFocus ? commands.matching(field.text) : [];
        marked = -1;
        topInWindow = root.mapToItem(null, 0, 0).y;
        if (suggestions.length > 0)
            list.instance().open();
        else
            close();
    }

    /// Closes the list of suggestions.
    function close() {
        list.item?.close();
    }

    /// Replaces the text by a suggestion, closes the list and emits edited().
    function take(command) {
        close();
        field.text = command;
        edited();
    }

    /// Handles a key before the field does: while suggestions are shown, the arrow keys select one, Enter takes it and
    /// Escape closes the list. Otherwise the Down key opens the list.
    function filterKey(event) {
        const step = event.key === Qt.Key_Down ? 1 : event.key === Qt.Key_Up ? -1 : 0;
        const isEnter = event.key === Qt.Key_Return || event.key === Qt.Key_Enter;
        if (!list.suggesting) {
            if (step === 1) {
                event.accepted = true;
                suggest();
            }
            return;
        }
        if (step !== 0)
            marked = Math.max(-1, Math.min(suggestions.length - 1, marked + step));
        else if (event.key === Qt.Key_Escape)
            close();
        else if (isEnter && marked >= 0)
            take(suggestions[marked]);
        else
            return;
        event.accepted = true;
    }

    implicitWidth: 240
    implicitHeight: field.implicitHeight

    OVTextField {
        id: field
        width: parent.width - star.width
        accessibleName: qsTr("CGI命令")
        focus: true
        keyFilter: event => root.filterKey(event)
        objectName: "cgiCommandText"
        placeholderText: "/cgi-bin/"
        textFont: Theme.figureFont
        onAccepted: {
            root.close();
            root.accepted();
        }
        onActiveFocusChanged: if (!activeFocus) root.close()
        onEdited: {
            root.edited();
            root.suggest();
        }
    }
    OVIconButton {
        id: star
        x: parent.width - width
        enabled: root.commands.canBeKept(field.text.trim()) || root.starred
        focusPolicy: Qt.NoFocus
        iconName: "star"
        iconSize: Theme.boxSize
        iconColor: root.starred ? Theme.colours.warn : Theme.colours.faint
        objectName: "cgiStarButton"
        toolTip: root.starred ? qsTr("从常用命令中移除") : qsTr("保存为常用命令")
        onClicked: root.commands.setFavourite(field.text.trim(), !root.starred)
    }

    // Created on demand: each row of a table may have a field.
    OVOnDemand {
        id: list
        readonly property bool suggesting: (item as CgiSuggestions)?.visible ?? false
        visible: false
        // qmllint disable unqualified
        sourceComponent: CgiSuggestions {
            // Above the field if there is no room below.
            y: root.topInWindow + Theme.controlHeight + implicitHeight + 2 * Theme.half > root.Window.height
                ? -implicitHeight - Theme.half : Theme.controlHeight + Theme.half
            width: root.width
            commands: root.commands
            marked: root.marked
            suggestions: root.suggestions
            parent: root
            onTaken: command => root.take(command)
        }
        // qmllint enable unqualified
    }
}
