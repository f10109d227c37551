// A window with QML components of the application, for tests of single components.
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

/// Creates a window (T.ApplicationWindow) with the QML `content`, its properties and children, drawn without
/// OpenGL. QtQuick, QtQuick.Templates as T and the module "configtools" are imported. The window is shown if
/// `content` sets "visible: true". QML accesses `objects` by name; the caller keeps ownership. The engine and
/// the objects must outlive the window. Returns null on failure, with a warning.
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
    Any,    ///< also invisible items
    Visible ///< only items that are visible, as are all items around them
};

/// The first item with this object name among `item` and the items below it, in depth-first order; null if
/// there is none.
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
