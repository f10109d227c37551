// Confirms a batch with warnings.
import QtQuick
import configtools

OVMessageBox {
    /// `words` describe the warnings.
    function ask(warnings, words) {
        okText = qsTr("继续");
        show(qsTr("有 %n 个警告，仍要继续吗？", "", warnings) + "\n" + words, OVMessageBox.DangerQuestion);
    }

    objectName: "warningQuestion"
    title: qsTr("警告")
}
