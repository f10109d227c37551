// Type-ahead of a list: typed characters select the row that starts with them. After a pause, the next key starts a new
// text.
import QtQuick

Item {
    id: root

    property string text
    readonly property int pause: 1000  // in ms
    signal typed(string text, bool begins)  // `begins`: the last key started the text

    /// Whether the key opens the menu of a row.
    function isMenuKey(event) {
        return event.key === Qt.Key_Menu || (event.key === Qt.Key_F10 && (event.modifiers & Qt.ShiftModifier));
    }

    /// Returns whether the key is part of the text. A space is, except at the start.
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
