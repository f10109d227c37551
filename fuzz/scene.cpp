#include "fuzz/input.h"
#include "sdk/demo/scene/scenereader.h"

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    fuzz::beQuiet();
    QString error;
    const auto scene = sdk::demo::SceneReader::read(fuzz::bytesOf(data, size), &error);
    if (scene.has_value() != error.isEmpty())
        qFatal("a refused scene has no reason, or an accepted one has");
    return 0;
}
