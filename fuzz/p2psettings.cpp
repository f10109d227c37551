#include "device/registry/p2pports.h"
#include "fuzz/input.h"

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    fuzz::disableLogging();
    const fuzz::InputFile file(QStringLiteral("p2p.ini"), fuzz::bytesOf(data, size));
    static_cast<void>(P2PSettings::read(file.path()));
    return 0;
}
