// A field for an IPv4 address or a subnet mask. It takes only digits and dots, up to 15. It does not set `errorText`:
// the owner does, by `acceptable` or `wrong`. Both check the text as an address; the owner checks a mask itself.
import QtQuick
import configtools

OVTextField {
    id: root

    readonly property bool acceptable: AddressTools.isLegalAddress(text)  // a complete address; not an empty text
    readonly property bool wrong: !AddressTools.mayBecomeAddress(text)  // cannot become an address by further input

    removedCharacters: /\s/g
    textFont: Theme.figureFont
    validator: RegularExpressionValidator { regularExpression: /\s*[0-9.]{0,15}\s*/ }
}
