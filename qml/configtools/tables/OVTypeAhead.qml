// Type-ahead of a list. The list passes its keys to take(); typed() asks it to select the row that starts with the
// text. After `pause` without a key, the next key starts a new text.
import QtQuick

Item {
    id: root

    property string text  // typed since the last pause
    readonly property int pause: 1000  // in ms
    signal typed(string text, bool begins)  // the whole text; `begins`: the last key started it

    /// Whether the key event is the menu key or Shift+F10, which open the menu of a row.
    function isMenuKey(event) {
        return event.key === Qt.Key_Menu || (event.key === Qt.Key_F10 && (event.modifiers & Qt.ShiftModifier));
    }

    /// Adds the character of a key event to the text and emits typed(). Returns false for a key that is not part of the
    /// text: one without a printable character or with Ctrl, Alt or Meta, and a space at the start.
    function take(event) {
        const others = Qt.ControlModifier | Qt.AltModifier | Qt.MetaModifier;
        const writes = event.text.length > 0 && event.text > (text === "" ? " " : "\u001f") && event.text !== "\u007f";
        if ((event.modifiers & others) || !writes)
            return false;
        const begins = text === "";
        text += event.text;
        ending.restart();
        typed(text, begins);
        return true;
    }

    visible: false

    Timer {
        id: ending
        interval: root.pause
        onTriggered: root.text = ""
    }
}
