#include "device/search/devicerefresh.h"

#include "device/store/devicerow.h"
#include "device/store/devicestore.h"
#include "sdk/blocktext.h"
#include "sdk/clock.h"
#include "sdk/netlibrary.h"
#include "sdk/threadpriority.h"

#include <QScopeGuard>
#include <QThreadPool>
#include <QtConcurrent>

#include <algorithm>
#include <atomic>
#include <functional>
#include <mutex>
#include <optional>
#include <thread>
#include <utility>
#include <vector>

using namespace std::chrono_literals;

namespace {

constexpr auto refreshAddressesWait = 3000ms;
constexpr const char *anyInterface = "0.0.0.0";

/// Both kinds of request are sent twice: devices restart their network after an address change, and datagrams
/// may be lost.
constexpr int usualAttempts = 4;
constexpr auto refreshStartWait = 1000ms;
constexpr auto refreshListeningTime = 3000ms;

/// Requests in parallel; each blocks for its full timeout.
constexpr std::size_t parallelRequests = 16;

/// The devices of one start() whose rows are not updated yet. Thread-safe.
class WaitingDevices
{
public:
    /// `addresses` by row name.
    explicit WaitingDevices(const QHash<QString, QString> &addresses) : m_addresses(addresses) {}

    [[nodiscard]] std::vector<sdk::SearchByAddressesRequest> requests() const
    {
        const std::scoped_lock lock(m_mutex);
        std::vector<sdk::SearchByAddressesRequest> requests;
        for (const QString &address : m_addresses) {
            if (address.isEmpty())
                continue;
            if (requests.empty() || requests.back().count == sdk::maximumSearchAddresses)
                requests.push_back(
                    {.size = sizeof(sdk::SearchByAddressesRequest), .count = 0, .addresses = {}});
            sdk::SearchByAddressesRequest &request = requests.back();
            sdk::setBlockText(request.addresses[static_cast<std::size_t>(request.count++)],
                              address.toLocal8Bit().toStdString());
        }
        return requests;
    }

    /// The address of a waiting device's row, empty if unknown; nullopt if the device is not waiting.
    [[nodiscard]] std::optional<QString> addressOf(const QString &name) const
    {
        const std::scoped_lock lock(m_mutex);
        const auto found = m_addresses.constFind(name);
        return found == m_addresses.cend() ? std::nullopt : std::optional(*found);
    }

    [[nodiscard]] bool isEmpty() const
    {
        const std::scoped_lock lock(m_mutex);
        return m_addresses.isEmpty();
    }

    void remove(const QString &name)
    {
        const std::scoped_lock lock(m_mutex);
        m_addresses.remove(name);
    }

private:
    mutable std::mutex m_mutex;
    QHash<QString, QString> m_addresses;
};

struct ResponseReceiver
{
    DeviceStore &store;
    WaitingDevices &waiting;
    std::function<void()> rowChanged;

    static void handle(std::int64_t, const sdk::SearchResponse *response, void *user)
    {
        if (response && response->size == sizeof(*response))
            static_cast<const ResponseReceiver *>(user)->take(*response);
    }

    void take(const sdk::SearchResponse &response) const
    {
        if (!hasIPv4Address(response))
            return;
        const QString name = store.nameOf(response);
        if (name.isEmpty())
            return takeUnlisted(response);
        const std::optional<QString> address = waiting.addressOf(name);
        if (!address || !store.updateRow(name, response, *address))
            return;
        // After initialisation, some devices report the old state for a moment.
        if (isInitialised(response.device))
            waiting.remove(name);
        rowChanged();
    }

    void takeUnlisted(const sdk::SearchResponse &response) const
    {
        for (const QString &name : {macText(response), uuidName(response)}) {
            // A listed device with this UUID is another one, which has another MAC.
            if (name.isEmpty() || !waiting.addressOf(name) || !store.rowNamed(name).isEmpty())
                continue;
            QJsonObject row = ipv4Row(response);
            if (rowName(row) != name)
                row.insert(DeviceRowKey::identity, name);
            store.upsertRow(row, response);
            waiting.remove(name);
            return rowChanged();
        }
    }
};

} // namespace

