#include "favourites/author.h"
#include "fuzz/input.h"

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    fuzz::disableLogging();
    const fuzz::InputFile file(QStringLiteral("a.json"), fuzz::bytesOf(data, size));
    const CAuthor author;
    const QVariantMap favourites = author.readJsonFilesFromFolder(file.folder());
    for (const QVariant &favourite : favourites) {
        constexpr int passwordIndex = 4;
        static_cast<void>(author.AesDecrypt(favourite.toStringList().value(passwordIndex)));
    }
    return 0;
}
