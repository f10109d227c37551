// Firmware upgrades of the devices of documents.
#pragma once

#include "device/dh/upgrade/upgradedocument.h"
#include "device/registry/scenestep.h"
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

/// A line takes the device of the list that has its address, and goes without a row otherwise. Lives on the
/// scene's thread; its steps run on any other. Paths may be "file:///" addresses.
class DocumentUpgrades
{
public:
    DocumentUpgrades(std::shared_ptr<DeviceStore> store, UpgradeRound &round, UpgradeOrders &orders);

    /// As CDeviceBase::importUpgradeDocument() returns the lines. `refusal` gets why the document is refused
    /// as a whole, in the user's language; an empty text when it is not.
    [[nodiscard]] QVariantList report(const QString &path, QString &refusal) const;

    /// As CDeviceBase::upgradeDocumentReading().
    [[nodiscard]] SceneStep reading(const QString &path);

    /// The signals name each document by its entry of `paths`. Its results are in it at 100 %.
    void start(const QStringList &paths);

    /// Of start(), for those of the lines that have these numbers.
    [[nodiscard]] QList<UpgradeDocumentStep> steps(const QString &path, const QList<int> &lines);

private:
    /// Forgets the results of earlier documents, unless some are still upgraded.
    void begin();
    [[nodiscard]] QHash<QString, QJsonObject> rowsByAddress() const;
    /// Adds a document, and returns its lines, which are followed then; none if it is refused.
    [[nodiscard]] std::vector<UpgradeDocumentLine> add(const QString &path);
    /// Follows a line of the document that was added last. Returns why it is not upgraded, None when it is.
    [[nodiscard]] UpgradeTools::Result follow(const UpgradeDocumentLine &line, const UpgradeOrder &order,
                                              const QJsonObject &row, FirmwareFiles &files);

    const std::shared_ptr<DeviceStore> m_store;
    UpgradeRound &m_round;
    UpgradeOrders &m_orders;
    std::shared_ptr<OpenedUpgradeDocument> m_opened; ///< read and not upgraded; may be null
};
