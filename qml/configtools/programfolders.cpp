#include "programfolders.h"

#include <QCoreApplication>

ProgramFolders::ProgramFolders(QObject *parent) : QObject(parent) {}

QString ProgramFolders::favourites() const
{
    return QCoreApplication::applicationDirPath() + QStringLiteral("/fav/");
}
