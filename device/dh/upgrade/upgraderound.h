// Reports the progress of upgrades to rows, documents and the window.
#pragma once

#include "device/dh/upgrade/upgradedocuments.h"
#include "device/dh/upgrade/upgraderunner.h"
#include "device/registry/backendsignals.h"

#include <QSet>
#include <QStringList>
#include <QThreadPool>

#include <atomic>
#include <functional>
#include <memory>
#include <mutex>

class DeviceStore;

/// Owns the upgrade runner and the upgrade documents. A round is all upgrades from the start of the first one
/// until no upgrade is waiting or running. Writes the progress of upgrades to rows and documents and emits
/// the upgrade signals of the back end. Lives on the main thread; functions for other threads say so.
class UpgradeRound
{
public:
    /// `backEndSignals` must outlive this object.
    UpgradeRound(std::shared_ptr<DeviceStore> store, const sdk::SdkLibraries &libraries,
                 const UpgradeLimits &limits, const std::shared_ptr<BatchEngine> &engine,
                 BackEndSignals &backEndSignals);

    /// Calls end() and waits for documents that are being written. The threads of the engine must have ended
    /// before: a step that still runs uses this object. Queued signals of the back end use it as well, so no
    /// event may be processed between its destruction and that of the back end.
    ~UpgradeRound();
    UpgradeRound(const UpgradeRound &) = delete;
    UpgradeRound &operator=(const UpgradeRound &) = delete;

    [[nodiscard]] UpgradeRunner &runner() { return *m_runner; }
    [[nodiscard]] UpgradeDocuments &documents() { return m_documents; }
    [[nodiscard]] const UpgradeDocuments &documents() const { return m_documents; }

    /// Whether upgrades are waiting or running, or documents are open.
    [[nodiscard]] bool isOpen() const { return m_runner->isUpgrading() || m_documents.hasOpen(); }

    /// Whether a device with this address and port is being upgraded; if several rows have it, whether any
    /// of their devices is. Any thread.
    [[nodiscard]] bool isUpgradingAt(const QString &ipport) const;

    /// Whether the device with this row name is being upgraded. Any thread.
    [[nodiscard]] bool isUpgrading(const QString &name) const { return m_runner->isUpgrading(name); }

    /// Returns the names of the rows that upgrades have changed since the last call. Any thread.
    [[nodiscard]] QStringList takeChanged();

    /// Emits the changed progress of documents and starts the writing of finished ones.
    void noteDocuments();

    /// Called after lines of a document were started: emits the changed progress and rows. Reports the end
    /// of the round later if no upgrade runs, since all lines were refused.
    void noteDocumentsBegun();

    /// Starts no further upgrades, ends the waiting ones and requests the end of the running ones. Does not
    /// wait.
    void requestEnd() { m_runner->requestEnd(); }

    /// requestEnd(), then waits up to half a second for the running upgrades.
    void end() { m_runner->end(); }

    /// Blocks until no document is being written.
    void waitForDocuments() { m_documentFiles.waitForDone(); }

private:
    /// Takes the state of an upgrade. Any thread.
    void note(const UpgradeOrder &order, const UpgradeState &state);
    /// Queues the progress signals; calls before they are emitted are merged. Any thread.
    void noteSchedule();
    /// Reports the end of the round, unless upgrades are running or documents are open.
    void noteEnd();
    /// Runs `write` on the thread of m_documentFiles, then `written` on the main thread.
    void writeDocument(const std::function<void()> &write, const std::function<void()> &written);

    const std::shared_ptr<DeviceStore> m_store;
    BackEndSignals &m_signals;
    QThreadPool m_documentFiles; ///< one thread that writes documents
    UpgradeDocuments m_documents;
    bool m_isEndHeldBack = false; ///< the end of the round is reported after its documents are written
    std::mutex m_changedMutex;
    QSet<QString> m_changed; ///< row names; guarded by m_changedMutex
    std::atomic<bool> m_scheduleNoted = false;
    const std::unique_ptr<UpgradeRunner>
        m_runner; ///< declared last: it reports to the other members until its end
};
