// Asks whether to start a batch despite warnings. accepted() means yes, rejected() no.
import QtQuick
import configtools

OVMessageBox {
    /// Opens the question. `warnings` is the number of warnings; `descriptions` is a string with a line for each.
    function ask(warnings, descriptions) {
        okText = qsTr("继续");
        show(qsTr("有 %n 个警告，仍要继续吗？", "", warnings) + "\n" + descriptions, OVMessageBox.DangerQuestion);
    }

    objectName: "warningQuestion"
    title: qsTr("警告")
}
