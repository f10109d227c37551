// The network library's roles on a simulated site.
#pragma once

#include "sdk/demo/internal/answerdelivery.h"
#include "sdk/demo/internal/threaderror.h"
#include "sdk/netlibrary.h"

#include <QJsonObject>

#include <condition_variable>
#include <map>
#include <memory>
#include <mutex>
#include <stop_token>

namespace sdk::demo {

/// Error codes are those of DemoError. Every request, malformed ones too, goes to the site's record.
class DemoNetLibrary : public NetLibrary
{
public:
    /// `site` must outlive the library.
    explicit DemoNetLibrary(DemoSite &site) : m_site(site) {}
    ~DemoNetLibrary() override;

    bool NetInit() override;
    void NetCleanup() override;
    [[nodiscard]] std::uint32_t NetGetLastError() const override;
    std::int64_t NetStartSearchDevices(const SearchParameter &parameter,
                                       std::chrono::milliseconds wait) override;
    std::int64_t NetStartSearchDevicesEx(const SearchParameterEx &parameter,
                                         std::chrono::milliseconds wait) override;
    bool NetSearchDevicesByIPs(const SearchByAddressesRequest &request, SearchAnswerHandler handler,
                               void *user, const char *localAddress, std::chrono::milliseconds wait) override;
    bool NetSearchDevicesByIPsEx(const SearchByAddressesRequest &request, SearchAnswerHandler handler,
                                 void *user, const char *localAddress,
                                 std::chrono::milliseconds wait) override;
    bool NetStopSearchDevices(std::int64_t searchHandle) override;

private:
    class RunningCall;

    void record(const char *operation, const QJsonObject &request = {}) const;
    std::int64_t startLocalSearch(SearchKind kind, AnswerReceiver receiver);
    bool searchAddresses(SearchKind kind, const SearchByAddressesRequest &request, AnswerReceiver receiver,
                         std::chrono::milliseconds wait);
    void endEverything();

    DemoSite &m_site;
    ThreadError m_error;
    std::mutex m_mutex;
    std::condition_variable m_callEnded;
    bool m_isPrepared = false;
    int m_runningCalls = 0;     // calls that may have handlers running, or that are waiting for them
    std::stop_source m_cleanup; // cuts short the calls that began since the last NetInit
    std::int64_t m_lastHandle = 0;
    std::map<std::int64_t, std::unique_ptr<AnswerDelivery>> m_searches;
};

} // namespace sdk::demo
