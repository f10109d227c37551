// A field for an integer from 0 to `largest`: a larger number is replaced by `largest` while it is typed. An empty
// field shows `invalidText`.
import QtQuick
import configtools

OVTextField {
    id: root

    property int largest: 65535  // at most 999999999
    property string invalidText: qsTr("请输入数字")  // error text of an empty field
    readonly property bool acceptable: text !== ""  // the field is not empty

    errorText: acceptable ? "" : invalidText
    textFont: Theme.figureFont
    removedCharacters: /\s/g
    validator: RegularExpressionValidator { regularExpression: /\s*\d{0,9}\s*/ }
    onTextChanged: if (Number(text) > largest) text = largest
}
