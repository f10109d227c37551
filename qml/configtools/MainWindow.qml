// The main window: title bar, tabs with their pages, and the search that fills them.
import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import configtools

T.ApplicationWindow {
    id: window

    // qmllint disable unqualified
    readonly property var deviceFactory: CDeviceFactoryApi
    readonly property var localConfig: LocalConfigApi
    readonly property bool libraryInstalled: deviceLibraryInstalled
    // qmllint enable unqualified

    property int count: 0
    property bool searching: false
    property int currentTab: 0
    property string chosenLanguage: localConfig.getLanguage()
    property var languages: [
        {code: "zh_CN", label: "简体中文"}, {code: "en_US", label: "English"},
        {code: "ro_RO", label: "Romanian"}, {code: "JP_US", label: "日本語"},
        {code: "de_DE", label: "German"}, {code: "es_ES", label: "Español"},
        {code: "fr_FR", label: "French"}, {code: "it_IT", label: "Italian"},
        {code: "nl_NL", label: "Dutch"}, {code: "no_NO", label: "Norwegian"},
        {code: "pt_PT", label: "Portuguese"}, {code: "sv_SV", label: "Swedish"},
        {code: "gl_GL", label: "Galician"}, {code: "ca_CA", label: "Catalan"}
    ]

    readonly property bool maximised: visibility === Window.Maximized || visibility === Window.FullScreen

    function startSearch() {
        count = 0;
        searching = true;
        deviceFactory.setDefaultAccount("dh", localConfig.getSearchConfigUsrename(),
                                        localConfig.getSearchConfigPass());
        if (localConfig.getSearchConfigOtherDomain() !== 0)
            deviceFactory.setSearchByIPInfo("dh", AddressTools.toNumber(localConfig.getSearchConfigStartIP()),
                                            AddressTools.toNumber(localConfig.getSearchConfigEndIP()));
        deviceFactory.startSearch("dh");
    }

    /// Starts a search that the user asks for. While a device is being upgraded it must not be disturbed.
    function requestSearch() {
        if (deviceFactory.hasDeviceUpgrading())
            messageBox.show(qsTr("当前有设备正在升级中，请勿刷新设备！"), OVMessageBox.Information);
        else
            startSearch();
    }

    function openSearchSettings() {
        searchSettings.startIP = localConfig.getSearchConfigStartIP();
        searchSettings.endIP = localConfig.getSearchConfigEndIP();
        searchSettings.userName = localConfig.getSearchConfigUsrename();
        searchSettings.password = localConfig.getSearchConfigPass();
        searchSettings.localDomain = localConfig.getSearchConfigLocalDomain() !== 0;
        searchSettings.otherDomain = localConfig.getSearchConfigOtherDomain() !== 0;
        searchSettings.open();
    }

    function storeSearchSettings() {
        localConfig.setSearchConfigStartIP(searchSettings.startIP);
        localConfig.setSearchConfigEndIP(searchSettings.endIP);
        localConfig.setSearchConfigUsername(searchSettings.userName);
        localConfig.setSearchConfigPass(searchSettings.password);
        localConfig.setSearchConfigLocalDomain(searchSettings.localDomain ? 1 : 0);
        localConfig.setSearchConfigOtherDomain(searchSettings.otherDomain ? 1 : 0);
    }

    /// Takes languages without a translation out of the menu, from the last to the first, so that the indexes
    /// still to come stay valid.
    function removeMissingLanguages() {
        const removed = localConfig.getRemoveLanguageList();
        const kept = languages.slice();
        for (let i = removed.length - 1; i >= 0; --i)
            kept.splice(removed[i], 1);
        languages = kept;
    }

    function chooseLanguage(code) {
        localConfig.setLanguage(code);
        chosenLanguage = code;
        restartDialog.open();
    }

    function showTab(index) {
        if (index === currentTab || index < 0 || index >= tabBar.tabs.length)
            return;
        systemConfigPage.disablePasswordEditor();
        currentTab = index;
    }

    function refuseClosing() {
        toast.show(qsTr("正在搜索，请稍候再关闭"), OVToast.Information);
    }

    function toggleMaximised() {
        if (maximised)
            showNormal();
        else
            showMaximized();
    }

    width: 1280
    height: 720
    minimumWidth: 1280
    minimumHeight: 720
    color: Theme.colours.background
    flags: Qt.Window | Qt.FramelessWindowHint | Qt.WindowSystemMenuHint | Qt.WindowMinimizeButtonHint
           | Qt.WindowMaximizeButtonHint
    title: localConfig.getLogoSoftwareName()

    Component.onCompleted: {
        startSearch();
        removeMissingLanguages();
    }

    onClosing: close => {
        console.log("Window is closing...");
        close.accepted = !searching;
        if (close.accepted)
            deviceFactory.exitProgram();
        else
            refuseClosing();
    }

    Connections {
        target: window.deviceFactory

        function onSignalSearchCount(devCount) {
            window.count = devCount;
        }
        function onSignalSearchDone() {
            window.searching = false;
        }
    }

    Shortcut { sequence: "F5"; onActivated: window.requestSearch() }
    Shortcut { sequence: "F1"; onActivated: window.localConfig.OpenHelpFile() }
    Shortcut { sequence: "Ctrl+,"; onActivated: window.openSearchSettings() }
    Shortcut {
        sequence: "Ctrl+F"
        enabled: window.currentTab === 0
        onActivated: modifyIpPage.focusSearch()
    }
    Shortcut {
        sequence: "Ctrl+Tab"
        onActivated: window.showTab((window.currentTab + 1) % tabBar.tabs.length)
    }
    Shortcut {
        sequence: "Ctrl+Shift+Tab"
        onActivated: window.showTab((window.currentTab + tabBar.tabs.length - 1) % tabBar.tabs.length)
    }
    // qmllint disable unqualified
    Instantiator {
        model: tabBar.tabs.length
        Shortcut {
            required property int index
            sequence: "Ctrl+" + (index + 1)
            onActivated: window.showTab(index)
        }
    }
    // qmllint enable unqualified

    ColumnLayout {
        anchors.fill: parent
        spacing: 0

        OVTitleBar {
            id: titleBar
            Layout.fillWidth: true
            count: window.count
            maximised: window.maximised
            searching: window.searching
            title: window.title
            onCloseRequested: window.searching ? window.refuseClosing() : window.deviceFactory.exitProgram()
            onDragged: window.startSystemMove()
            onMaximiseRequested: window.toggleMaximised()
            onMenuRequested: menu.popup(titleBar.menuButton, titleBar.menuButton.width - menu.width,
                                        titleBar.menuButton.height + Theme.half)
            onMinimiseRequested: window.showMinimized()
            onSearchRequested: window.requestSearch()
            onSettingsRequested: window.openSearchSettings()
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
            text: qsTr("未安装设备库：以 --demo 参数启动可演示模拟站点")
            visible: !window.libraryInstalled
        }
        StackLayout {
            Layout.fillHeight: true
            Layout.fillWidth: true
            currentIndex: window.currentTab

            PageModifyIP {
                id: modifyIpPage
                libraryInstalled: window.libraryInstalled
                searching: window.searching
                onSearchRequested: window.requestSearch()
            }
            PageDeviceUpgrade {}
            PageDeviceConfig {}
            PageSystemConfig { id: systemConfigPage }
            PageCGIConfig {}
        }
    }

    Rectangle {  // the edge that a window manager would draw
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

    MainMenu {
        id: menu
        currentLanguage: window.chosenLanguage
        languages: window.languages
        onAboutRequested: aboutDialog.open()
        onHelpRequested: window.localConfig.OpenHelpFile()
        onLanguageChosen: code => window.chooseLanguage(code)
        onQuestionsRequested: window.localConfig.OpenQAFile()
    }
    SearchSettingsDialog {
        id: searchSettings
        onConfirmed: {
            window.storeSearchSettings();
            window.requestSearch();
            close();
        }
        onRefused: message => toast.show(message, OVToast.Error)
    }
    RestartDialog {
        id: restartDialog
        onRestartRequested: window.localConfig.reboot()
    }
    AboutDialog {
        id: aboutDialog
        productName: window.title
        title: window.localConfig.getSoftwareName()
        version: window.localConfig.getVersion()
        onCopied: toast.show(qsTr("已复制到剪贴板"), OVToast.Success)
    }
    OVMessageBox {
        id: messageBox
        objectName: "messageBox"
    }
    OVToast {
        id: toast
        objectName: "toasts"
    }
}