DeviceRefresh::DeviceRefresh(std::shared_ptr<DeviceStore> store, sdk::SdkLibraries libraries)
    : m_store(std::move(store)), m_libraries(std::move(libraries))
{
}

DeviceRefresh::~DeviceRefresh()
{
    requestStop();
    for (QFuture<void> &task : m_tasks)
        task.waitForFinished();
}

void DeviceRefresh::requestStop()
{
    m_stop.request_stop();
}

QHash<QString, QString> DeviceRefresh::addressesOf(const QStringList &names) const
{
    QHash<QString, QString> devices;
    for (const QString &name : names) {
        const QJsonObject row = m_store->row(name);
        const QString address = rowAddress(row);
        const bool isIPv4 = !row.isEmpty() && !address.contains(QLatin1Char(':'));
        if (isIPv4 && row.value(DeviceRowKey::loginType).toString() != QLatin1String("P2P"))
            devices.insert(name, address);
    }
    return devices;
}

void DeviceRefresh::locate(const QStringList &names, const std::stop_token &stop)
{
    QHash<QString, QString> devices = addressesOf(names);
    for (const QString &name : names) {
        if (m_store->rowNamed(name).isEmpty())
            devices.insert(name, QString());
    }
    if (!devices.isEmpty() && m_libraries.net)
        run(devices, 1, stop);
}

void DeviceRefresh::start(const QStringList &names)
{
    const QHash<QString, QString> devices = addressesOf(names);
    if (devices.isEmpty() || !m_libraries.net)
        return;
    m_tasks.removeIf([](const QFuture<void> &task) { return task.isFinished(); });
    m_tasks.append(QtConcurrent::run([this, devices, stop = m_stop.get_token()] {
        sdk::giveWayToWindow();
        // The task mostly sleeps: its thread does not count against the limit of the pool.
        QThreadPool::globalInstance()->releaseThread();
        const auto takeThreadBack = qScopeGuard([] { QThreadPool::globalInstance()->reserveThread(); });
        run(devices, usualAttempts, stop);
    }));
}

void DeviceRefresh::run(const QHash<QString, QString> &devices, int attempts, const std::stop_token &stop)
{
    sdk::NetLibrary &net = *m_libraries.net;
    WaitingDevices waiting(devices);
    ResponseReceiver receiver{.store = *m_store, .waiting = waiting, .rowChanged = [this] {
                                  Q_EMIT rowsChanged();
                              }};
    for (int attempt = 0; attempt < attempts; ++attempt) {
        const std::vector<sdk::SearchByAddressesRequest> requests = waiting.requests();
        std::atomic<std::size_t> next = 0;
        const auto sendRequests = [&] {
            for (std::size_t index = next++; index < requests.size() && !stop.stop_requested();
                 index = next++) {
                if (attempt % 2 == 0)
                    net.NetSearchDevicesByIPs(requests[index], &ResponseReceiver::handle, &receiver,
                                              anyInterface, refreshAddressesWait);
                else
                    net.NetSearchDevicesByIPsEx(requests[index], &ResponseReceiver::handle, &receiver,
                                                anyInterface, refreshAddressesWait);
            }
        };
        std::vector<std::jthread> others; // joined at the end of the attempt
        for (std::size_t count = 1; count < std::min(requests.size(), parallelRequests); ++count)
            others.emplace_back(sendRequests);
        sendRequests();
    }
    if (waiting.isEmpty() || stop.stop_requested())
        return;

    sdk::SearchParameter local{};
    local.size = sizeof(local);
    local.handler = &ResponseReceiver::handle;
    local.user = &receiver;
    const std::int64_t search = net.NetStartSearchDevices(local, refreshStartWait);
    if (search == 0)
        return;
    m_libraries.clock->wait(refreshListeningTime, stop);
    net.NetStopSearchDevices(search);
}
