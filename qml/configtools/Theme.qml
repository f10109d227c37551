// All colours by meaning, measures (in pixels), fonts, durations (in milliseconds) and icons of the window.
pragma Singleton
import QtQuick
import configtools

QtObject {
    id: theme

    /// Whether `colours` is the dark theme. WindowChoices sets it from ColourScheme, which has the choice of the user.
    property bool dark: false
    readonly property ThemeColours colours: dark ? darkColours : lightColours
    readonly property ThemeColours lightColours: ThemeColours {}
    readonly property ThemeColours darkColours: DarkColours {}

    // Path of the folder of the favourites (saved devices), with a trailing "/".
    readonly property string favPath: ProgramFolders.favourites

    // Measures in pixels, mostly on a grid of 8. Those that end in "Share" are fractions.
    readonly property int unit: 8
    readonly property int half: 4
    readonly property int pageMargin: 16  // around the content of a page, dialog or bar
    readonly property int controlGap: 12  // between the controls of a row
    readonly property int signGap: 6  // between an icon and its text; also the height of a strength step
    readonly property int controlHeight: 32
    readonly property int rowHeight: 34
    readonly property int tableHeadHeight: 36
    readonly property int titleBarHeight: 48
    readonly property int tabBarHeight: 40
    readonly property int toolBarHeight: 56
    readonly property int footHeight: 40
    readonly property int dialogHeadHeight: 44
    readonly property int dialogFootHeight: 56
    readonly property int denseHeadHeight: 40  // of a small dialog, see OVDialog.dense
    readonly property int denseFootHeight: 48
    readonly property int boxSize: 16  // check boxes, and icons in buttons and rows
    readonly property int iconSize: 18
    readonly property int smallIconSize: 14
    readonly property int line: 1  // width of borders and separators
    readonly property int focusRing: 3  // width of its line
    readonly property int resizeEdge: 10  // width of the edges that resize a window
    readonly property int paneRadius: 8
    readonly property int controlRadius: 6
    readonly property int smallRadius: 4
    readonly property int logoSize: 24
    readonly property int largeLogoSize: 40
    readonly property int formLabelWidth: 120
    readonly property int searchFieldWidth: 240
    readonly property int searchFieldMinimum: 104  // width if room is short
    readonly property int windowWidth: 1280  // minimum width of the main window; windowHeight: minimum height
    readonly property int windowHeight: 720
    readonly property int dialogWidth: 460
    readonly property int messageWidth: 400  // of OVMessageBox
    readonly property int restartWidth: 480
    readonly property int restartHeight: 200
    readonly property int modifyIpWidth: 415
    readonly property int modifyIpHeight: 250
    readonly property int reportWidth: 720
    readonly property int batchPreviewWidth: 1080
    readonly property int batchPreviewHeight: 240
    readonly property int initialiseWidth: 904
    readonly property int initialiseListHeight: 300
    readonly property int firstPasswordWidth: 440  // minimum; more in languages with longer texts
    readonly property int firstPasswordHeight: 400
    readonly property int detailWidth: 600
    readonly property int detailHeight: 420
    readonly property int addDeviceWidth: 400
    readonly property int addDeviceHeight: 250
    readonly property int portFieldWidth: 112
    readonly property int favouritesWidth: 1080
    readonly property int favouritesHeight: 560
    readonly property int batchPanelWidth: 1216
    readonly property int batchPanelHeight: 600
    readonly property int batchListWidth: 408
    readonly property real batchListShare: 0.3  // maximum of batchListWidth, of the width of the panel
    readonly property int batchBarWidth: 120  // of the progress bar of a batch
    readonly property int strengthWidth: 160
    readonly property int toastWidth: 380  // of the default area of toasts
    readonly property int toastMost: 640  // maximum width of a toast
    readonly property int toastLeast: 240  // a toast may always be this wide, also in a narrower area
    readonly property int toolTipWidth: 360  // maximum, unless the tip sets another one
    // Distance from a button of a tool bar to its tool tip below the head of the table under the bar, see OVToolTip.
    readonly property int toolTipDrop: (toolBarHeight - controlHeight) / 2 + tableHeadHeight
    readonly property int responseWindowWidth: 760
    readonly property int responseTipWidth: 560  // for a device's response, which has longer lines

    // Pages with a device tree on the left and panels on the right.
    readonly property int treePaneWidth: 344
    readonly property real treePaneShare: 0.3  // maximum of treePaneWidth, of the width of the page
    readonly property int treeIndent: 22
    readonly property int panelWidth: 640
    readonly property int clockListHeight: 210  // maximum
    readonly property int panelLabelWidth: 144
    readonly property int wideLabelWidth: 192  // of labels with longer terms
    readonly property int choiceWidth: 200
    readonly property int operationWidth: 152
    readonly property int shortChoiceWidth: 120
    readonly property int momentFieldWidth: 200  // for a date with its time
    readonly property int passwordFieldWidth: 260
    readonly property int hourFieldWidth: 84
    readonly property int shownChoices: 8  // rows of an open combo box; more rows scroll

    // Forms for one device.
    readonly property int sliderGroove: 4
    readonly property int sliderHandle: 16
    readonly property int sliderNumberWidth: 36
    readonly property int switchWidth: 36
    readonly property int switchHeight: 20
    readonly property int changeMark: 6  // size of the mark of a value that is not saved
    readonly property int encodeLabelWidth: 136
    readonly property int imageLabelWidth: 156
    readonly property int imageWidth: 640  // maximum width of the image settings
    readonly property int encodeWidth: 900
    readonly property int encodeColumnWidth: 292  // minimum width of a stream next to the other one
    readonly property int imageSideWidth: 272
    readonly property real imageSideShare: 0.4  // maximum of imageSideWidth, of the width of the panel
    readonly property int sideLabelWidth: 88
    readonly property int rangeFieldWidth: 76
    readonly property int sliderRest: 400  // ms without a change after which a value is committed

    // The live window.
    readonly property int liveWidth: 1180
    readonly property int liveHeight: 700
    readonly property int liveMinimumWidth: 720
    readonly property int liveMinimumHeight: 480
    readonly property int liveListWidth: 220
    readonly property int liveToolBarWidth: 680  // minimum for all of its texts
    readonly property int snapshotWidth: 216  // of one snapshot in the dialog
    readonly property int snapshotsHeight: 400  // maximum of all snapshots in the dialog; more scroll
    readonly property int galleryCellWidth: 230  // minimum
    readonly property int galleryTextHeight: 64  // below and around the image of a cell

    // Widths of table columns, by content. "Least": the "leastWidth" of an OVTable column.
    readonly property int columnNumber: 56
    readonly property int columnState: 114  // minimum; more in languages with longer texts
    readonly property int columnStateMinimum: 32  // only the dot of the state
    readonly property int columnName: 136
    readonly property int columnNameField: 160  // minimum of a column with fields for names
    readonly property int columnType: 68
    readonly property int columnModel: 130
    readonly property int columnAddress: 172
    readonly property int columnLongAddress: 242
    readonly property int columnMac: 146
    readonly property int columnShortMac: 76
    readonly property int columnVersion: 114
    readonly property int columnConnection: 128
    readonly property int columnResult: 92
    readonly property int columnResultLeast: 60  // only its icons
    readonly property int columnActions: 168  // minimum; more in languages with longer texts
    readonly property int columnPlanAddress: 128
    readonly property int columnPlanAction: 184
    readonly property int columnPlanMark: 256
    readonly property int columnPlanNoteLeast: 200
    readonly property int columnShortActions: 72
    readonly property int columnPort: 72
    readonly property int columnBytes: 84
    readonly property int columnAccount: 96
    readonly property int columnTime: 76
    readonly property int columnOutcome: 236
    readonly property int columnResponse: 240
    readonly property int columnCommand: 320
    readonly property int columnFile: 132
    readonly property int columnProgress: 180
    readonly property int columnProgressLeast: 160
    readonly property int columnUpgradeActions: 148  // minimum; more in languages with longer texts
    readonly property int columnUpgradeNumber: 44
    readonly property int columnUpgradeName: 128
    readonly property int columnUpgradeModel: 100
    readonly property int columnUpgradeAddress: 160
    readonly property int columnUpgradeAddressLeast: 148
    readonly property int columnUpgradeVersion: 96
    readonly property int columnUpgradeVersionLeast: 84
    readonly property int columnUpgradeResult: 224
    readonly property int columnUpgradeResultLeast: 220
    readonly property int columnNote: 128
    readonly property int columnLeast: 88  // of a column with "stretch" but without "leastWidth"
    readonly property int columnNameMost: 400  // maximum of names and models that spare room enlarges
    readonly property int columnMost: 480  // maximum when fitted to its content
    readonly property int progressWidth: 76  // of a progress bar in a row
    readonly property int noteWidth: 480  // of the note dialog

    // Font sizes in pixels, and fonts.
    readonly property int hintSize: 12
    readonly property int headSize: 12
    readonly property int bodySize: 13
    readonly property int titleSize: 14
    readonly property int leadSize: 16
    readonly property int counterSize: 20
    readonly property int clockSize: 26
    readonly property font hintFont: Qt.font({family: Typefaces.text, pixelSize: hintSize})
    readonly property font headFont: Qt.font({family: Typefaces.text, pixelSize: headSize, weight: Font.DemiBold})
    readonly property font bodyFont: Qt.font({family: Typefaces.text, pixelSize: bodySize})
    readonly property font buttonFont: Qt.font({family: Typefaces.text, pixelSize: bodySize, weight: Font.Medium})
    readonly property font titleFont: Qt.font({family: Typefaces.text, pixelSize: titleSize, weight: Font.DemiBold})
    readonly property font leadFont: Qt.font({family: Typefaces.text, pixelSize: leadSize, weight: Font.DemiBold})
    readonly property font figureFont: Qt.font({family: Typefaces.figures, pixelSize: bodySize})
    readonly property font smallFigureFont: Qt.font({family: Typefaces.figures, pixelSize: hintSize})
    readonly property font clockFont:
        Qt.font({family: Typefaces.figures, pixelSize: clockSize, weight: Font.DemiBold})
    readonly property font counterFont:
        Qt.font({family: Typefaces.figures, pixelSize: counterSize, weight: Font.DemiBold})
    /// Measures texts in the body font, for widths that depend on the language.
    readonly property FontMetrics bodyMetrics: FontMetrics {
        font: theme.bodyFont
    }
    readonly property string iconFamily: Typefaces.icons
    // Distance of the baseline below the middle of a line, as a fraction of the font size. It centres Latin capitals
    // and Chinese characters alike; the metrics of the fonts differ by a pixel.
    readonly property real baselineShift: 0.37
    readonly property real lineRatio: 1.5
    readonly property real absentOpacity: 0.6  // of rows with nothing to do
    /// The renderType of texts. MainWindow sets it: native rendering only at an integer scale of the screen. Native
    /// rendering aligns glyphs to whole pixels of the window, which are not whole pixels of the screen at a scale such
    /// as 1.5: distances and weights would differ.
    property int textRendering: Text.NativeRendering

    // Durations in milliseconds.
    readonly property int quick: 120  // fading of colours and popups
    readonly property int queueDrains: 100  // time to discard queued input
    readonly property int turn: 1000  // one rotation of a spinner
    readonly property int toolTipDelay: 500  // from the entry of the pointer to the tip
    readonly property int toolTipTime: 8000  // after which a tip closes
    readonly property int toastDuration: 4000  // minimum of information and success
    readonly property int errorToastDuration: 9000  // minimum of errors and refusals
    readonly property int longestToastDuration: 20000  // of a long text
    readonly property int toastNoticed: 1500  // until the user starts to read
    readonly property int letterReading: 60  // of one letter
    readonly property int ideographReading: 170  // of one Chinese or Japanese character

    // Code points of the icon font by the name of the icon (OVIcon.name), see fonts/make-fonts.py.
    readonly property var icons: ({
        "about": "\ue0f9",
        "accounts": "\ue1a4",
        "alert": "\ue193",
        "cgi": "\ue181",
        "check": "\ue06c",
        "clear": "\ue1b2",
        "close": "\ue1b2",
        "config": "\ue29a",
        "copy": "\ue09e",
        "down": "\ue06d",
        "error": "\ue084",
        "favourite": "\ue176",
        "figures": "\ue038",
        "filtered": "\ue3b5",
        "fourViews": "\ue4ff",
        "fullScreen": "\ue21a",
        "help": "\ue05f",
        "hide": "\ue0bb",
        "history": "\ue1f5",
        "language": "\ue0fe",
        "leaveFullScreen": "\ue220",
        "left": "\ue06e",
        "maximise": "\ue167",
        "menu": "\ue115",
        "minimise": "\ue11c",
        "mixed": "\ue11c",
        "mute": "\ue1ac",
        "nineViews": "\ue0e9",
        "noVideo": "\ue1a6",
        "note": "\ue1f9",
        "nothing": "\ue4ad",
        "ok": "\ue226",
        "oneView": "\ue167",
        "questions": "\ue568",
        "restore": "\ue09e",
        "right": "\ue06f",
        "search": "\ue151",
        "settings": "\ue29a",
        "show": "\ue0ba",
        "snapshot": "\ue064",
        "snapshots": "\ue5c4",
        "sortDown": "\ue042",
        "sortUp": "\ue04a",
        "sound": "\ue1ab",
        "spinner": "\ue10a",
        "star": "\ue176",
        "stretch": "\ue27c",
        "unknown": "\ue07e",
        "unplugged": "\ue45d",
        "upgrade": "\ue07b",
        "video": "\ue1a5"
    })
}
