#include "sdk/demo/search/answerplan.h"

#include "sdk/demo/site/sitestate.h"

#include <algorithm>

namespace sdk::demo {

namespace {

bool answersKind(const SceneDevice &device, SearchKind kind, std::int64_t start)
{
    return !device.isRemote && device.isListening(start) &&
           (kind == SearchKind::Second || device.knowsFirstSearch);
}

void plan(std::vector<PlannedAnswer> &answers, const SceneDevice &device, int ipVersion, std::int64_t start)
{
    std::int64_t time = start + device.latency.count();
    if (const std::optional<FaultSetting> late = device.fault(Fault::LateAnswer))
        time += late->number;
    answers.push_back({time, device.mac, ipVersion});
    if (device.hasFault(Fault::AnswerTwice))
        answers.push_back({time, device.mac, ipVersion});
}

/// Devices of the same latency keep the order of the scene.
void sortByTime(std::vector<PlannedAnswer> &answers)
{
    std::stable_sort(
        answers.begin(), answers.end(),
        [](const PlannedAnswer &left, const PlannedAnswer &right) { return left.time < right.time; });
}

} // namespace

std::vector<PlannedAnswer> planLocalSearch(const SiteState &site, SearchKind kind, std::int64_t start)
{
    std::vector<PlannedAnswer> answers;
    site.forEachDevice([&](const SceneDevice &device) {
        if (device.inOtherSegment || !answersKind(device, kind, start))
            return;
        if (!device.address.isEmpty())
            plan(answers, device, 4, start);
        if (!device.ipv6.isEmpty())
            plan(answers, device, 6, start);
    });
    sortByTime(answers);
    return answers;
}

std::vector<PlannedAnswer> planAddressSearch(const SiteState &site, SearchKind kind,
                                             const QSet<QString> &addresses, std::int64_t start,
                                             std::int64_t end)
{
    std::vector<PlannedAnswer> answers;
    site.forEachDeviceAt(addresses.values(), [&](const SceneDevice &device) {
        if (!answersKind(device, kind, start))
            return;
        // A device without an address receives no packets.
        if (device.address != QLatin1String("0.0.0.0") && addresses.contains(device.address))
            plan(answers, device, 4, start);
        if (addresses.contains(device.ipv6))
            plan(answers, device, 6, start);
    });
    std::erase_if(answers, [end](const PlannedAnswer &answer) { return answer.time > end; });
    sortByTime(answers);
    return answers;
}

} // namespace sdk::demo
