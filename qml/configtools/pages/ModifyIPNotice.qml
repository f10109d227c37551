// The notice above the table of the main page: the last search was stopped, found nothing, or found fewer devices than
// the search before it.
import QtQuick
import configtools

OVBanner {
    id: root

    required property int listedCount  // number of listed devices
    required property int totalCount  // the same with known devices that are not listed
    required property SearchReports searchReports
    required property bool searching  // a search runs
    /// Whether there is a reason for the notice: the owner shows it then, if the table has rows. The close button
    /// removes the reason; there is no close button for `nothingFound`.
    readonly property bool applies: searchReports.incomplete || searchReports.missing > 0 || nothingFound
    /// No device is listed after the last search, so that all rows are those of known devices.
    readonly property bool nothingFound: listedCount === 0 && totalCount > 0 && searchReports.available && !searching
    signal searchRequested
    signal reportRequested  // open the report of the last search

    closable: !nothingFound
    iconName: "alert"
    linkText: searchReports.incomplete ? qsTr("重新搜索") : qsTr("查看原因")
    objectName: "missingNotice"
    text: searchReports.incomplete ? qsTr("搜索已停止，列表不完整。")
        : nothingFound ? qsTr("没有找到设备，灰色的是以前找到的设备")
        : qsTr("找到的设备比上次搜索少 %n 台", "", searchReports.missing)
    onClosed: searchReports.dismiss()
    onLinkActivated: {
        if (searchReports.incomplete)
            searchRequested();
        else
            reportRequested();
    }
}
