#include "sdk/demo/search/responseplan.h"

#include "sdk/demo/site/sitestate.h"

#include <algorithm>

namespace sdk::demo {

namespace {

bool responseKinds(const SceneDevice &device, SearchKind kind, std::int64_t start)
{
    return !device.isRemote && device.isListening(start) &&
           (kind == SearchKind::Second || device.knowsFirstSearch);
}

void plan(std::vector<PlannedResponse> &responses, const SceneDevice &device, int ipVersion,
          std::int64_t start)
{
    std::int64_t time = start + device.latency.count();
    if (const std::optional<FaultSetting> late = device.fault(Fault::LateAnswer))
        time += late->number;
    responses.push_back({time, device.mac, ipVersion});
    if (device.hasFault(Fault::AnswerTwice))
        responses.push_back({time, device.mac, ipVersion});
}

/// Devices of the same latency keep the order of the scene.
void sortByTime(std::vector<PlannedResponse> &responses)
{
    std::stable_sort(
        responses.begin(), responses.end(),
        [](const PlannedResponse &left, const PlannedResponse &right) { return left.time < right.time; });
}

} // namespace

std::vector<PlannedResponse> planLocalSearch(const SiteState &site, SearchKind kind, std::int64_t start)
{
    std::vector<PlannedResponse> responses;
    site.forEachDevice([&](const SceneDevice &device) {
        if (device.inOtherSegment || !responseKinds(device, kind, start))
            return;
        if (!device.address.isEmpty())
            plan(responses, device, 4, start);
        if (!device.ipv6.isEmpty())
            plan(responses, device, 6, start);
    });
    sortByTime(responses);
    return responses;
}

std::vector<PlannedResponse> planAddressSearch(const SiteState &site, SearchKind kind,
                                               const QSet<QString> &addresses, std::int64_t start,
                                               std::int64_t end)
{
    std::vector<PlannedResponse> responses;
    site.forEachDeviceAt(addresses.values(), [&](const SceneDevice &device) {
        if (!responseKinds(device, kind, start))
            return;
        // A device without an address receives no packets.
        if (device.address != QLatin1String("0.0.0.0") && addresses.contains(device.address))
            plan(responses, device, 4, start);
        if (addresses.contains(device.ipv6))
            plan(responses, device, 6, start);
    });
    std::erase_if(responses, [end](const PlannedResponse &response) { return response.time > end; });
    sortByTime(responses);
    return responses;
}

} // namespace sdk::demo
