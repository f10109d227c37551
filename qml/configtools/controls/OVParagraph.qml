// Wrapped plain text: markup in it is shown as text, as it may come from a device. The owner sets the width.
import QtQuick
import configtools

Text {
    color: Theme.colours.text
    font: Theme.bodyFont
    lineHeight: Math.round(font.pixelSize * Theme.lineRatio)
    lineHeightMode: Text.FixedHeight
    renderType: Theme.textRendering
    textFormat: Text.PlainText
    wrapMode: Text.Wrap

    Accessible.role: Accessible.StaticText
    Accessible.name: text
}
