// A field for a port number. It takes up to five digits and does not set `errorText`: the owner does, by `acceptable`.
import QtQuick
import configtools

OVTextField {
    id: root

    readonly property bool acceptable: Number(text) >= 1 && Number(text) <= 65535  // not an empty text

    textFont: Theme.figureFont
    removedCharacters: /\s/g
    validator: RegularExpressionValidator { regularExpression: /\s*[0-9]{0,5}\s*/ }
}
