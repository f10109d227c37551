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
    readonly property var secretVault: SecretVaultApi  // a SecretVault; null: passwords are in the files
    readonly property var cgiManager: CGIConfigManageApi  // a CGIConfigManage
    readonly property var fileDialogs: FileDialogsApi  // a FileDialogs
    readonly property bool libraryInstalled: deviceLibraryInstalled  // false: no device responds
    readonly property var accounts: AccountsApi  // an AccountList: the stored accounts, for LoginMemory
    readonly property bool simulated: demoSite  // the devices are those of the demo site
    readonly property string demoAccount: demoSiteAccount  // "user / password" of most demo devices; "" for none
    // qmllint enable unqualified

    readonly property alias deviceSearch: search.deviceSearch
    readonly property int count: search.deviceSearch.count  // IPv4 devices found by the running or last search
    readonly property bool searching: search.deviceSearch.running
    property int currentTab: 0  // index from 0; set by showTab() only
    /// Area of toasts, in window coordinates: next to the tabs, between the buttons of the title bar and those of the
    /// tool bars.
    readonly property rect toastArea: {
        const left = tabBar.tabsWidth + Theme.pageMargin;
        const top = (Theme.titleBarHeight + Theme.controlHeight) / 2 + 2;
        const bottom = titleBar.height + tabBar.height + (Theme.toolBarHeight - Theme.controlHeight) / 2 - 2;
        return Qt.rect(left, top, width - left - Theme.pageMargin, bottom - top);
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

    /// Shows the stored tab, the first one if there is none, and gives its page the keyboard focus.
    function restoreTab() {
        const tab = view.tab(tabBar.tabs.length);
        if (tab > 0)
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

    /// Reports that a password cannot be moved to the secret service, or not be read from it.
    function reportSecrets() {
        if (secretVault && secretVault.problem !== "")
            popups.notify(secretVault.problem, OVToast.Error);
    }

    Component.onCompleted: {
        LoginMemory.accounts = accounts;
        search.start();
        restoreTab();
        if (notes.problem !== "")
            popups.notify(notes.problem, OVToast.Error);
        if (knownDevices.problem !== "")
            popups.notify(knownDevices.problem, OVToast.Error);
        reportSecrets();
    }

    onClosing: close => {
        console.log("Window is closing...");
        close.accepted = applicationExit.requestEnd();
    }

    Binding {
        property: "textRendering"
        target: Theme
        value: Number.isInteger(window.Screen.devicePixelRatio) ? Text.NativeRendering : Text.QtRendering
    }
    WindowMemory {
        id: view
        host: window
        memory: window.memory
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
        target: window.secretVault

        function onLoaded() {
            popups.supplyPassword(window.localConfig.getSearchConfigPass());
        }
        function onProblemChanged() {
            window.reportSecrets();
        }
    }
    Connections {
        target: window.memory

        function onFailed() {
            choices.notifyUnsaved();
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
        onLeaving: view.write(window.currentTab)
    }
    WindowSearch {
        id: search
        busyState: window.busyState
        deviceFactory: window.deviceFactory
        knownDevices: window.knownDevices
        localConfig: window.localConfig
        popups: popups
        searchReports: window.searchReports
        onUnsaved: choices.notifyUnsaved()
    }
    WindowChoices {
        id: choices
        colourScheme: window.colourScheme
        localConfig: window.localConfig
        popups: popups
    }
    WindowShortcuts {
        currentTab: window.currentTab
        stoppable: window.batches.running || window.searching
        tabCount: tabBar.tabs.length
        onFindRequested: pages.focusSearch()
        onGalleryRequested: if (window.currentTab === 0) pages.openGallery()
        onHelpRequested: window.localConfig.OpenHelpFile()
        onSearchRequested: if (!window.searching) search.request()
        onSettingsRequested: search.openSettings()
        onSiteReportRequested: popups.openSiteReport(pages.tickedDevices())
        onStopRequested: {
            if (window.batches.running)
                window.batches.current.stop();
            else
                window.deviceSearch.stop();
        }
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
            maximised: frame.maximised
            searching: window.searching
            title: window.title
            version: popups.softwareName + " " + popups.version
            onCloseRequested: applicationExit.requestEnd()
            onMaximiseRequested: frame.maximised ? window.showNormal() : window.showMaximized()
            onMenuRequested: popups.openMenu(titleBar.menuButton)
            onMinimiseRequested: window.showMinimized()
            onSearchRequested: if (!window.searching) search.request()
            onSettingsRequested: search.openSettings()
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
            onSearchRequested: search.request()
            onSettingsRequested: search.openSettings()
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

    WindowFrame {
        id: frame
        anchors.fill: parent
        host: window
    }

    WindowPopups {
        id: popups
        batches: window.batches
        busyState: window.busyState
        certificates: window.certificates
        colourChoice: window.colourScheme.choice
        currentLanguage: choices.language
        deviceFactory: window.deviceFactory
        fileDialogs: window.fileDialogs
        knownDevices: window.knownDevices
        languages: choices.languages
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
        onColoursChosen: choice => choices.chooseColours(choice)
        onEndConfirmed: applicationExit.endBatch()
        onHelpRequested: window.localConfig.OpenHelpFile()
        onLanguageChosen: code => choices.chooseLanguage(code)
        onQuestionsRequested: window.localConfig.OpenQAFile()
        onRestartRequested: applicationExit.requestRestart()
        onSiteReportRequested: popups.openSiteReport(pages.tickedDevices())
        onSettingsAccepted: values => search.applySettings(values)
    }
}
