// A field for a date and time, or for a time only. An incomplete or invalid text, also an empty one, shows
// `invalidText`.
import QtQuick
import DateTimeValidator 1.0
import configtools

OVTextField {
    id: root

    property alias format: dateTime.format  // such as "yyyy-MM-dd hh:mm:ss", the default; see DateTimeValidator
    property string invalidText: qsTr("请输入正确的时间")  // error text
    readonly property bool acceptable: acceptableText  // the text is complete and valid

    errorText: acceptable ? "" : invalidText
    placeholderText: format
    textFont: Theme.figureFont
    validator: DateTimeValidator { id: dateTime }
}
