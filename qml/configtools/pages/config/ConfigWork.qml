// Operations on the session's device, one at a time, each with a continuation.
import QtQml
import configtools

SessionWork {
    id: root

    property string text             // description of the running operation; "" if the page shows it otherwise
    readonly property bool busy: text !== ""
    property bool writing: false     // the running operation changes the device
    property bool savingNames: false  // also between the single writes
    property var next: null          // called with the result of the running operation
    property var postponed: null     // called when writing has ended

    /// Shows `text`, starts an operation by `begin`, and calls `next` with its result.
    function run(text, begin, next) {
        root.text = text;
        root.next = next;
        begin();
    }

    /// Like run() for an operation that changes the device: opening another device does not cancel it.
    function write(text, begin, next) {
        writing = true;
        run(text, begin, next);
    }

    /// Ends the operation without calling `next`.
    function abandon() {
        next = null;
        finish();
    }

    function finish(value) {
        const callback = next;
        next = null;
        text = "";
        writing = false;
        if (callback)
            callback(value);
        runPostponed();
    }

    /// Runs `action` immediately, or when writing has ended.
    function afterWriting(action) {
        postponed = action;
        runPostponed();
    }

    function runPostponed() {
        if (postponed === null || writing || savingNames)
            return;
        const action = postponed;
        postponed = null;
        action();
    }

    onEnded: value => finish(value)
}
