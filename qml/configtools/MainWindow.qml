// The main window: title bar, tabs and their pages, and the search that fills the list. It starts a search when it is
// created. The objects that C++ publishes are its first properties.
import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import configtools

T.ApplicationWindow {
    id: window

    // qmllint disable unqualified
    readonly property var deviceFactory: CDeviceFactoryApi  // access to the device list and the devices
    readonly property var localConfig: LocalConfigApi  // a CLocalConfig: settings, documents, restart
    readonly property BusyState busyState: BusyStateApi  // the running work, and which actions must wait for it
    readonly property Batches batches: BatchesApi  // starts work on several devices; one batch runs at a time
    readonly property SearchReports searchReports: SearchReportsApi  // why the last search found few devices
    readonly property CertificateList certificates: CertificatesApi  // refused certificates of devices
    readonly property var webPages: WebPagesApi  // a WebPages, which opens web pages of devices in the browser
    readonly property SiteReport siteReport: SiteReportApi  // collects and writes a site report
    readonly property var colourScheme: ColourSchemeApi  // a ColourScheme, which stores the choice of colours
    readonly property DeviceNotes notes: DeviceNotesApi  // notes of the user about devices
    readonly property KnownDevices knownDevices: KnownDevicesApi  // devices of earlier searches
    readonly property var memory: ViewMemoryApi  // a ViewMemory: named texts in the settings, such as "tab"
    readonly property var crashReports: CrashReportsApi  // a CrashReports
    readonly property var cgiManager: CGIConfigManageApi  // a CGIConfigManage
    readonly property var fileDialogs: FileDialogsApi  // a FileDialogs
    readonly property bool libraryInstalled: deviceLibraryInstalled  // false: no device responds
    readonly property var accounts: AccountsApi  // an AccountList: the stored accounts, for LoginMemory
    readonly property bool simulated: demoSite  // the devices are those of the demo site
    readonly property string demoAccount: demoSiteAccount  // "user / password" of most demo devices; "" for none
    // qmllint enable unqualified

    readonly property alias count: search.count  // IPv4 devices found by the running or last search
    readonly property alias deviceSearch: search
    readonly property alias searching: search.running
    property int currentTab: 0  // index from 0; set by showTab() only
    property string chosenLanguage: localConfig.getLanguage()  // such as "en_US"; used after a restart
    /// Area of toasts, in window coordinates: next to the tabs, between the buttons of the title bar and those of the
    /// tool bars.
    readonly property rect toastArea: {
        const left = tabBar.tabsWidth + Theme.pageMargin;
        const top = (Theme.titleBarHeight + Theme.controlHeight) / 2 + 2;
        const bottom = titleBar.height + tabBar.height + (Theme.toolBarHeight - Theme.controlHeight) / 2 - 2;
        return Qt.rect(left, top, width - left - Theme.pageMargin, bottom - top);
    }
    /// Whether the window fills the screen, also in full screen.
    readonly property bool maximised: visibility === Window.Maximized || visibility === Window.FullScreen

    /// Starts a search requested by the user, in place of a running one. A search removes all rows without a failed
    /// mark (see OVFailedFilter): while work needs the rows, a message box shows the refusal of BusyState instead.
    function requestSearch() {
        const refusal = busyState.refusal(BusyState.Search);
        if (refusal !== "")
            popups.showMessage(refusal);
        else
            search.start(searchSettings.read());
    }

    /// Stores the language and offers a restart. If it cannot be stored, a toast reports that and nothing changes.
    function chooseLanguage(code) {
        localConfig.setLanguage(code);
        if (localConfig.getLanguage() !== code) {
            popups.notify(qsTr("设置无法保存，请检查程序所在文件夹的写入权限"), OVToast.Error);
            return;
        }
        chosenLanguage = code;
        popups.openRestartPrompt();
    }

    /// Applies a choice ("desktop", "light" or "dark") and stores it. A toast reports a failure to store it; the
    /// colours then apply until the application ends.
    function chooseColours(choice) {
        if (!colourScheme.choose(choice))
            popups.notify(qsTr("设置无法保存，请检查程序所在文件夹的写入权限"), OVToast.Error);
    }

    /// Shows a tab and removes all toasts. Asks about unsaved settings first: the tab is then shown after the user's
    /// consent. Ignores the current tab and an invalid index.
    function showTab(index) {
        if (index === currentTab || index < 0 || index >= tabBar.tabs.length)
            return;
        const go = () => {
            pages.disablePasswordEditor();
            currentTab = index;
            popups.clearNotices();
        };
        leavePage(go);
    }

    /// As showTab(); also gives the page the keyboard focus, except after a question about unsaved settings.
    function turnTo(index) {
        showTab(index);
        if (currentTab !== index)
            return;
        pages.takeFocus(index);
    }

    /// Without unsaved settings, runs `action` and returns false. Otherwise asks about them and returns true: `action`
    /// runs later, unless the user cancels.
    function leavePage(action) {
        return pages.leave(action);
    }

    /// Writes the current tab and the geometry of the window to the settings. Called before the application exits.
    function rememberView() {
        memory.keep("tab", String(currentTab));
        memory.keep("window", savedGeometry.text());
        memory.write();
    }

    /// Shows the stored tab, the first one if there is none, and gives its page the keyboard focus.
    function restoreTab() {
        const tab = Number(memory.text("tab"));
        if (Number.isInteger(tab) && tab > 0 && tab < tabBar.tabs.length)
            turnTo(tab);
        else
            pages.focusTable();
    }

    width: minimumWidth
    height: minimumHeight
    minimumWidth: Math.min(Theme.windowWidth, Screen.desktopAvailableWidth)
    minimumHeight: Math.min(Theme.windowHeight, Screen.desktopAvailableHeight)
    color: Theme.colours.background
    flags: Qt.Window | Qt.FramelessWindowHint | Qt.WindowSystemMenuHint | Qt.WindowMinimizeButtonHint
           | Qt.WindowMaximizeButtonHint
    title: localConfig.getLogoSoftwareName()

    Component.onCompleted: {
        LoginMemory.accounts = accounts;
        search.start(searchSettings.read());
        restoreTab();
        languageList.remove(localConfig.getRemoveLanguageList());
        if (notes.problem !== "")
            popups.notify(notes.problem, OVToast.Error);
        if (knownDevices.problem !== "")
            popups.notify(knownDevices.problem, OVToast.Error);
    }

    // Qt loses the maximised state of a window when it is minimised: the window restores it.
    property int lastVisibility: Window.Windowed
    property bool maximisedBefore: false
    onVisibilityChanged: {
        const now = window.visibility;
        if (now === Window.Minimized)
            maximisedBefore = lastVisibility === Window.Maximized;
        else if (now === Window.Windowed && lastVisibility === Window.Minimized && maximisedBefore)
            showMaximized();
        lastVisibility = now;
    }

    onClosing: close => {
        console.log("Window is closing...");
        close.accepted = applicationExit.requestEnd();
    }

    Binding {
        property: "dark"
        target: Theme
        value: window.colourScheme.dark
    }
    Binding {
        property: "textRendering"
        target: Theme
        value: Number.isInteger(window.Screen.devicePixelRatio) ? Text.NativeRendering : Text.QtRendering
    }
    WindowGeometry {
        id: savedGeometry
        stored: window.memory.text("window")
        window: window
    }
    Connections {
        target: window.localConfig

        // The system does not report whether it can show the document.
        function onDocumentRequested(path, isHandedOver) {
            popups.notify(isHandedOver ? qsTr("正在用系统的PDF程序打开 %1").arg(path) : qsTr("无法打开 %1").arg(path),
                       isHandedOver ? OVToast.Information : OVToast.Error);
        }
    }
    Connections {
        target: window.memory

        function onFailed() {
            popups.notify(qsTr("设置无法保存，请检查程序所在文件夹的写入权限"), OVToast.Error);
        }
    }
    ApplicationExit {
        id: applicationExit
        batches: window.batches
        busyState: window.busyState
        deviceFactory: window.deviceFactory
        host: window
        localConfig: window.localConfig
        popups: popups
        onLeaving: window.rememberView()
    }
    SearchSettings {
        id: searchSettings
        localConfig: window.localConfig
    }
    DeviceSearch {
        id: search
        busyState: window.busyState
        deviceFactory: window.deviceFactory
        knownDevices: window.knownDevices
        searchReports: window.searchReports
        onLimited: (rows, leftOut) => popups.showMessage(
            qsTr("搜索到的设备超过 %1 台，其余 %2 个应答未列入列表。请缩小搜索范围。").arg(rows).arg(leftOut))
    }
    LanguageList {
        id: languageList
    }
    Shortcut {
        enabled: window.batches.running || search.running
        sequence: "Escape"
        onActivated: {
            if (window.batches.running)
                window.batches.current.stop();
            else
                search.stop();
        }
    }
    WindowShortcuts {
        currentTab: window.currentTab
        tabCount: tabBar.tabs.length
        onFindRequested: pages.focusSearch()
        onGalleryRequested: if (window.currentTab === 0) pages.openGallery()
        onHelpRequested: window.localConfig.OpenHelpFile()
        onSearchRequested: if (!window.searching) window.requestSearch()
        onSettingsRequested: popups.openSearchSettings(searchSettings.read())
        onSiteReportRequested: popups.openSiteReport(pages.tickedDevices())
        onTabRequested: index => window.turnTo(index)
    }

    ColumnLayout {
        anchors.fill: parent
        spacing: 0

        OVTitleBar {
            id: titleBar
            Layout.fillWidth: true
            count: window.count
            cursor: window.localConfig
            //: In the title bar. %1 is a user name and a password.
            remark: !window.simulated ? "" : window.demoAccount === "" ? qsTr("演示站点")
                : qsTr("演示站点：%1").arg(window.demoAccount)
            remarkTip: qsTr("模拟设备，不连接网络。账号为登录设备的用户名和密码；新设备须先初始化。")
            maximised: window.maximised
            searching: window.searching
            title: window.title
            version: popups.softwareName + " " + popups.version
            onCloseRequested: applicationExit.requestEnd()
            onMaximiseRequested: window.maximised ? window.showNormal() : window.showMaximized()
            onMenuRequested: popups.openMenu(titleBar.menuButton)
            onMinimiseRequested: window.showMinimized()
            onSearchRequested: if (!window.searching) window.requestSearch()
            onSettingsRequested: popups.openSearchSettings(searchSettings.read())
        }
        OVTabBar {
            id: tabBar
            Layout.fillWidth: true
            currentIndex: window.currentTab
            tabs: [qsTr("修改IP"), qsTr("设备升级"), qsTr("设备配置"), qsTr("系统配置"), qsTr("CGI协议")]
            onActivated: index => window.showTab(index)
        }
        OVBanner {
            Layout.fillWidth: true
            linkText: qsTr("打开演示站点")
            text: qsTr("未安装设备库，无法与设备通信")
            visible: !window.libraryInstalled
            onLinkActivated: applicationExit.requestDemo()
        }
        CrashReportNotice {
            Layout.fillWidth: true
            cgiManager: window.cgiManager
            fileDialogs: window.fileDialogs
            reports: window.crashReports
        }
        WindowPages {
            id: pages
            Layout.fillHeight: true
            Layout.fillWidth: true
            batches: window.batches
            busyState: window.busyState
            currentIndex: window.currentTab
            knownDevices: window.knownDevices
            libraryInstalled: window.libraryInstalled
            memory: window.memory
            notes: window.notes
            popups: popups
            search: window.deviceSearch
            searchReports: window.searchReports
            simulated: window.simulated
            onDemoRequested: applicationExit.requestDemo()
            onSearchRequested: window.requestSearch()
            onSettingsRequested: popups.openSearchSettings(searchSettings.read())
        }
    }

    FileDrop {
        anchors.fill: parent
        leavePage: action => window.leavePage(action)
        onListDropped: path => {
            window.showTab(0);
            pages.importList(path);
        }
        onNotify: (message, severity) => popups.notify(message, severity)
        onSiteDropped: path => popups.openSite(path)
    }

    Rectangle {  // border, as drawn by a window manager for other windows
        anchors.fill: parent
        border.color: Theme.colours.barLine
        border.width: Theme.line
        color: Theme.colours.clear
        visible: !window.maximised
    }

    OVResizeFrame {
        anchors.fill: parent
        active: !window.maximised
        onResizeRequested: edges => window.startSystemResize(edges)
    }

    WindowPopups {
        id: popups
        batches: window.batches
        busyState: window.busyState
        certificates: window.certificates
        colourChoice: window.colourScheme.choice
        currentLanguage: window.chosenLanguage
        deviceFactory: window.deviceFactory
        fileDialogs: window.fileDialogs
        knownDevices: window.knownDevices
        languages: languageList.entries
        localConfig: window.localConfig
        logoName: window.title
        memory: window.memory
        toastArea: window.toastArea
        searchReports: window.searchReports
        searching: window.searching
        siteReport: window.siteReport
        softwareName: window.localConfig.getSoftwareName()
        version: window.localConfig.getVersion()
        webPages: window.webPages
        onColoursChosen: choice => window.chooseColours(choice)
        onEndConfirmed: applicationExit.endBatch()
        onHelpRequested: window.localConfig.OpenHelpFile()
        onLanguageChosen: code => window.chooseLanguage(code)
        onQuestionsRequested: window.localConfig.OpenQAFile()
        onRestartRequested: applicationExit.requestRestart()
        onSiteReportRequested: popups.openSiteReport(pages.tickedDevices())
        onSettingsAccepted: values => {
            if (!searchSettings.write(values))
                popups.notify(qsTr("设置无法保存，请检查程序所在文件夹的写入权限"), OVToast.Error);
            window.requestSearch();
        }
    }
}
