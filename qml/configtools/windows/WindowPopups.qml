// Dialogs, menus, messages and further windows of the main window, created on first use. Language, colours and search
// settings are not changed here: the window handles the signals. The dialog of the site report stores its input in
// `memory`, and the dialog of accounts changes the stored accounts.
import QtQuick
import configtools

Item {
    id: root

    required property Batches batches  // starts batches for all pages; one batch runs at a time
    required property BusyState busyState  // running work of all pages, and the actions that it blocks
    required property CertificateList certificates  // refused certificates of devices
    required property var deviceFactory  // a CDeviceFactory: access to the device list and the devices
    required property var fileDialogs  // a FileDialogs
    required property KnownDevices knownDevices  // devices of earlier searches
    required property var localConfig  // a CLocalConfig: the settings of the application
    required property SearchReports searchReports  // report of the last search
    required property var languages  // entries of the menu: objects with "code" and "label"
    required property string currentLanguage  // code of the chosen language
    required property string colourChoice  // "desktop", "light" or "dark"
    required property string logoName  // name of the product, in the about box
    required property string softwareName  // title of the about box
    required property string version
    required property bool searching  // a search runs
    required property rect toastArea  // see OVToast.area; in pixels, in window coordinates
    required property var webPages  // a WebPages: opens web pages of devices in the browser
    required property SiteReport siteReport  // collects the values and images of a site report, and writes its files
    required property var memory  // a ViewMemory: keeps the input of the dialog of the site report
    readonly property alias media: media  // live window and gallery
    signal siteReportRequested  // by the menu: open the dialog with the ticked rows, see openSiteReport()
    signal helpRequested  // open the manual
    signal questionsRequested  // open the questions and answers
    signal languageChosen(string code)  // code of an element of `languages`
    signal coloursChosen(string choice)  // as colourChoice
    signal restartRequested  // restart the application
    signal settingsAccepted(var values)  // store the search settings and search; values: see SearchSettings.read()
    signal endConfirmed  // stop the running batch and exit

    /// Opens the main menu below its button.
    function openMenu(button) {
        const mainMenu = menu.instance();
        mainMenu.popup(button, button.width - mainMenu.width, button.height + Theme.half);
    }

    /// Opens the search settings with these values, see SearchSettings.read().
    function openSearchSettings(values) {
        const dialog = searchSettings.instance();
        dialog.load(values);
        dialog.open();
    }

    /// Passes the stored password to the open search settings, see SearchSettingsDialog.supplyPassword().
    function supplyPassword(password) {
        if (searchSettings.item?.visible)
            searchSettings.item.supplyPassword(password);
    }

    /// Opens the report of the last search.
    function openSearchReport() {
        searchReport.instance().open();
    }

    /// Asks for the data of a site report. `ticked`: names of the ticked rows of the device list.
    function openSiteReport(ticked) {
        siteReportDialog.instance().begin(ticked);
    }

    /// Asks for a restart after a change of language.
    function openRestartPrompt() {
        restart.instance().open();
    }

    /// Opens a site file.
    function openSite(path) {
        siteFiles.openSite(path);
    }

    /// Shows a message that the user must confirm.
    function showMessage(message) {
        messageBox.instance().show(message, OVMessageBox.Information);
    }

    /// Asks whether to exit during the batch with this title. `upgrades`: firmware is being upgraded, so devices may be
    /// writing it.
    function askToEnd(title, upgrades) {
        const box = endQuestion.instance();
        box.okText = qsTr("停止并退出");
        box.show(qsTr("“%1”正在进行。退出后，其余设备不会更改。").arg(title)
            + (upgrades ? qsTr("已开始写入的设备会自行完成升级，请勿断电。") : ""), OVMessageBox.DangerQuestion);
    }

    /// Shows a toast. `severity` is one of OVToast; `duration` in ms, by default that of the severity.
    function notify(message, severity, duration) {
        toasts.instance().show(message, severity, duration);
    }

    /// Removes the toasts with refusals: their obstacle may no longer exist.
    function removeRefusals() {
        toasts.item?.removeRefusals();
    }

    /// Removes all toasts.
    function clearNotices() {
        toasts.item?.clear();
    }

    Connections {
        target: root.busyState

        function onChanged() {
            root.removeRefusals();
        }
    }
    Connections {
        target: root.batches

        function onRunningChanged() {
            if (root.batches.running)
                root.clearNotices();  // they concern earlier work
        }
    }

    SiteFiles {
        id: siteFiles
        busyState: root.busyState
        fileDialogs: root.fileDialogs
        knownDevices: root.knownDevices
        onNotify: (message, severity) => root.notify(message, severity)
    }

    Connections {
        target: root.knownDevices

        function onProblemChanged() {
            if (root.knownDevices.problem !== "")
                root.notify(root.knownDevices.problem, OVToast.Error);
        }
    }

    Connections {
        target: root.webPages

        function onRefused(reason) {
            root.notify(reason, OVToast.Error);
        }
    }

    Connections {
        target: root.siteReport

        function onFinished(paths, reason) {
            if (paths.length > 0 || reason !== "")
                siteReportResult.instance().show(paths, reason);
            else
                root.notify(qsTr("报告已停止，没有生成文件"), OVToast.Information);
        }
    }

    Connections {
        target: LoginMemory

        function onUnkept(reason) {
            root.notify(qsTr("账号无法保存，只用到下次搜索：%1").arg(reason), OVToast.Error);
        }
    }

    // Asks once, after the end of a batch and a search.
    Timer {
        interval: 300
        running: root.certificates.hasNewRefusals && !root.batches.running && !root.searching
            && !(certificateQuestion.item?.visible ?? false)
        onTriggered: certificateQuestion.instance().show()
    }

    // qmllint disable unqualified
    OVOnDemand {
        id: certificateQuestion
        visible: false
        sourceComponent: CertificateDialog {
            certificates: root.certificates
            onAgreed: count => root.notify(qsTr("已信任 %n 个证书，请重试刚才的操作", "", count), OVToast.Success)
        }
    }
    OVOnDemand {
        id: menu
        visible: false
        sourceComponent: MainMenu {
            colourChoice: root.colourChoice
            currentLanguage: root.currentLanguage
            languages: root.languages
            onAboutRequested: about.instance().open()
            onAccountsRequested: accounts.instance().manage()
            onColoursChosen: choice => root.coloursChosen(choice)
            recentSites: root.knownDevices.recentSites
            onHelpRequested: root.helpRequested()
            onNewSiteRequested: siteFiles.startNew()
            onOpenSiteRequested: siteFiles.chooseSite()
            onRecentSiteRequested: path => siteFiles.openSite(path)
            onSaveSiteRequested: siteFiles.saveSite()
            onLanguageChosen: code => root.languageChosen(code)
            onQuestionsRequested: root.questionsRequested()
            onSiteReportRequested: root.siteReportRequested()
        }
    }
    OVOnDemand {
        id: accounts
        visible: false
        sourceComponent: AccountsDialog {
            accounts: LoginMemory.accounts
            onNotify: (message, severity) => root.notify(message, severity)
        }
    }
    OVOnDemand {
        id: searchSettings
        visible: false
        sourceComponent: SearchSettingsDialog {
            id: settings
            onConfirmed: {
                root.settingsAccepted(settings.values());
                settings.close();
            }
        }
    }
    OVOnDemand {
        id: searchReport
        visible: false
        sourceComponent: SearchReportDialog {
            reports: root.searchReports
        }
    }
    OVOnDemand {
        id: siteReportDialog
        visible: false
        sourceComponent: SiteReportDialog {
            fileDialogs: root.fileDialogs
            memory: root.memory
            siteReport: root.siteReport
        }
    }
    OVOnDemand {
        id: siteReportResult
        visible: false
        sourceComponent: SiteReportResult {
            fileDialogs: root.fileDialogs
            siteReport: root.siteReport
        }
    }
    OVOnDemand {
        id: restart
        visible: false
        sourceComponent: RestartDialog {
            onRestartRequested: root.restartRequested()
        }
    }
    OVOnDemand {
        id: about
        visible: false
        sourceComponent: AboutDialog {
            productName: root.logoName
            title: root.softwareName
            version: root.version
        }
    }
    MediaWindows {
        id: media
        batches: root.batches
        busyState: root.busyState
        deviceFactory: root.deviceFactory
        localConfig: root.localConfig
        onNotify: (message, severity) => root.notify(message, severity)
    }
    OVOnDemand {
        id: messageBox
        visible: false
        sourceComponent: OVMessageBox {
            objectName: "messageBox"
        }
    }
    OVOnDemand {
        id: endQuestion
        visible: false
        sourceComponent: OVMessageBox {
            objectName: "endQuestion"
            title: qsTr("退出程序")
            onAccepted: root.endConfirmed()
        }
    }
    OVOnDemand {
        id: toasts
        visible: false
        sourceComponent: OVToast {
            area: root.toastArea
            objectName: "toasts"
        }
    }
    // qmllint enable unqualified
}
