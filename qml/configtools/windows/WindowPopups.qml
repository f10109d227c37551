// What the main window opens over itself. Each is made when it is first asked for.
import QtQuick
import configtools

Item {
    id: root

    required property Batches batches
    required property BusyState busyState
    required property CertificateList certificates
    required property var deviceFactory
    required property var localConfig
    required property SearchReports searchReports
    required property var languages
    required property string currentLanguage
    required property string colourChoice  // as MainMenu takes it
    required property string logoName
    required property string softwareName
    required property string version
    required property bool searching
    required property rect noticeBand  // of the window, where messages are in the way of nothing
    required property var webPages  // WebPages
    signal helpRequested
    signal questionsRequested
    signal languageChosen(string code)
    signal coloursChosen(string choice)
    signal restartRequested
    signal settingsAccepted(var values)
    signal endConfirmed  // although a batch runs

    function openMenu(button) {
        const mainMenu = menu.wanted();
        mainMenu.popup(button, button.width - mainMenu.width, button.height + Theme.half);
    }

    function openSearchSettings(values) {
        const dialog = searchSettings.wanted();
        dialog.load(values);
        dialog.open();
    }

    function openSearchReport() {
        searchReport.wanted().open();
    }

    function openRestartPrompt() {
        restart.wanted().open();
    }

    /// `table` is the list that the device is of, a DeviceTableModel. The live window goes through the ticked devices of
    /// it, or through its rows while none is ticked.
    function openLive(ipport, table) {
        live.wanted().open(ipport, -1, table, table.checkedCount > 0 ? table.checkedRows() : []);
    }

    /// The same for a device of a tree, an OVTreeModel.
    function openLiveOfTree(ipport, tree) {
        live.wanted().open(ipport, -1, null, tree.devicesToWatch());
    }

    /// The pictures of these rows of `table`.
    function openGallery(rows, table) {
        const window = gallery.wanted();
        window.table = table;
        window.open(rows);
    }

    function closeLive() {
        live.item?.close();
        gallery.item?.close();
    }

    /// A message that is to be confirmed.
    function tell(message) {
        messageBox.wanted().show(message, OVMessageBox.Information);
    }

    /// Whether the program is to end during a batch, which may write firmware.
    function askToEnd(title, upgrades) {
        const box = endQuestion.wanted();
        box.okText = qsTr("停止并退出");
        box.show(qsTr("“%1”正在进行。退出后，其余设备不会更改。").arg(title)
            + (upgrades ? qsTr("已开始写入的设备会自行完成升级，请勿断电。") : ""), OVMessageBox.DangerQuestion);
    }

    /// A message that goes by itself.
    function say(message, kind, stay) {
        toasts.wanted().show(message, kind, stay);
    }

    /// Of the messages that go by themselves: what was in the way may have changed.
    function settle() {
        toasts.item?.settle();
    }

    function clearNotices() {
        toasts.item?.clear();
    }

    Connections {
        target: root.busyState

        function onChanged() {
            root.settle();
        }
    }
    Connections {
        target: root.batches

        function onRunningChanged() {
            if (root.batches.running)
                root.clearNotices();  // they are about what was done before
        }
    }

    Connections {
        target: root.webPages

        function onRefused(reason) {
            root.say(reason, OVToast.Error);
        }
    }

    Connections {
        target: LoginMemory

        function onUnkept(reason) {
            root.say(qsTr("账号无法保存，只用到下次搜索：%1").arg(reason), OVToast.Error);
        }
    }

    // A batch and a search are asked about once, at their ends.
    Timer {
        interval: 300
        running: root.certificates.hasNews && !root.batches.running && !root.searching
            && !(certificateQuestion.item?.visible ?? false)
        onTriggered: certificateQuestion.wanted().show()
    }

    // qmllint disable unqualified
    OVOnDemand {
        id: certificateQuestion
        visible: false
        sourceComponent: CertificateDialog {
            certificates: root.certificates
            onAgreed: count => root.say(qsTr("已信任 %n 个证书，请重试刚才的操作", "", count), OVToast.Success)
        }
    }
    OVOnDemand {
        id: menu
        visible: false
        sourceComponent: MainMenu {
            colourChoice: root.colourChoice
            currentLanguage: root.currentLanguage
            languages: root.languages
            onAboutRequested: about.wanted().open()
            onAccountsRequested: accounts.wanted().manage()
            onColoursChosen: choice => root.coloursChosen(choice)
            onHelpRequested: root.helpRequested()
            onLanguageChosen: code => root.languageChosen(code)
            onQuestionsRequested: root.questionsRequested()
        }
    }
    OVOnDemand {
        id: accounts
        visible: false
        sourceComponent: AccountsDialog {
            accounts: LoginMemory.accounts
            onSaid: (message, kind) => root.say(message, kind)
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
    OVOnDemand {
        id: live
        visible: false
        sourceComponent: LiveWindow {
            batches: root.batches
            busyState: root.busyState
            deviceFactory: root.deviceFactory
            localConfig: root.localConfig
            onSaid: (message, kind) => root.say(message, kind)
        }
    }
    OVOnDemand {
        id: gallery
        visible: false
        sourceComponent: GalleryWindow {
            id: pictures
            property DeviceTableModel table: null
            batches: root.batches
            deviceFactory: root.deviceFactory
            localConfig: root.localConfig
            onLiveRequested: (ipport, channel) => live.wanted().open(ipport, channel, table, pictures.gallery.devices())
        }
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
            band: root.noticeBand
            objectName: "toasts"
        }
    }
    // qmllint enable unqualified
}
