// Preview of a batch of firmware upgrades.
#pragma once

#include "device/batch/batchpreview.h"
#include "device/registry/upgradetools.h"

#include <stop_token>

/// The devices that will be upgraded, from rows of the list or from the lines of an upgrade document.
/// "action" of a row is the name of the firmware file with its version. A device that cannot be upgraded with
/// its file is skipped; a device that already has the version is warned. Additional key: "vision", the
/// device's current version. For a document, "num" (int) and "identity" (text) are the number of the line in
/// the file. Lives on the main thread.
class UpgradePreview : public BatchPreview
{
    Q_OBJECT
    Q_PROPERTY(int upgradeCount READ upgradeCount NOTIFY judged)
public:
    explicit UpgradePreview(QObject *parent = nullptr) : BatchPreview(parent) {}
    ~UpgradePreview() override;

    /// The number of checked devices that are not skipped.
    [[nodiscard]] int upgradeCount() const { return checkedCount() - skippedCount(); }

    /// Sets the devices of these rows (names of rows), each with the file in its row, all of them checked. No
    /// devices without a factory.
    Q_INVOKABLE void setIdentities(const QStringList &identities);

    /// Reads the upgrade document at `path` (a path or "file:///" URL) on a thread of the back end and
    /// returns immediately. Then sets the devices of its lines, all of them checked, and emits
    /// documentRead(). A later setIdentities() or readDocument() and the destructor cancel it. Does nothing
    /// without a factory.
    Q_INVOKABLE void readDocument(const QString &path);

Q_SIGNALS:
    /// The document of readDocument() was read. `refusal` is the reason why there are no devices, in the
    /// user's language; empty on success.
    void documentRead(const QString &refusal);

protected:
    [[nodiscard]] Judgement judgementOf(int row) const override;
    [[nodiscard]] QVariantMap valuesOf(int row) const override;

private:
    /// Planned upgrade of a row.
    struct Upgrade
    {
        QString device;                   ///< current version of the device
        QString file;                     ///< name without folder
        QString version;                  ///< of the file; empty if unknown
        int refusal = UpgradeTools::None; ///< UpgradeTools::Result: why it is skipped; None if it is not
        int line = 0;                     ///< of a document; 0 for a row
    };

    void takeDocument(const QVariantMap &document);
    void endReading();
    [[nodiscard]] QString identityAt(int row) const;

    QHash<QString, Upgrade> m_upgrades; ///< by identity
    std::stop_source m_reading;         ///< stops the reading of a document
    int m_work = 0;                     ///< id of the reading in BusyState; 0 while not reading
};
