// A field for an IPv4 address. What is to be said when its text is none depends on the place.
import QtQuick
import configtools

OVTextField {
    id: root

    readonly property bool acceptable: AddressTools.isLegalAddress(text)
    readonly property bool wrong: !AddressTools.mayBecomeAddress(text)  // and not merely unfinished

    unwanted: /\s/g
    textFont: Theme.figureFont
    validator: RegularExpressionValidator { regularExpression: /\s*[0-9.]{0,15}\s*/ }
}
