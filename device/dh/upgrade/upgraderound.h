// The upgrades that run, and what the rows, the documents and the window get of them.
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

/// Shows in the rows how far each upgrade is, and in the documents that upgrades came from. Lives on the
/// scene's thread.
class UpgradeRound
{
public:
    UpgradeRound(std::shared_ptr<DeviceStore> store, const sdk::SdkLibraries &libraries,
                 const UpgradeLimits &limits, const std::shared_ptr<BatchEngine> &engine,
                 BackEndSignals &backEndSignals);

    /// Waits for the documents that are written.
    ~UpgradeRound();
    UpgradeRound(const UpgradeRound &) = delete;
    UpgradeRound &operator=(const UpgradeRound &) = delete;

    [[nodiscard]] UpgradeRunner &runner() { return *m_runner; }
    [[nodiscard]] UpgradeDocuments &documents() { return m_documents; }
    [[nodiscard]] const UpgradeDocuments &documents() const { return m_documents; }

    /// Whether devices are upgraded, or documents of them are written.
    [[nodiscard]] bool isOpen() const { return m_runner->isUpgrading() || m_documents.hasOpen(); }

    /// Whether a device at this address, or of the row of this name, is being upgraded. Any thread.
    [[nodiscard]] bool isUpgradingAt(const QString &ipport) const;

    /// The same for a row's name alone. Any thread.
    [[nodiscard]] bool isUpgrading(const QString &name) const { return m_runner->isUpgrading(name); }

    /// The names of the rows that have changed since the last call. Any thread.
    [[nodiscard]] QStringList takeChanged();

    /// Emits how far the documents are.
    void noteDocuments();

    /// Emits the signals that follow the begin of a document's lines.
    void noteDocumentsBegun();

    /// Nothing begins any more, and what is not done is given up. Does not wait for it.
    void requestEnd() { m_runner->requestEnd(); }

    /// The same, and waits for what is given up, but not for a device that does not answer.
    void end() { m_runner->end(); }

    /// Blocks until no document is being written.
    void waitForDocuments() { m_documentFiles.waitForDone(); }

private:
    /// On any thread.
    void note(const UpgradeOrder &order, const UpgradeState &state);
    /// Emits how far the upgrades are, once however often it is called before. On any thread.
    void noteSchedule();
    void noteEnd();
    /// See UpgradeDocuments::Writer.
    void writeDocument(const std::function<void()> &write, const std::function<void()> &written);

    const std::shared_ptr<DeviceStore> m_store;
    BackEndSignals &m_signals;
    QThreadPool m_documentFiles; ///< one thread, which writes documents
    UpgradeDocuments m_documents;
    bool m_isEndHeldBack = false; ///< documents of the round are still written
    std::mutex m_changedMutex;
    QSet<QString> m_changed; ///< names of rows; any thread
    std::atomic<bool> m_scheduleNoted = false;
    const std::unique_ptr<UpgradeRunner> m_runner; ///< its threads use what stands before
};
