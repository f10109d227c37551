// A field for a date and time, or for a time alone, which says when its text is none.
import QtQuick
import DateTimeValidator 1.0
import configtools

OVTextField {
    id: root

    property alias format: dateTime.format
    property string complaint: qsTr("请输入正确的时间")
    readonly property bool acceptable: acceptableText

    errorText: acceptable ? "" : complaint
    placeholderText: format
    textFont: Theme.figureFont
    validator: DateTimeValidator { id: dateTime }
}
