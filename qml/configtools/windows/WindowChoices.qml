// The language and the colours of the window, which the user chooses in the menu.
import QtQuick
import configtools

Item {
    id: root

    required property var colourScheme  // a ColourScheme, which stores the choice of colours
    required property var localConfig  // a CLocalConfig: the settings of the application
    required property WindowPopups popups  // messages
    property string language: localConfig.getLanguage()  // code, such as "en_US"; used after a restart
    readonly property alias languages: languageList.entries  // those that can be chosen, see MainMenu

    /// Stores the language and offers a restart. If it cannot be stored, a toast reports that and nothing changes.
    function chooseLanguage(code) {
        localConfig.setLanguage(code);
        if (localConfig.getLanguage() !== code) {
            notifyUnsaved();
            return;
        }
        language = code;
        popups.openRestartPrompt();
    }

    /// Applies a choice ("desktop", "light" or "dark") and stores it. A toast reports a failure to store it; the
    /// colours then apply until the application ends.
    function chooseColours(choice) {
        if (!colourScheme.choose(choice))
            notifyUnsaved();
    }

    /// Shows a toast that settings cannot be stored.
    function notifyUnsaved() {
        popups.notify(qsTr("设置无法保存，请检查程序所在文件夹的写入权限"), OVToast.Error);
    }

    visible: false

    Component.onCompleted: languageList.remove(localConfig.getRemoveLanguageList())

    Binding {
        property: "dark"
        target: Theme
        value: root.colourScheme.dark
    }
    LanguageList {
        id: languageList
    }
}
