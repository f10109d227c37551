// The colours of a theme, by meaning. The defaults are the light theme.
import QtQuick

QtObject {
    // Title bar.
    property color bar: "#172130"
    property color barHover: "#26364b"
    property color barPressed: "#31445d"
    property color barLine: "#33445a"
    property color barText: "#ffffff"
    property color barSub: "#b9c6d6"
    property color barClose: "#c8322b"
    property color barClosePressed: "#92201a"
    property color logoTop: "#4f8ff7"
    property color logoBottom: "#1769e0"

    // Backgrounds.
    property color surface: "#ffffff"
    property color background: "#f4f6f8"
    property color head: "#edf1f6"
    property color foot: "#f7f9fb"
    property color hover: "#f0f4f9"
    property color pressed: "#e3eaf2"
    property color line: "#d9dfe6"
    property color lineStrong: "#b9c3cf"
    property color scrim: "#73101822"
    property color shadow: "#03000000"
    property color clear: "#00ffffff"

    // Text.
    property color text: "#1b2430"
    property color sub: "#5d6b7c"
    property color faint: "#8a97a6"
    property color disabledText: "#a3adb9"
    property color disabledFill: "#eef1f4"

    // Actions and selection.
    property color accent: "#1769e0"
    property color accentHover: "#1259c4"
    property color accentPressed: "#0e4ba8"
    property color accentSoft: "#e3eefc"
    property color accentSofter: "#f2f7fe"
    property color accentDisabled: "#a9c5ee"
    property color focusRing: "#b3d1f9"
    property color accentText: "#ffffff"

    // States.
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
    property color passwordUnlit: "#cdcdcd"

    // Rows of device tables.
    property color row: "#ffffff"
    property color rowAlternate: "#E5E5E5"
    property color rowConflict: "#FCE7E7"
    property color rowSelected: "#cfe4fb"
    property color rowHoverVeil: "#0f1769e0"

    // Live view and images.
    property color videoGround: "#0d141d"
    property color videoLine: "#1f2b3b"
    property color videoVeil: "#a60d141d"

    // Tool tips.
    property color bubble: "#263242"
    property color bubbleText: "#ffffff"
}
