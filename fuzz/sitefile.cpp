#include "device/sites/sitefile.h"
#include "fuzz/input.h"

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    fuzz::disableLogging();
    const SiteFile::Contents contents = SiteFile::read(fuzz::bytesOf(data, size));
    if (!contents.refusal.isEmpty() && !contents.site.devices.isEmpty())
        qFatal("a refused site has devices");
    if (contents.refusal.isEmpty() && !SiteFile::read(SiteFile::text(contents.site)).refusal.isEmpty())
        qFatal("a written site cannot be read");
    return 0;
}
