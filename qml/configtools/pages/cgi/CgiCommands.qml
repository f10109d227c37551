// The commands that were sent before and those that are kept as favourites, to be offered while a command is typed.
import QtQuick
import configtools

Item {
    id: root

    required property var cgiManager
    property var recent: []
    property var favourites: []

    readonly property int offered: 8
    readonly property int longestKept: 2048

    /// Up to `offered` commands that hold `text`, the favourites first.
    function matching(text) {
        const wanted = text.trim().toLowerCase();
        const known = favourites.concat(recent.filter(command => !favourites.includes(command)));
        return known.filter(command => command !== text && command.toLowerCase().includes(wanted)).slice(0, offered);
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
