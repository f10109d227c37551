// Confirms a batch with warnings.
import QtQuick
import configtools

OVMessageBox {
    /// `descriptions` describe the warnings.
    function ask(warnings, descriptions) {
        okText = qsTr("继续");
        show(qsTr("有 %n 个警告，仍要继续吗？", "", warnings) + "\n" + descriptions, OVMessageBox.DangerQuestion);
    }

    objectName: "warningQuestion"
    title: qsTr("警告")
}
