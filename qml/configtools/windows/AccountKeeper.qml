// Stores the new account of the devices of a batch that sets passwords, as the user has chosen. It does so during the
// batch, since the application may exit before the end. It also follows the retries of the batch.
import QtQuick
import configtools

Item {
    id: root

    required property Batches batches  // starts batches for all pages; one batch runs at a time
    property Batch batch: null  // the followed batch or its retry; null for none
    property int keeping: AccountList.Unkept  // an AccountList.Keeping
    property int takenCount: 0  // number of succeeded devices of the batch whose accounts were processed
    property int keptCount: 0   // number of devices processed without an error, including batches before a retry
    property int keptBefore: 0  // of these, devices of batches before the retry
    property string failure  // the latest reason why an account could not be stored, "" if all were
    readonly property var accounts: LoginMemory.accounts  // the AccountList; null: nothing is stored

    /// Result for the user: the reason in `failure`, if there is one. Otherwise "" if the account was not to be stored,
    /// or if no device of `batch` has accepted it (devices of batches before a retry do not count).
    readonly property string message: failure !== "" ? qsTr("账号无法保存，只用到下次搜索：%1").arg(failure)
        : keptCount === keptBefore || keeping === AccountList.Unkept ? ""
        : keeping === AccountList.AsDefault ? qsTr("新账号已设为默认账号")
        : qsTr("新账号已保存，以后登录这 %n 台设备时使用", "", keptCount)

    /// Follows a batch that sets a new password, instead of the earlier one. `batch` may be null; `keeping`
    /// (AccountList.Keeping) is the choice of the user: for the devices, as default account, or not stored.
    function follow(batch, keeping) {
        keep();
        root.batch = batch;
        takenCount = 0;
        root.keeping = keeping;
        keptCount = 0;
        keptBefore = 0;
        failure = "";
    }

    /// Processes the accounts of the devices that have succeeded since the last call, as `keeping` states. After the
    /// batch, `message` is final.
    function keep() {
        delay.stop();
        const devices = batch?.succeededDevices(takenCount) ?? [];
        if (devices.length === 0 || !accounts)
            return;
        takenCount += devices.length;
        const reason = accounts.keepNew(devices, keeping);
        if (reason !== "")
            failure = reason;
        else
            keptCount += devices.length;
    }

    visible: false
    Component.onDestruction: keep()

    Timer {
        id: delay
        interval: 1000  // each call writes a file
        onTriggered: root.keep()
    }
    Connections {
        target: root.batch

        function onResulted() {
            if (!delay.running)
                delay.start();
        }
        function onFinished() {
            root.keep();
        }
    }
    Connections {
        target: root.batches

        function onRetried(earlier, again) {
            if (earlier !== root.batch)
                return;
            root.keep();
            root.batch = again;
            root.takenCount = 0;
            root.keptBefore = root.keptCount;
        }
    }
}
