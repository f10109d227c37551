// Images of many devices for QML.
#pragma once

#include "device/batch/batch.h"

#include <QAbstractListModel>
#include <QDateTime>
#include <QList>
#include <QPointer>
#include <QThreadPool>
#include <QVariantMap>

#include <functional>
#include <memory>

class Batches;
class CDeviceFactory;
class QTemporaryDir;

/// A list with a cell and an image for each channel of several devices. Batches fetch the images and store
/// them in files of a temporary folder. The settings define the number of simultaneous devices. A device has
/// one cell until its channels are known.
///
/// Lives on the main thread.
class ImageGallery : public QAbstractListModel
{
    Q_OBJECT
    Q_MOC_INCLUDE("device/batch/batches.h")
    Q_MOC_INCLUDE("device/registry/devicefactory.h")
    Q_PROPERTY(
        CDeviceFactory *deviceFactory READ deviceFactory WRITE setDeviceFactory NOTIFY deviceFactoryChanged)
    Q_PROPERTY(Batches *batches READ batches WRITE setBatches NOTIFY batchesChanged)
    /// The running batch; null without one.
    Q_PROPERTY(Batch *batch READ batch NOTIFY batchChanged)
    Q_PROPERTY(int count READ rowCount NOTIFY countsChanged)
    Q_PROPERTY(int deviceCount READ deviceCount NOTIFY countsChanged)
    Q_PROPERTY(int leftOut READ leftOut NOTIFY countsChanged)
    Q_PROPERTY(int images READ images NOTIFY countsChanged)
    Q_PROPERTY(int failures READ failures NOTIFY countsChanged)
    Q_PROPERTY(bool saving READ isSaving NOTIFY savingChanged)
public:
    /// The maximum number of devices; further ones are omitted.
    static constexpr int maximumDevices = 500;

    enum State
    {
        Waiting,
        Fetching,
        Taken,
        Failed,
        Skipped, ///< no request was sent because of the state of its device
    };
    Q_ENUM(State)

    enum Role
    {
        IpportRole = Qt::UserRole, ///< "ipport"
        DeviceRole,                ///< "device": its name, otherwise its model, otherwise address and port
        ChannelRole,               ///< "channel", from 0
        NameRole,                  ///< "name" of the channel; empty while the device has only one
        StateRole,                 ///< "stage": a State
        ImageRole,                 ///< "image": URL of the file, also of an older image; empty without one
        MessageRole,               ///< "message": reason of a missing image, in the user's language
        TimeRole,                  ///< "takenAt": "HH:mm:ss"; empty without an image
        NoteRole,                  ///< "note": omitted channels of the device, in the user's language
    };

    explicit ImageGallery(QObject *parent = nullptr);

    /// Cancels the batch and waits for saveAll().
    ~ImageGallery() override;

    [[nodiscard]] CDeviceFactory *deviceFactory() const;
    void setDeviceFactory(CDeviceFactory *deviceFactory);
    [[nodiscard]] Batches *batches() const;
    void setBatches(Batches *batches);
    [[nodiscard]] Batch *batch() const { return m_batch; }

    [[nodiscard]] int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

    [[nodiscard]] int deviceCount() const { return m_deviceCount; }
    [[nodiscard]] int leftOut() const { return m_leftOut; }   ///< devices beyond maximumDevices
    [[nodiscard]] int images() const { return m_images; }     ///< number of cells with an image
    [[nodiscard]] int failures() const { return m_failures; } ///< number of failed cells
    [[nodiscard]] bool isSaving() const { return m_isSaving; }

    /// Replaces the devices by those of `rows`, maps with the keys of DeviceRowKey and "identity", and
    /// fetches their images. Ignores rows without an identity, or with one that is repeated. Returns false if
    /// the batch is refused or there are no devices; the cells then stay in the waiting state.
    Q_INVOKABLE bool show(const QVariantList &rows);

    /// Reads the current names and addresses of the devices. A device that was removed from the device list
    /// keeps them.
    Q_INVOKABLE void readDevices();

    /// Takes over a new name of a channel (from 0) of the device at `ipport`. Ignored for a device with one
    /// cell.
    Q_INVOKABLE void renameChannel(const QString &ipport, int channel, const QString &name);

    /// Fetches all images again. Returns false if the batch is refused, or if one of the gallery is running.
    Q_INVOKABLE bool fetchAll();

    /// Fetches the image of a cell again, or all images of a device whose channels are unknown. Returns false
    /// if `row` is invalid, and as fetchAll() does.
    Q_INVOKABLE bool fetch(int row);

    /// Cancels the batch. At its end, waiting cells without an image change to the failed state.
    Q_INVOKABLE void stop();

    /// Cancels the batch, and removes the devices and their images.
    Q_INVOKABLE void clear();

    /// Writes the images as "<device>/<channel>.jpg" in the folder of snapshots, on a separate thread.
    /// <device> is address and port with "_" for special characters; existing files are replaced. Emits
    /// saved() at the end; no effect without images, or while saving.
    Q_INVOKABLE void saveAll();

    /// The values of a cell by role name; empty for an invalid row.
    Q_INVOKABLE [[nodiscard]] QVariantMap get(int row) const;

    /// The devices in their order, as maps with "ipport" and "name".
    Q_INVOKABLE [[nodiscard]] QVariantList devices() const;

Q_SIGNALS:
    void deviceFactoryChanged();
    void batchesChanged();
    void batchChanged();
    void countsChanged();
    void savingChanged();

    /// Emitted after saveAll(): number of written files and of failures, path of that folder,
    /// and the error text of the first failure.
    void saved(int files, int failures, const QString &folder, const QString &reason);

private:
    class Mailbox;

    struct Cell
    {
        QString identity; ///< of the device
        QString ipport;
        QString device;
        int channel = 0;
        QString name = {};
        State state = Waiting;
        QString file = {};
        QString message = {};
        QDateTime time = {};
        QString note = {};
    };

    /// The cells of one device.
    struct Range
    {
        int first = 0;
        int count = 0;
    };

    bool start(const QStringList &identities, int onlyChannel);
    [[nodiscard]] DeviceStep stepOf(const BatchDevice &device, int onlyChannel, const QString &folder) const;
    void end();
    [[nodiscard]] Range cellsOf(const QString &identity) const;
    void noteBegun(const QString &identity);
    void setChannels(const QString &identity, const QVariantList &channels, int channelCount);
    void take(const QString &identity, int channel, const QString &file, const QString &message);
    /// Sets the outcome of the device for its cells that are waiting or fetching.
    void finish(const QString &identity, const StepOutcome &outcome);
    void setFetching(const Range &cells);
    void noteChanged(int first, int last);
    void count();

    QPointer<CDeviceFactory> m_deviceFactory; ///< not owned; may be destroyed first
    QPointer<Batches> m_batches;              ///< not owned
    QPointer<Batch> m_batch;                  ///< not owned
    const std::shared_ptr<Mailbox> m_mailbox;
    std::shared_ptr<QTemporaryDir> m_folder; ///< steps keep it until they have ended
    QList<Cell> m_cells;
    QThreadPool m_files; ///< one thread, which writes the snapshots
    int m_round = 0;     ///< increased by each batch and by clear(); updates of earlier rounds are ignored
    int m_deviceCount = 0;
    int m_leftOut = 0;
    int m_images = 0;
    int m_failures = 0;
    bool m_isSaving = false;
};
