#include "programfolders.h"

#include "files/applicationfolders.h"

ProgramFolders::ProgramFolders(QObject *parent) : QObject(parent) {}

QString ProgramFolders::favourites() const
{
    return ApplicationFolders::current().favourites();
}
