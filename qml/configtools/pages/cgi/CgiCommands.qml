// The recent and the favourite commands, which are stored in a file. They are suggestions for a CgiCommandField.
import QtQuick
import configtools

Item {
    id: root

    required property var cgiManager  // a CGIConfigManage: stored commands, clipboard, files
    property var recent: []  // texts, the latest first; up to 20
    property var favourites: []  // texts in the order in which they were added; up to 200

    readonly property int maximumSuggestions: 8  // number of suggestions shown
    readonly property int longestKept: 2048  // characters of a command that can be stored

    /// Returns up to `maximumSuggestions` commands that contain `text`, favourites first. Ignores case. A command equal
    /// to `text` is left out.
    function matching(text) {
        const wanted = text.trim().toLowerCase();
        const known = favourites.concat(recent.filter(command => !favourites.includes(command)));
        return known.filter(command => command !== text && command.toLowerCase().includes(wanted)).slice(0, maximumSuggestions);
    }

    /// Whether this is a favourite command.
    function isFavourite(command) {
        return favourites.includes(command);
    }

    /// Whether a command can be stored: it is not empty and not longer than `longestKept`.
    function canBeKept(command) {
        return command !== "" && command.length <= longestKept;
    }

    /// Stores a command, which may have been refused, as the latest one in `recent`. One that cannot be stored, see
    /// canBeKept(), is ignored.
    function remember(command) {
        cgiManager.rememberCommand(command);
        read();
    }

    /// Adds a favourite command, or removes it if `kept` is false. Ignored for one that cannot be stored, and beyond
    /// 200.
    function setFavourite(command, kept) {
        cgiManager.setFavouriteCommand(command, kept);
        read();
    }

    /// Reads both lists again.
    function read() {
        recent = cgiManager.recentCommands();
        favourites = cgiManager.favouriteCommands();
    }

    visible: false
    Component.onCompleted: read()
}
