#include "app/localconfig.h"

#include <QCoreApplication>
#include <QTemporaryDir>

#include <cstdio>

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const QTemporaryDir directory;
    CLocalConfig localConfig(directory.path());
    std::puts(localConfig.acquireInstanceLock() ? "holding" : "refused");
    std::fflush(stdout);
    return QCoreApplication::exec();
}
