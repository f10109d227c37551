#include "device/dh/lists/xmldevicelist.h"
#include "fuzz/input.h"
#include "fuzz/lists.h"

#include <QBuffer>

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    fuzz::disableLogging();
    QByteArray bytes = fuzz::bytesOf(data, size);
    QBuffer file(&bytes);
    file.open(QIODevice::ReadOnly);
    const DeviceListContents contents = readXml(file);
    fuzz::useList(contents);
    static_cast<void>(xmlOf(contents.lines));
    return 0;
}
