// Operations on the session's device, one at a time, each with a function for its result. Starting an operation drops
// the running one: its function is not called.
import QtQml
import configtools

SessionWork {
    id: root

    property string text             // description of the running operation; "" if the page shows it otherwise
    readonly property bool busy: text !== ""
    property bool writing: false     // the running operation changes the device and was started by write()
    property bool savingNames: false  // a series of names is being written, also between its single requests
    property var next: null          // function of the running operation, called with its result; null for none
    property var postponed: null     // function of afterWriting() that waits; null for none

    /// Shows `text`, starts an operation of SessionWork by the function `begin`, and calls `next` at its end with the
    /// value that the operation returns (undefined for most). `next` may be null.
    function run(text, begin, next) {
        root.text = text;
        root.next = next;
        begin();
    }

    /// Like run() for an operation that changes the device: afterWriting() waits for its end.
    function write(text, begin, next) {
        writing = true;
        run(text, begin, next);
    }

    /// Marks the operation as ended without calling `next`, after SessionWork has dropped it, and runs a postponed
    /// action.
    function abandon() {
        next = null;
        finish();
    }

    /// Called at the end of the operation with its value: calls its function, then runs a postponed action.
    function finish(value) {
        const callback = next;
        next = null;
        text = "";
        writing = false;
        if (callback)
            callback(value);
        runPostponed();
    }

    /// Runs `action` immediately, or when nothing is being written any more. A later call replaces an action that
    /// waits.
    function afterWriting(action) {
        postponed = action;
        runPostponed();
    }

    /// Runs the action that waits, unless something is being written.
    function runPostponed() {
        if (postponed === null || writing || savingNames)
            return;
        const action = postponed;
        postponed = null;
        action();
    }

    onEnded: value => finish(value)
}
