// A window with QML of the application, for tests of single components.
#pragma once

#include <QHash>
#include <QQmlComponent>
#include <QQmlContext>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QSignalSpy>
#include <QTest>
#include <QtQml/QQmlExtensionPlugin>

#include <memory>

Q_IMPORT_QML_PLUGIN(AuthorPlugin)
Q_IMPORT_QML_PLUGIN(DateTimeValidatorPlugin)
Q_IMPORT_QML_PLUGIN(VideoItemPlugin)
Q_IMPORT_QML_PLUGIN(configtoolsPlugin)

/// Opens a window with the QML `content`, drawn without OpenGL. QML accesses `objects` by name; the caller
/// keeps ownership. Null on failure, with a warning.
inline std::unique_ptr<QQuickWindow> openScene(QQmlEngine &engine, const QByteArray &content,
                                               const QHash<QString, QObject *> &objects = {})
{
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    engine.addImportPath(QStringLiteral("qrc:/qt/qml"));
    for (auto object = objects.cbegin(); object != objects.cend(); ++object)
        engine.rootContext()->setContextProperty(object.key(), object.value());
    QQmlComponent component(&engine);
    component.setData("import QtQuick\nimport QtQuick.Templates as T\nimport configtools\n"
                      "T.ApplicationWindow {\n" +
                          content + "}\n",
                      QUrl(QStringLiteral("qrc:/test.qml")));
    std::unique_ptr<QQuickWindow> window(qobject_cast<QQuickWindow *>(component.create()));
    if (!window)
        qWarning().noquote() << component.errorString();
    return window;
}

enum class Sight
{
    Any,
    Visible
};

/// The first item below `item` with this object name, or the first visible one; null if there is none.
inline QQuickItem *findBelow(QQuickItem *item, const QString &name, Sight sight)
{
    if (sight == Sight::Visible && !item->isVisible())
        return nullptr;
    if (item->objectName() == name)
        return item;
    const QList<QQuickItem *> children = item->childItems();
    for (QQuickItem *child : children) {
        if (QQuickItem *found = findBelow(child, name, sight))
            return found;
    }
    return nullptr;
}
