// A text field of one line with an error or warning below it, which makes it higher. The owner sets both texts; they
// are hidden while the field is disabled.
import QtQuick
import QtQuick.Templates as T
import configtools

FocusScope {
    id: root

    property alias text: field.text
    property alias placeholderText: field.placeholderText
    property alias validator: field.validator  // input that is invalid for it cannot be typed
    property alias maximumLength: field.maximumLength
    property alias readOnly: field.readOnly
    property alias textFont: field.font
    readonly property alias acceptableText: field.acceptableInput  // by the validator
    property string errorText  // "" for none; also makes the border red
    property string warningText  // shown without an error only; the text is accepted nevertheless
    property string accessibleName  // for screen readers; "": the placeholder
    property string iconName  // on the left, see OVIcon; "" for none
    property bool clearable: false  // Escape and a button remove the text
    property bool secret: false  // shows dots; a button reveals the text until the field is hidden
    /// Regular expression (global) of characters that are removed from the text, also a pasted or assigned one: line
    /// breaks would be invisible in a single line.
    property var removedCharacters: /[\r\n\t]/g
    /// function(event) that receives each key before the field and accepts those that it handles
    property var keyFilter: null
    signal edited  // by the user, also by removing the text; not when `text` is assigned
    signal accepted  // by Return or Enter, if the validator accepts the text
    signal tabPressed(var event)  // Tab or Shift+Tab; the receiver accepts the event to override Qt's order

    function selectAll() {
        field.selectAll();
    }

    implicitWidth: 180
    implicitHeight: Theme.controlHeight + (error.visible ? error.height : 0)

    onVisibleChanged: eye.checked = false  // a revealed password is hidden again

    T.TextField {
        id: field

        readonly property bool wrong: root.errorText !== "" && enabled

        width: root.width
        height: Theme.controlHeight
        color: enabled ? Theme.colours.text : Theme.colours.disabledText
        echoMode: root.secret && !eye.checked ? TextInput.Password : TextInput.Normal
        focus: true
        font: Theme.bodyFont
        hoverEnabled: true
        leftPadding: root.iconName !== "" ? 34 : 11
        rightPadding: clear.visible || eye.visible ? 34 : 11
        renderType: Theme.textRendering
        selectByMouse: true
        selectedTextColor: Theme.colours.text
        selectionColor: Theme.colours.rowSelected
        topPadding: Math.round(height / 2 + font.pixelSize * Theme.baselineShift - metrics.ascent)
        verticalAlignment: TextInput.AlignTop

        Accessible.name: root.accessibleName !== "" ? root.accessibleName : placeholderText
        Accessible.description: error.text

        onAccepted: root.accepted()
        onTextEdited: {
            clean();
            root.edited();
        }
        onTextChanged: clean()

        function clean() {
            if (text.search(root.removedCharacters) >= 0)
                text = text.replace(root.removedCharacters, "");
        }

        Keys.priority: Keys.BeforeItem
        Keys.onPressed: event => {
            event.accepted = false;
            if (root.keyFilter)
                root.keyFilter(event);
        }
        Keys.onTabPressed: event => {
            event.accepted = false;
            root.tabPressed(event);
        }
        Keys.onBacktabPressed: event => {
            event.accepted = false;
            root.tabPressed(event);
        }
        // Escape clears the text before it stops the work of the window.
        Keys.onShortcutOverride: event => {
            event.accepted = event.key === Qt.Key_Escape && root.clearable && text !== "";
        }
        Keys.onEscapePressed: event => {
            event.accepted = root.clearable && text !== "";
            if (event.accepted)
                root.wipe();
        }

        // Top-aligned text has its baseline at the ascent of the font for every script.
        FontMetrics {
            id: metrics
            font: field.font
        }

        background: Rectangle {
            border.color: field.wrong ? Theme.colours.bad
                : field.activeFocus ? Theme.colours.accent
                : field.hovered && field.enabled ? Theme.colours.lineStrong : Theme.colours.line
            border.width: Theme.line
            color: field.enabled ? Theme.colours.surface : Theme.colours.disabledFill
            radius: Theme.controlRadius

            OVFocusRing {
                border.color: field.wrong ? Theme.colours.badLine : Theme.colours.focusRing
                shown: field.activeFocus
            }
        }

        OVLabel {
            x: field.leftPadding
            width: field.width - field.leftPadding - field.rightPadding
            height: field.height
            color: Theme.colours.faint
            showsFullTextOnHover: false
            text: field.placeholderText
            visible: field.length === 0 && field.preeditText === ""

            Accessible.ignored: true
        }

        OVIcon {
            x: 10
            anchors.verticalCenter: parent.verticalCenter
            color: field.activeFocus ? Theme.colours.accent : Theme.colours.faint
            name: root.iconName
            size: Theme.boxSize
            visible: root.iconName !== ""
        }

        OVIconButton {
            id: clear
            anchors.right: parent.right
            anchors.rightMargin: Theme.half
            anchors.verticalCenter: parent.verticalCenter
            implicitWidth: Theme.unit * 3
            implicitHeight: Theme.unit * 3
            focusPolicy: Qt.NoFocus
            iconName: "clear"
            iconSize: Theme.smallIconSize
            toolTip: qsTr("清除")
            visible: root.clearable && field.length > 0 && field.enabled
            onClicked: root.wipe()
        }

        OVIconButton {
            id: eye
            anchors.right: parent.right
            anchors.rightMargin: Theme.half
            anchors.verticalCenter: parent.verticalCenter
            implicitWidth: Theme.unit * 3
            implicitHeight: Theme.unit * 3
            checkable: true
            focusPolicy: Qt.NoFocus  // Tab moves between fields
            iconName: checked ? "hide" : "show"
            iconSize: Theme.boxSize
            toolTip: checked ? qsTr("隐藏密码") : qsTr("显示密码")
            visible: root.secret
        }
    }

    /// Removes the text for the user: takes the keyboard focus and emits edited().
    function wipe() {
        field.clear();
        field.forceActiveFocus();
        root.edited();
    }

    OVParagraph {
        id: error
        y: Theme.controlHeight + Theme.half
        width: root.width
        color: field.wrong ? Theme.colours.bad : Theme.colours.warnText
        font: Theme.hintFont
        objectName: "fieldMessage"
        text: root.errorText !== "" ? root.errorText : root.warningText
        visible: text !== "" && field.enabled
    }
}
