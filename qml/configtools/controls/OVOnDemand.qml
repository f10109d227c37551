// Creates its component on first use: many runs never show a page or dialog. The owner sets `visible: false`. A page is
// created when its layout makes the loader visible, a dialog by instance(). The object remains until the loader is
// destroyed. `item` is null before the first use.
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
