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

/// Finds the devices of the local segment and of a range of other segments. Each search is one task on the
/// process-wide worker pool; answers arrive on threads of the network library and go straight into the store.
///
/// Lives on the scene's thread. Signals come from the worker and from threads of the library.
class DeviceSearch : public QObject
{
    Q_OBJECT
public:
    DeviceSearch(std::shared_ptr<DeviceStore> store, sdk::SdkLibraries libraries);

    /// Waits for the tasks of running searches, which it ends.
    ~DeviceSearch() override;

    /// Ends running searches at their next step, without waiting for them: what was found stays, and done()
    /// is emitted. The wait for a list of addresses, up to 3 s, is not cut short.
    void stop();

    /// The same, but nothing is emitted any more.
    void requestStop();

    /// The range of the next search that is started, and of that one only.
    void setRange(SearchRange range);

    /// Empties the store and starts a search; `localSegment` tells whether the local segment is searched. A
    /// search that is still running goes on beside it: both fill the same lists.
    void start(bool localSegment);

Q_SIGNALS:
    void rowsAdded();
    void counted(int ipv4Rows);
    void limited(int rows, int leftOut); ///< at the end: `leftOut` answers came after so many rows
    void progressed(int percent);        ///< of the time that a search takes, 0 to 100
    void done();

private:
    class Progress;

    void run(bool localSegment, const SearchRange &range, const std::stop_token &stop);
    void searchLocalSegment(const std::stop_token &stop, Progress &progress);
    void searchRange(const SearchRange &addresses, const std::stop_token &stop, Progress &progress);
    void keepHandle(std::int64_t handle);
    void stopHandles();
    void handleAnswer(const sdk::SearchAnswer &answer);
    static void answerHandler(std::int64_t searchHandle, const sdk::SearchAnswer *answer, void *user);

    const std::shared_ptr<DeviceStore> m_store;
    const sdk::SdkLibraries m_libraries;
    std::atomic<bool> m_isEnding = false; ///< the receivers of the signals are being destroyed
    std::stop_source m_stop;              ///< of the searches that run
    QList<QFuture<void>> m_searches;
    SearchRange m_range; ///< of the next search

    std::mutex m_mutex;            ///< guards what follows, which every running search uses
    QList<std::int64_t> m_handles; ///< running local searches
};
