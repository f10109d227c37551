// A field for an IPv4 address, which says at once when its text is none.
import QtQuick
import configtools

OVTextField {
    id: root

    property string wrongText: qsTr("请输入正确的IP地址")
    readonly property bool acceptable: AddressTools.isLegalAddress(text)

    errorText: acceptable ? "" : wrongText
    maximumLength: 15
    textFont: Theme.figureFont
    validator: RegularExpressionValidator { regularExpression: /[0-9.]*/ }
}
