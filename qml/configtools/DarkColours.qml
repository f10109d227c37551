// The dark theme. A colour that is not set here is as in the light theme (ThemeColours).
// Text has a contrast of at least 4.5:1 on every background that it is used on, except disabled text.

ThemeColours {
    // Title bar.
    bar: "#0b1017"
    barHover: "#1f2a38"
    barPressed: "#2c3a4c"
    barLine: "#2c3847"

    // Backgrounds.
    surface: "#1a212b"
    background: "#12171f"
    head: "#222b37"
    foot: "#171d26"
    hover: "#232d3a"
    pressed: "#2c3847"
    line: "#313c4b"
    lineStrong: "#55647a"
    scrim: "#99000000"
    shadow: "#09000000"
    clear: "#001a212b"

    // Text.
    text: "#e6ebf2"
    sub: "#b0bccb"
    faint: "#9aa8b9"
    disabledText: "#6a7787"
    disabledFill: "#202834"

    // Actions and selection. Text on the accent is dark, as the accent is light.
    accent: "#72aaf8"
    accentHover: "#86b7fa"
    accentPressed: "#a0c7fb"
    accentSoft: "#1c3456"
    accentSofter: "#1a2738"
    accentDisabled: "#2f4a6e"
    focusRing: "#2b5288"
    accentText: "#0a1420"

    // States.
    ok: "#4cc38a"
    warn: "#f0a94a"
    warnText: "#f3bb6b"
    warnSoft: "#33270f"
    warnLine: "#5c4518"
    bad: "#f58d86"
    badHover: "#f7a29c"
    badPressed: "#f9b6b2"
    badSoft: "#3c1f20"
    badLine: "#7a3d3b"
    badDisabled: "#5e3835"

    passwordUnlit: "#55647a"

    // Rows of device tables.
    row: "#1a212b"
    rowAlternate: "#232c38"
    rowConflict: "#452529"
    rowSelected: "#1a3860"
    rowHoverVeil: "#1f72aaf8"

    // Tool tips.
    bubble: "#35424f"
}
