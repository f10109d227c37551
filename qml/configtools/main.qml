import configtools

MainWindow {
    visible: true
}
