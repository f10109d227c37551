// The context menu of a device (right click, Menu key, Shift+F10): the entries of the page, then the common ones. Most
// common entries are done by DeviceActions; the page handles the signals.
import QtQuick
import configtools

Item {
    id: root

    required property Batches batches  // starts batches for all pages; one batch runs at a time
    required property DeviceActions actions  // does most of the common entries
    property var values: ({})  // values of the row that the menu was opened for, see DeviceActions
    /// Function of the page: returns the ticked devices, as identities or "address:port".
    property var tickedDevices: () => []
    signal ownChosen(string key, var values)  // the entry of the page with this key was chosen; values: of the row
    signal liveRequested(string ipport)  // open the live window of the device; ipport: "address:port"
    /// The page ticks only the devices with the same value of `key` ("type" or "model") as this row.
    signal similarRequested(string key, var values)

    /// Opens the menu. `position`: see OVEntryMenu.openAt(). `values`: see DeviceActions. `own` are the entries of the
    /// page, see OVEntryMenu; [] for none.
    function openAt(position, values, own) {
        root.values = values;
        menu.instance().openAt(own.concat(commonEntries(own.length > 0)), position);
    }

    /// The entries after those of the page. `startsGroup`: a line separates them from the entries before.
    function commonEntries(startsGroup) {
        const address = actions.addressOf(values);
        const isPresent = !(values.absent ?? false);  // otherwise known from an earlier search only
        const isInitialised = isPresent && (values.state ?? true);
        const isP2p = (values.loginType ?? "") === "P2P";
        const similar = [
            {key: "similarType", startsGroup: true, text: qsTr("只勾选同类型设备（%1）").arg(values.type),
                enabled: isPresent && (values.type ?? "") !== ""},
            {key: "similarModel", text: qsTr("只勾选同型号设备（%1）").arg(values.model),
                enabled: isPresent && (values.model ?? "") !== ""}
        ];
        return [
            {key: "detail", startsGroup: startsGroup, text: qsTr("详情"), enabled: isPresent},
            {key: "web", text: qsTr("打开设备网页"), enabled: isPresent && address !== ""},
            {key: "live", text: qsTr("查看实时画面"), enabled: isInitialised && address !== ""},
            {key: "copyAddress", startsGroup: true, text: qsTr("复制地址"), enabled: address !== ""},
            {key: "copyMac", text: qsTr("复制MAC"), enabled: (values.mac ?? "") !== ""},
            {key: "copyRow", text: qsTr("复制整行")},
            {key: "favourite", startsGroup: true, text: qsTr("添加到收藏夹"),
                enabled: !actions.ipv6 && isInitialised && !isP2p && address !== ""},
            {key: "note", text: qsTr("备注…"), enabled: actions.canNote(values)}
        ].concat(accountEntries(isInitialised && address !== ""), similar, [
            {key: "retry", startsGroup: true, text: qsTr("重试"),
                enabled: !batches.running && (batches.current?.canRetry(values.identity) ?? false)}
        ]);
    }

    /// The entries for the choice of an account; none without a list of accounts. `isPossible`: the device can be
    /// logged in to.
    function accountEntries(isPossible) {
        if (!LoginMemory.accounts)
            return [];
        const count = tickedDevices().length;
        const many = count > 1 ? [{
            key: "tickedAccount", text: qsTr("选择勾选的 %n 台设备的账号…", "", count)
        }] : [];
        return [{key: "account", startsGroup: true, text: qsTr("选择账号…"), enabled: isPossible}].concat(many);
    }

    /// Runs the entry with this key for the device of the menu.
    function take(key) {
        switch (key) {
        case "account":
            actions.chooseAccount([values.identity]);
            break;
        case "tickedAccount":
            actions.chooseAccount(tickedDevices());
            break;
        case "detail":
            actions.showDetail(values);
            break;
        case "web":
            actions.openWebPage(values);
            break;
        case "live":
            liveRequested(values.ipport);
            break;
        case "copyAddress":
            actions.copy(actions.addressOf(values));
            break;
        case "copyMac":
            actions.copy(values.mac);
            break;
        case "copyRow":
            actions.copy(actions.textOf(values));
            break;
        case "favourite":
            actions.addFavourite(values);
            break;
        case "note":
            actions.editNote(values);
            break;
        case "similarType":
            similarRequested("type", values);
            break;
        case "similarModel":
            similarRequested("model", values);
            break;
        case "retry":
            batches.retryDevice(batches.current, values.identity);
            break;
        default:
            ownChosen(key, values);
        }
    }

    visible: false

    // qmllint disable unqualified
    OVOnDemand {
        id: menu
        visible: false
        sourceComponent: OVEntryMenu {
            objectName: "deviceMenu"
            onChosen: key => root.take(key)
        }
    }
    // qmllint enable unqualified
}
