// A field for a date and time, or a time, with an error text for invalid input.
import QtQuick
import DateTimeValidator 1.0
import configtools

OVTextField {
    id: root

    property alias format: dateTime.format
    property string invalidText: qsTr("请输入正确的时间")
    readonly property bool acceptable: acceptableText

    errorText: acceptable ? "" : invalidText
    placeholderText: format
    textFont: Theme.figureFont
    validator: DateTimeValidator { id: dateTime }
}
