// The record of changes since the start of the application.
#pragma once

#include "report/sitedata.h"

#include <QHash>
#include <QObject>

#include <memory>

class Batch;
class Batches;
class CDeviceFactory;

/// Records each successful change of a device: those of a batch at its end, and those of the configuration
/// pages. Consecutive writes of one setting of one device, such as those of a slider, are one change with the
/// last value. With ImagesBefore::Taken, the image of a device is taken before its image settings change and
/// before its firmware is upgraded. Lives on the main thread.
class VisitChanges : public QObject
{
    Q_OBJECT
public:
    /// Older changes are dropped.
    static constexpr qsizetype maximumChanges = 20000;

    /// Whether images are taken before changes.
    enum class ImagesBefore
    {
        None,
        Taken,
    };

    /// The objects must outlive this object. Must be created before the first batch.
    VisitChanges(CDeviceFactory &factory, Batches &batches, ImagesBefore imagesBefore,
                 QObject *parent = nullptr);

    /// Inserts changes from before the start of the application before those of this object.
    void addEarlier(const QList<VisitChange> &changes) { m_changes = changes + m_changes; }

    /// Oldest first.
    [[nodiscard]] const QList<VisitChange> &changes() const { return m_changes; }
    /// The number of changes that were dropped.
    [[nodiscard]] qsizetype droppedChanges() const { return m_dropped; }
    /// The images from before changes. Never null.
    [[nodiscard]] const std::shared_ptr<BeforeImages> &imagesBefore() const { return m_images; }

private:
    void requestImages(Batches &batches);
    /// Follows the batch that has just started.
    void follow(Batch *batch);
    void recordBatch(const Batch &batch, const QHash<QString, QString> &versionsBefore);
    void recordSetting(const QString &ipport, const QString &setting, int channel, const QString &value);
    void add(const VisitChange &change);
    [[nodiscard]] QString versionOf(const QString &identity) const;

    CDeviceFactory &m_factory;
    const std::shared_ptr<BeforeImages> m_images = std::make_shared<BeforeImages>();
    QList<VisitChange> m_changes;
    qsizetype m_dropped = 0;
};
