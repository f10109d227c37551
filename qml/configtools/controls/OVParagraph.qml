// Text that wraps. It is plain: device texts may hold anything.
import QtQuick
import configtools

Text {
    color: Theme.colours.ink
    font: Theme.bodyFont
    lineHeight: Math.round(font.pixelSize * Theme.lineRatio)
    lineHeightMode: Text.FixedHeight
    renderType: Theme.textRendering
    textFormat: Text.PlainText
    wrapMode: Text.Wrap

    Accessible.role: Accessible.StaticText
    Accessible.name: text
}
