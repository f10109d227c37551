// The menu of the main window. It only requests; the owner acts.
import QtQuick
import QtQml
import configtools

OVMenu {
    id: root

    required property var languages  // objects with "code" and "label"
    required property string currentLanguage  // code of the chosen language
    required property var recentSites  // see SiteMenu
    required property string colourChoice  // "desktop", "light" or "dark"
    signal accountsRequested  // manage the stored accounts
    signal siteReportRequested  // open the dialog of the site report
    signal openSiteRequested
    signal saveSiteRequested
    signal newSiteRequested
    signal recentSiteRequested(string path)
    signal helpRequested  // open the manual
    signal questionsRequested  // open the questions and answers
    signal aboutRequested
    signal languageChosen(string code)  // code of an element of `languages`
    signal coloursChosen(string choice)  // see colourChoice

    objectName: "mainMenu"

    SiteMenu {
        recentSites: root.recentSites
        onNewRequested: root.newSiteRequested()
        onOpenRequested: root.openSiteRequested()
        onRecentRequested: path => root.recentSiteRequested(path)
        onSaveRequested: root.saveSiteRequested()
    }
    OVMenuItem {
        iconName: "note"
        objectName: "siteReportItem"
        text: qsTr("现场报告（Ctrl+R）")
        onTriggered: root.siteReportRequested()
    }
    OVMenuItem {
        iconName: "accounts"
        objectName: "accountsItem"
        text: qsTr("账号管理")
        onTriggered: root.accountsRequested()
    }
    OVMenuItem {
        iconName: "help"
        objectName: "helpItem"
        text: qsTr("帮助")
        onTriggered: root.helpRequested()
    }
    OVMenu {
        id: languageMenu
        iconName: "language"
        objectName: "languageMenu"
        enabled: root.languages.length > 0
        title: qsTr("语言")

        // qmllint disable unqualified
        Instantiator {
            model: root.languages

            OVMenuItem {
                required property var modelData

                marksChoice: modelData.code === root.currentLanguage
                objectName: "language_" + modelData.code
                text: modelData.label
                onTriggered: root.languageChosen(modelData.code)
            }

            onObjectAdded: (index, object) => languageMenu.insertItem(index, object)
            onObjectRemoved: (index, object) => languageMenu.removeItem(object)
        }
        // qmllint enable unqualified
    }
    OVMenu {
        iconName: "show"
        objectName: "coloursMenu"
        title: qsTr("外观")

        OVMenuItem {
            marksChoice: root.colourChoice === "desktop"
            objectName: "colours_desktop"
            text: qsTr("跟随系统")
            onTriggered: root.coloursChosen("desktop")
        }
        OVMenuItem {
            marksChoice: root.colourChoice === "light"
            objectName: "colours_light"
            text: qsTr("浅色")
            onTriggered: root.coloursChosen("light")
        }
        OVMenuItem {
            marksChoice: root.colourChoice === "dark"
            objectName: "colours_dark"
            text: qsTr("深色")
            onTriggered: root.coloursChosen("dark")
        }
    }
    OVMenuItem {
        iconName: "questions"
        objectName: "qaItem"
        text: qsTr("QA")
        onTriggered: root.questionsRequested()
    }
    OVMenuItem {
        iconName: "about"
        objectName: "aboutItem"
        text: qsTr("关于")
        onTriggered: root.aboutRequested()
    }
}
