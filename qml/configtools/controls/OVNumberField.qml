// A field for an integer from 0. Larger numbers are replaced by `largest`.
import QtQuick
import configtools

OVTextField {
    id: root

    property int largest: 65535
    property string invalidText: qsTr("请输入数字")
    readonly property bool acceptable: text !== ""

    errorText: acceptable ? "" : invalidText
    textFont: Theme.figureFont
    removedCharacters: /\s/g
    validator: RegularExpressionValidator { regularExpression: /\s*\d{0,9}\s*/ }
    onTextChanged: if (Number(text) > largest) text = largest
}
