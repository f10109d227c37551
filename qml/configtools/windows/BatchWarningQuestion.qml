// Asks once more before a batch with warnings begins.
import QtQuick
import configtools

OVMessageBox {
    function ask(warnings) {
        okText = qsTr("继续");
        show(qsTr("有 %n 个警告，仍要继续吗？", "", warnings), OVMessageBox.DangerQuestion);
    }

    objectName: "warningQuestion"
    title: qsTr("警告")
}
