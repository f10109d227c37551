// Copies text to the clipboard. QML reaches the clipboard only through a text item.
import QtQuick

Item {
    /// Replaces the content of the clipboard by this plain text.
    function copy(text) {
        buffer.text = text;
        buffer.selectAll();
        buffer.copy();
        buffer.clear();
    }

    visible: false

    TextEdit {
        id: buffer

        textFormat: TextEdit.PlainText

        Accessible.ignored: true
    }
}
