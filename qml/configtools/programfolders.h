// Folders of the user's files that QML uses.
#pragma once

#include <QObject>
#include <QtQml/qqmlregistration.h>

/// Local paths of folders of ApplicationFolders, which QML cannot use itself, with a trailing "/". A folder
/// need not exist.
class ProgramFolders : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(QString favourites READ favourites CONSTANT)
public:
    explicit ProgramFolders(QObject *parent = nullptr);

    [[nodiscard]] QString favourites() const; ///< the folder of the saved devices
};
