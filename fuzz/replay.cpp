// Passes the files of a folder to a reader, one after another: inputs that have broken it, and valid ones.
#include "fuzz/input.h"

#include <QDir>

#include <cstdio>

int main(int argc, char **argv)
{
    const QDir folder(argc == 2 ? QFile::decodeName(argv[1]) : QString());
    const QStringList names = argc == 2 ? folder.entryList(QDir::Files, QDir::Name) : QStringList();
    if (names.isEmpty()) {
        std::fputs("usage: fuzz_NAME FOLDER_OF_INPUTS\n", stderr);
        return 2;
    }
    for (const QString &name : names) {
        QFile file(folder.filePath(name));
        if (!file.open(QIODevice::ReadOnly)) {
            std::fprintf(stderr, "cannot read %s\n", qUtf8Printable(file.fileName()));
            return 1;
        }
        const QByteArray bytes = file.readAll();
        std::printf("%s\n", qUtf8Printable(name));
        std::fflush(stdout); // the last printed name is the input that broke the reader
        LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t *>(bytes.constData()),
                               static_cast<std::size_t>(bytes.size()));
    }
    return 0;
}
