#include "fuzz/input.h"
#include "sdk/demo/scene/scenereader.h"

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    fuzz::disableLogging();
    QString error;
    const auto scene = sdk::demo::SceneReader::read(fuzz::bytesOf(data, size), &error);
    if (scene.has_value() != error.isEmpty())
        qFatal("a refused scene has no error, or an accepted scene has one");
    return 0;
}
