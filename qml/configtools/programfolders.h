// The folders beside the program that the scene uses.
#pragma once

#include <QObject>
#include <QtQml/qqmlregistration.h>

/// Folders as paths with a "/" at their end. They need not exist.
class ProgramFolders : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(QString favourites READ favourites CONSTANT)
public:
    explicit ProgramFolders(QObject *parent = nullptr);

    [[nodiscard]] QString favourites() const; ///< of saved devices
};
