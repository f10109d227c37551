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

/// Finds the devices of the local segment and of a range of IPv4 addresses. Each search is one task on the
/// global thread pool. Responses arrive on threads of the network library, which write them to the store.
///
/// Lives on the main thread. rowsAdded() and counted() are emitted on the task's thread and on threads of the
/// library, the other signals on the task's thread.
class DeviceSearch : public QObject
{
    Q_OBJECT
public:
    /// `store` must not be null. With a network library, the clock must not be null either.
    DeviceSearch(std::shared_ptr<DeviceStore> store, sdk::SdkLibraries libraries);

    /// Stops running searches and waits for their tasks.
    ~DeviceSearch() override;

    /// Stops running searches at their next step, without waiting. Found devices stay in the store, and each
    /// search emits done(). A running query of addresses (up to 3 s) is not interrupted. A later start()
    /// starts a search as usual.
    void stop();

    /// For the end of the application. Same as stop(), but the searches do not emit done(), and a later
    /// start() ends after its first step. limited(), progressed() and done() are not emitted after this call,
    /// except an emission that has already begun; rowsAdded() and counted() may still be emitted. The
    /// receivers must therefore exist until the destructor has returned.
    void requestStop();

    /// Sets the range that the next start() searches; later searches have no range unless it is set again.
    /// The range must have passed searchRangeError().
    void setRange(SearchRange range);

    /// Starts a search: first of the local segment (5 s) if `localSegment` is true, then of the range, if one
    /// is set (6 s for each /24 block). Returns immediately; done() reports the end. The task first removes
    /// the rows of the store, except those of DeviceStore::setKept(): they stay and are lost until this
    /// search finds their devices. Without a network library, nothing is found. A search that is
    /// still running continues: both searches fill the same store.
    void start(bool localSegment);

Q_SIGNALS:
    /// Rows were added or removed, or a row has got its MAC. Emitted at the beginning and at the end of a
    /// search, and at most once a second between them.
    void rowsAdded();
    /// Number of IPv4 rows, without kept rows whose devices the search has not found yet. Emitted after each
    /// rowsAdded(), except the one at the beginning.
    void counted(int ipv4Rows);
    /// At the end of a search: `leftOut` responses were dropped because the search had added `rows` rows, the
    /// maximum. Not emitted if none was dropped.
    void limited(int rows, int leftOut);
    void progressed(int percent); ///< elapsed share of the search time, 0 to 100
    void done();                  ///< the last signal of a search, also of a stopped one

private:
    class Progress;

    void run(bool localSegment, const SearchRange &range, const std::stop_token &stop);
    void searchLocalSegment(const std::stop_token &stop, Progress &progress);
    void searchRange(const SearchRange &addresses, const std::stop_token &stop, Progress &progress);
    void keepHandle(std::int64_t handle); ///< 0: the local search could not be started; only logged
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
