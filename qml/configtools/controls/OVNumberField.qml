// A field for a whole number from 0; a larger one than the largest becomes the largest.
import QtQuick
import configtools

OVTextField {
    id: root

    property int largest: 65535
    property string complaint: qsTr("请输入数字")
    readonly property bool acceptable: text !== ""

    errorText: acceptable ? "" : complaint
    textFont: Theme.figureFont
    unwanted: /\s/g
    validator: RegularExpressionValidator { regularExpression: /\s*\d{0,9}\s*/ }
    onTextChanged: if (Number(text) > largest) text = largest
}
