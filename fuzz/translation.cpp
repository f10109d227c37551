#include "app/translationfile.h"
#include "fuzz/input.h"

#include <QTranslator>

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    fuzz::disableLogging();
    const fuzz::InputFile file(QStringLiteral("en_US.qm"), fuzz::bytesOf(data, size));
    QTranslator translator;
    if (!loadTranslation(translator, file.path()))
        return 0;
    // The strings of the seeds: Qt reads the rest of a file only for a string that the file contains.
    for (const char *comment : {static_cast<const char *>(nullptr), "of a menu"}) {
        for (const int count : {-1, 0, 1, 7}) {
            static_cast<void>(translator.translate("Page", "text", comment, count));
            static_cast<void>(translator.translate("Page", "%n devices", comment, count));
        }
    }
    return 0;
}
