// Recent and favourite commands, as suggestions.
import QtQuick
import configtools

Item {
    id: root

    required property var cgiManager
    property var recent: []
    property var favourites: []

    readonly property int maximumSuggestions: 8
    readonly property int longestKept: 2048

    /// Returns up to `maximumSuggestions` commands that contain `text`, favourites first.
    function matching(text) {
        const wanted = text.trim().toLowerCase();
        const known = favourites.concat(recent.filter(command => !favourites.includes(command)));
        return known.filter(command => command !== text && command.toLowerCase().includes(wanted)).slice(0, maximumSuggestions);
    }

    function isFavourite(command) {
        return favourites.includes(command);
    }

    function canBeKept(command) {
        return command !== "" && command.length <= longestKept;
    }

    function remember(command) {
        cgiManager.rememberCommand(command);
        read();
    }

    function setFavourite(command, kept) {
        cgiManager.setFavouriteCommand(command, kept);
        read();
    }

    function read() {
        recent = cgiManager.recentCommands();
        favourites = cgiManager.favouriteCommands();
    }

    visible: false
    Component.onCompleted: read()
}
