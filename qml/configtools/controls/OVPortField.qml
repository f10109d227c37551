// A field for a port number.
import QtQuick
import configtools

OVTextField {
    id: root

    readonly property bool acceptable: Number(text) >= 1 && Number(text) <= 65535

    textFont: Theme.figureFont
    removedCharacters: /\s/g
    validator: RegularExpressionValidator { regularExpression: /\s*[0-9]{0,5}\s*/ }
}
