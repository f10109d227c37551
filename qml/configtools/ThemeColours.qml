// The colours of a theme, by meaning. The defaults are the light theme. In a value of eight digits the first two are
// the opacity.
import QtQuick

QtObject {
    // Title bars of all windows, and the tool bar of the live window.
    property color bar: "#172130"
    property color barHover: "#26364b"
    property color barPressed: "#31445d"
    property color barLine: "#33445a"  // separators, disabled icons, border of the window
    property color barText: "#ffffff"
    property color barSub: "#b9c6d6"  // secondary text, also on videos
    property color barClose: "#c8322b"  // the close button under the pointer
    property color barClosePressed: "#92201a"
    property color logoTop: "#4f8ff7"  // the logo is filled with a gradient
    property color logoBottom: "#1769e0"

    // Backgrounds.
    property color surface: "#ffffff"  // dialogs, tables, fields
    property color background: "#f4f6f8"  // the window behind them
    property color head: "#edf1f6"  // table heads
    property color foot: "#f7f9fb"  // feet of dialogs
    property color hover: "#f0f4f9"
    property color pressed: "#e3eaf2"
    property color line: "#d9dfe6"  // borders and separators
    property color lineStrong: "#b9c3cf"  // borders under the pointer, and of check boxes
    property color scrim: "#73101822"  // over the window behind a modal dialog
    property color shadow: "#03000000"  // one layer of OVShadow
    property color clear: "#00ffffff"  // transparent; with the hue of `surface`, for fading

    // Text.
    property color text: "#1b2430"
    property color sub: "#5d6b7c"  // secondary text
    property color faint: "#8a97a6"  // placeholders and details
    property color disabledText: "#a3adb9"
    property color disabledFill: "#eef1f4"  // background of disabled fields and boxes

    // Actions and selection.
    property color accent: "#1769e0"
    property color accentHover: "#1259c4"
    property color accentPressed: "#0e4ba8"
    property color accentSoft: "#e3eefc"  // backgrounds; the softer one is paler
    property color accentSofter: "#f2f7fe"
    property color accentDisabled: "#a9c5ee"
    property color focusRing: "#b3d1f9"
    property color accentText: "#ffffff"

    // States. Soft: background of a notice; Line: its border.
    property color ok: "#1a8f4c"
    property color warn: "#c77700"
    property color warnText: "#8a5200"
    property color warnSoft: "#fdf3e1"
    property color warnLine: "#f1d9ab"
    property color bad: "#c8322b"
    property color badHover: "#ad2821"
    property color badPressed: "#92201a"
    property color badSoft: "#fdeceb"
    property color badLine: "#ebc3c0"
    property color badDisabled: "#e5b8b5"

    // Password strength. These colours are not warnings.
    property color passwordWeak: "#1a8f4c"
    property color passwordMedium: "#f2b600"
    property color passwordStrong: "#c8322b"
    property color passwordUnlit: "#cdcdcd"  // a step that is not lit

    // Rows of device tables.
    property color row: "#ffffff"
    property color rowAlternate: "#E5E5E5"  // every second row
    property color rowConflict: "#FCE7E7"  // another device has the same address
    property color rowSelected: "#cfe4fb"  // the current row, also selected text
    property color rowHoverVeil: "#0f1769e0"  // drawn over the row under the pointer

    // Live view and images.
    property color videoGround: "#0d141d"  // behind videos and images
    property color videoLine: "#1f2b3b"  // border of a live view
    property color videoVeil: "#a60d141d"  // behind text on a video or image

    // Tool tips.
    property color bubble: "#263242"
    property color bubbleText: "#ffffff"
}
