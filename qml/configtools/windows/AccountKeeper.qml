// Keeps the account that the devices of a batch have taken, as the user has chosen before. What has been taken is kept
// while the batch runs: the program may end during the batch.
import QtQuick
import configtools

Item {
    id: root

    required property Batches batches
    property Batch batch: null
    property int keeping: AccountList.Unkept
    property int takenCount: 0  // devices of the batch that were handed on
    property int keptCount: 0   // devices that the account is kept for, also of the batches before a retry
    property int keptBefore: 0  // of them, those of the batches before the retry
    property string failure
    readonly property var accounts: LoginMemory.accounts

    /// What has become of the account, for the end of a message; empty when it was not to be kept.
    readonly property string words: failure !== "" ? qsTr("账号无法保存，只用到下次搜索：%1").arg(failure)
        : keptCount === keptBefore || keeping === AccountList.Unkept ? ""
        : keeping === AccountList.AsDefault ? qsTr("新账号已设为默认账号")
        : qsTr("新账号已保存，以后登录这 %n 台设备时使用", "", keptCount)

    /// Follows a batch that gives devices a new password. A batch that there is not is not followed.
    function follow(batch, keeping) {
        keep();
        root.batch = batch;
        takenCount = 0;
        root.keeping = keeping;
        keptCount = 0;
        keptBefore = 0;
        failure = "";
    }

    /// Keeps what waits. At the end of the batch, the words are complete then.
    function keep() {
        pause.stop();
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
        id: pause
        interval: 1000  // each keeping writes a file
        onTriggered: root.keep()
    }
    Connections {
        target: root.batch

        function onResulted() {
            if (!pause.running)
                pause.start();
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
