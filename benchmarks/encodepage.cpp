#include "benchmarks/measurements.h"

#include "device/dh/devicedh.h"
#include "device/registry/devicefactory.h"
#include "device/store/devicestore.h"
#include "sdk/clock.h"
#include "sdk/demo/demosite.h"

namespace {

constexpr int runs = 101;

/// Every key that the page reads.
const QStringList &pageKeys()
{
    static const QStringList keys = [] {
        QStringList all = {QStringLiteral("channelNum"), QStringLiteral("curChannel"),
                           QStringLiteral("curStreamType"), QStringLiteral("subVideoEnable")};
        for (const char *key : {"allStreamType", "encodeMode", "curEncodeMode", "bitstreamControl",
                                "audioEnable", "audioCompression", "curAudioCompression", "samplingFrequency",
                                "curSamplingFrequency", "resolution", "curResolution", "frameRateMax",
                                "frameRate", "quality", "bitStream", "curBitStream"}) {
            QString name = QString::fromLatin1(key);
            all.append(name);
            name[0] = name.at(0).toUpper();
            all.append(QStringLiteral("sub") + name);
        }
        return all;
    }();
    return keys;
}

} // namespace

BenchmarkResult measureEncodePage()
{
    const auto clock = std::make_shared<sdk::SystemClock>();
    const auto site = sdk::demo::DemoSite::open(QStringLiteral("office"), clock, nullptr);
    const auto store = std::make_shared<DeviceStore>(clock);
    CDeviceFactory factory({{QStringLiteral("dh"), [&] {
                                 return std::make_shared<CDeviceDH>(store, site->libraries(),
                                                                    [] { return SearchSettings(); });
                             }}});
    const QString family = QStringLiteral("dh");
    factory.findAndLoginDevice(family, QStringLiteral("192.168.1.120:8800"), QStringLiteral("admin"),
                               QStringLiteral("Office-2024"));
    factory.getEncodeCaps(family);
    return {.subject = QStringLiteral("values of the complete encode page"),
            .value = medianMilliseconds(runs,
                                        [&] {
                                            for (const QString &key : pageKeys())
                                                factory.getConfigData(family, key);
                                        }),
            .unit = QStringLiteral("ms"),
            .budget = 2,
            .peer = {},
            .largestRatio = {},
            .peerName = {}};
}
