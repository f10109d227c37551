#pragma once

#include "device/search/searchrange.h"
#include "sdk/sdklibraries.h"

#include <QList>
#include <QObject>

#include <atomic>
#include <memory>
#include <mutex>
#include <stop_token>

class DeviceStore;
template<typename T>
class QFuture;

/// Finds the devices of the local segment and of a range of addresses. Each search is one task on the global
/// thread pool. Responses arrive on threads of the network library and are written to the store directly.
///
/// Lives on the main thread. Signals are emitted on the task's thread and on threads of the library.
class DeviceSearch : public QObject
{
    Q_OBJECT
public:
    DeviceSearch(std::shared_ptr<DeviceStore> store, sdk::SdkLibraries libraries);

    /// Stops running searches and waits for their tasks.
    ~DeviceSearch() override;

    /// Stops running searches at their next step, without waiting. Found devices are kept and each search
    /// emits done(). A running query of addresses (up to 3 s) is not interrupted.
    void stop();

    /// Same, and no later search runs. An emission of limited(), progressed() or done() that has begun
    /// completes, later ones are omitted; late responses may still emit rowsAdded() and counted(). The
    /// receivers must therefore exist until the destructor has returned.
    void requestStop();

    /// Sets the range of the next start() only.
    void setRange(SearchRange range);

    /// Starts a search of the range and, with `localSegment`, of the local segment before it. Returns
    /// immediately; the task clears the store first. Without a network library, nothing is found. A search
    /// that is still running continues: both fill the same store.
    void start(bool localSegment);

Q_SIGNALS:
    /// Rows were added or removed. Emitted at the begin and the end of a search, and at most once a second
    /// between them.
    void rowsAdded();
    void counted(int ipv4Rows);          ///< number of IPv4 rows found so far
    void limited(int rows, int leftOut); ///< at the end: `leftOut` responses exceeded the limit of `rows`
    void progressed(int percent);        ///< elapsed share of the search time, 0 to 100
    void done();                         ///< the last signal of a search

private:
    class Progress;

    void run(bool localSegment, const SearchRange &range, const std::stop_token &stop);
    void searchLocalSegment(const std::stop_token &stop, Progress &progress);
    void searchRange(const SearchRange &addresses, const std::stop_token &stop, Progress &progress);
    void keepHandle(std::int64_t handle);
    void stopHandles();
    void handleResponse(const sdk::SearchResponse &response);
    static void responseHandler(std::int64_t searchHandle, const sdk::SearchResponse *response, void *user);

    const std::shared_ptr<DeviceStore> m_store;
    const sdk::SdkLibraries m_libraries;
    std::atomic<bool> m_isEnding = false; ///< set by requestStop()
    std::stop_source m_stop;              ///< of the running searches
    QList<QFuture<void>> m_searches;
    SearchRange m_range; ///< of the next search

    std::mutex m_mutex;            ///< guards m_handles, which all running searches use
    QList<std::int64_t> m_handles; ///< running local searches
};
