// Creates its component on first use: many runs never show a page or dialog. A page is created when this loader becomes
// visible. The loader of a dialog has `visible: false`, and instance() creates the dialog. The object remains until the
// loader is destroyed. `item` is null before the first use.
import QtQuick

Loader {
    /// The component's object, created if necessary.
    function instance() {
        active = true;
        return item;
    }

    active: false
    onVisibleChanged: if (visible) active = true
}
