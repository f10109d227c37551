// A field for an IPv4 address. The caller sets the error text.
import QtQuick
import configtools

OVTextField {
    id: root

    readonly property bool acceptable: AddressTools.isLegalAddress(text)
    readonly property bool wrong: !AddressTools.mayBecomeAddress(text)  // and not only incomplete

    removedCharacters: /\s/g
    textFont: Theme.figureFont
    validator: RegularExpressionValidator { regularExpression: /\s*[0-9.]{0,15}\s*/ }
}
