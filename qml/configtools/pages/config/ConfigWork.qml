// Work on the session's device, one piece at a time, and what follows each of them.
import QtQml
import configtools

SessionWork {
    id: root

    property string text             // says what is being done; "" when the page shows it in another way
    readonly property bool busy: text !== ""
    property bool writing: false     // what runs changes the device
    property bool savingNames: false // between its pieces of work, too
    property var next: null          // a function that goes on with the value of what runs
    property var postponed: null     // a function that waits for the end of the writing

    /// Shows `text` while what `begin` begins runs, and then calls `next` with its value.
    function run(text, begin, next) {
        root.text = text;
        root.next = next;
        begin();
    }

    /// The same for what changes the device: it is not given up for another device.
    function write(text, begin, next) {
        writing = true;
        run(text, begin, next);
    }

    /// What ran has ended, and nothing follows it.
    function forget() {
        next = null;
        finish();
    }

    function finish(value) {
        const goOn = next;
        next = null;
        text = "";
        writing = false;
        if (goOn)
            goOn(value);
        settle();
    }

    /// Does `action` at once, or when the writing has ended.
    function afterWriting(action) {
        postponed = action;
        settle();
    }

    function settle() {
        if (postponed === null || writing || savingNames)
            return;
        const action = postponed;
        postponed = null;
        action();
    }

    onEnded: value => finish(value)
}
