// The submenu with the actions on sites and the sites that were opened or saved last. It only requests.
import QtQuick
import QtQml
import configtools

OVMenu {
    id: root

    required property var recentSites  // maps of "name" and "path"
    readonly property int ownEntries: 3
    signal openRequested  // choose a site file and open it
    signal saveRequested  // save the site as a file
    signal newRequested  // start an empty site
    signal recentRequested(string path)  // open this site file

    iconName: "history"
    objectName: "siteMenu"
    title: qsTr("现场")

    OVMenuItem {
        objectName: "openSiteItem"
        text: qsTr("打开现场…")
        onTriggered: root.openRequested()
    }
    OVMenuItem {
        objectName: "saveSiteItem"
        text: qsTr("现场另存为…")
        onTriggered: root.saveRequested()
    }
    OVMenuItem {
        objectName: "newSiteItem"
        text: qsTr("新建现场…")
        onTriggered: root.newRequested()
    }

    // qmllint disable unqualified
    Instantiator {
        model: root.recentSites

        OVMenuItem {
            required property int index
            required property var modelData

            objectName: "recentSite" + index
            startsGroup: index === 0
            text: modelData.name
            onTriggered: root.recentRequested(modelData.path)
        }

        onObjectAdded: (index, object) => root.insertItem(root.ownEntries + index, object)
        onObjectRemoved: (index, object) => root.removeItem(object)
    }
    // qmllint enable unqualified
}
