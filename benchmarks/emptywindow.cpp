// An empty window of Qt, with the same type of application object and graphics interface as the application.
#include <QApplication>
#include <QQmlApplicationEngine>
#include <QQuickWindow>

#include <cstdio>

int main(int argc, char *argv[])
{
    const QApplication application(argc, argv);
    QQuickWindow::setGraphicsApi(QSGRendererInterface::OpenGL);
    QQmlApplicationEngine engine;
    engine.loadData("import QtQuick\nWindow { width: 1280; height: 720; visible: true }");
    auto *window = qobject_cast<QQuickWindow *>(engine.rootObjects().value(0));
    QObject::connect(window, &QQuickWindow::frameSwapped, window, [] {
        std::fputs("first frame\n", stderr);
        QCoreApplication::quit();
    });
    return QApplication::exec();
}
