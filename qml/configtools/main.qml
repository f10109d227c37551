// The root object, which app/ loads: the main window, shown.
import configtools

MainWindow {
    visible: true
}
