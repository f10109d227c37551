// Firmware upgrades of the lines of upgrade documents.
#pragma once

#include "device/dh/upgrade/upgradedocument.h"
#include "device/registry/pagestep.h"
#include "device/registry/upgradeplan.h"

#include <QHash>
#include <QJsonObject>
#include <QList>
#include <QStringList>
#include <QVariantList>

#include <memory>
#include <vector>

class DeviceStore;
class FirmwareFiles;
class UpgradeOrders;
class UpgradeRound;
struct UpgradeOrder;

/// Starts the upgrades of upgrade documents (workbooks). A line is upgraded with the row that has its
/// address and port, from the IPv4 or the IPv6 list; without such a row it is upgraded as well. Paths may be
/// "file:///" URLs. Lives on the main thread; its steps run on any thread.
class DocumentUpgrades
{
public:
    /// The referenced objects must outlive this object, which must outlive its steps.
    DocumentUpgrades(std::shared_ptr<DeviceStore> store, UpgradeRound &round, UpgradeOrders &orders);

    /// The lines as maps with the keys "line", "address", "mac" (name of the row), "file", "version", "code"
    /// (an UpgradeTools::Result, None if the line can be upgraded) and "reason" of ListLineKey; starts
    /// nothing. Sets `refusal` to the reason why the document is refused, in the user's language; empty if it
    /// is not. Blocks for the files.
    [[nodiscard]] QVariantList report(const QString &path, QString &refusal) const;

    /// A step that reads a document without starting upgrades. Its value is a map with the keys of
    /// UpgradeDocumentKey: the reason of a refusal, and the lines of report() with their rows under "device".
    /// After the outcome is taken, the next start() or steps() uses the document that was read, if its file
    /// is unchanged.
    [[nodiscard]] PageStep reading(const QString &path);

    /// Upgrades all lines of these documents; returns after reading the files. A line that cannot be
    /// upgraded gets the reason as its result, and the others are upgraded. The progress signals name a
    /// document by its entry in `paths`; at 100 % its results are written.
    void start(const QStringList &paths);

    /// Steps of start() for the lines with these row numbers in the sheet, in the order of the document. A
    /// line that cannot be upgraded has a step that returns the reason. Other lines of the document keep
    /// their result cells. Empty if the document is refused.
    [[nodiscard]] QList<UpgradeDocumentStep> steps(const QString &path, const QList<int> &lines);

private:
    /// Clears the results of earlier documents, unless documents are open (see UpgradeDocuments::hasOpen()).
    void begin();
    [[nodiscard]] QHash<QString, QJsonObject> rowsByAddress() const;
    /// Adds a document to the round and returns its lines; none if it is refused.
    [[nodiscard]] std::vector<UpgradeDocumentLine> add(const QString &path);
    /// Adds a line of the document added last to the round. Returns why it is not upgraded; None on success.
    [[nodiscard]] UpgradeTools::Result follow(const UpgradeDocumentLine &line, const UpgradeOrder &order,
                                              const QJsonObject &row, FirmwareFiles &files);

    const std::shared_ptr<DeviceStore> m_store;
    UpgradeRound &m_round;
    UpgradeOrders &m_orders;
    std::shared_ptr<OpenedUpgradeDocument> m_opened; ///< read with reading(), for the next add(); may be null
};
