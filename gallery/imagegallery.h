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

/// A list with a cell and an image for each channel of several devices of the back end "dh". Batches fetch
/// the images and store them in files of a temporary folder, which is removed with the devices. Batches run
/// as many devices at the same time as the user has set. A device has one cell until its channels are known.
///
/// The properties deviceFactory and batches must be set before show(). Lives on the main thread.
class ImageGallery : public QAbstractListModel
{
    Q_OBJECT
    Q_MOC_INCLUDE("device/batch/batches.h")
    Q_MOC_INCLUDE("device/registry/devicefactory.h")
    Q_PROPERTY(
        CDeviceFactory *deviceFactory READ deviceFactory WRITE setDeviceFactory NOTIFY deviceFactoryChanged)
    Q_PROPERTY(Batches *batches READ batches WRITE setBatches NOTIFY batchesChanged)
    /// The running batch of the gallery; null without one. Batches owns it.
    Q_PROPERTY(Batch *batch READ batch NOTIFY batchChanged)
    Q_PROPERTY(int count READ rowCount NOTIFY countsChanged)
    Q_PROPERTY(int deviceCount READ deviceCount NOTIFY countsChanged)
    Q_PROPERTY(int leftOut READ leftOut NOTIFY countsChanged)
    Q_PROPERTY(int images READ images NOTIFY countsChanged)
    Q_PROPERTY(int failures READ failures NOTIFY countsChanged)
    Q_PROPERTY(bool saving READ isSaving NOTIFY savingChanged)
public:
    /// The maximum number of devices; further ones are omitted and counted by leftOut().
    static constexpr int maximumDevices = 500;

    enum State
    {
        Waiting,  ///< the turn of the cell has not come, or no batch has been started
        Fetching, ///< the image is requested
        Taken,    ///< the cell has an image; it is the older one if a stopped batch did not request another
        Failed,   ///< the cell has no image; "message" has the reason
        Skipped,  ///< as Failed, but no request was sent because of the state of the device
    };
    Q_ENUM(State)

    enum Role
    {
        IpportRole = Qt::UserRole, ///< "ipport"
        DeviceRole,                ///< "device": its name, otherwise its model, otherwise address and port
        ChannelRole,               ///< "channel", from 0
        NameRole,                  ///< "name" of the channel; empty while the device has only one
        StateRole,                 ///< "stage": a State
        ImageRole,                 ///< "image": URL of the file, of the older one during a repetition
        MessageRole,               ///< "message": reason of a missing image, in the user's language
        TimeRole,                  ///< "takenAt": local "HH:mm:ss"; empty without an image
        /// "note": the numbers of channels and of cells, in the user's language, in the last cell of a device
        /// with omitted channels; otherwise empty.
        NoteRole,
    };

    explicit ImageGallery(QObject *parent = nullptr);

    /// Cancels the batch without waiting for its steps, and waits for saveAll().
    ~ImageGallery() override;

    [[nodiscard]] CDeviceFactory *deviceFactory() const;
    void setDeviceFactory(CDeviceFactory *deviceFactory);
    [[nodiscard]] Batches *batches() const;
    void setBatches(Batches *batches);
    [[nodiscard]] Batch *batch() const { return m_batch; }

    [[nodiscard]] int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

    [[nodiscard]] int deviceCount() const { return m_deviceCount; } ///< devices with cells
    [[nodiscard]] int leftOut() const { return m_leftOut; }         ///< devices beyond maximumDevices
    [[nodiscard]] int images() const { return m_images; }           ///< number of cells with an image
    [[nodiscard]] int failures() const { return m_failures; }       ///< number of cells in the state Failed
    [[nodiscard]] bool isSaving() const { return m_isSaving; }      ///< saveAll() has begun and not ended

    /// Calls clear(), adds the devices of `rows`, and starts a batch that fetches their images. `rows` are
    /// maps with "identity" (the name of the row), "ipport", "name" and "model". Ignores rows without an
    /// identity, and all but the first row with the same identity. Returns false if the batch does not start,
    /// see fetchAll(); the cells then stay in the state Waiting.
    Q_INVOKABLE bool show(const QVariantList &rows);

    /// Reads the current names and addresses of the devices from the device list. A device that was removed
    /// from the list keeps its name and address.
    Q_INVOKABLE void readDevices();

    /// Sets the displayed name of a channel (from 0) of the device at `ipport`; nothing is sent to the
    /// device. Ignored for a device with one cell.
    Q_INVOKABLE void renameChannel(const QString &ipport, int channel, const QString &name);

    /// Starts a batch that fetches the images of all devices again. Returns false and changes nothing if
    /// deviceFactory or batches is not set, if there are no devices, if a batch of the gallery is running, or
    /// if Batches::start() refuses the batch, for example while a batch of another page is running.
    Q_INVOKABLE bool fetchAll();

    /// Starts a batch that fetches the image of a cell again. For a device with one cell it fetches the
    /// images of all its channels. Returns false if `row` is invalid, and as fetchAll() does.
    Q_INVOKABLE bool fetch(int row);

    /// Cancels the batch and returns before its end. At the end of the batch, cells whose images were not
    /// requested have the state Taken if they have an older image, otherwise Failed.
    Q_INVOKABLE void stop();

    /// Cancels the batch, and removes the devices and their images. The steps that are still running have no
    /// effect on the gallery, but the next batch may be refused until they have ended.
    Q_INVOKABLE void clear();

    /// Writes the images as "<device>/<channel>.jpg" in ApplicationFolders::snapshots(), on a separate
    /// thread. <device> is address and port with "_" for special characters, <channel> counts from 0.
    /// Existing files are replaced. Emits saved() at the end. No effect without images or a device factory,
    /// or while saving.
    Q_INVOKABLE void saveAll();

    /// The values of the cell at `row` (from 0) by role name; empty for an invalid row.
    Q_INVOKABLE [[nodiscard]] QVariantMap get(int row) const;

    /// The devices in their order, as maps with "ipport" and "name" (the text of DeviceRole).
    Q_INVOKABLE [[nodiscard]] QVariantList devices() const;

Q_SIGNALS:
    void deviceFactoryChanged();
    void batchesChanged();
    void batchChanged();
    void countsChanged();
    void savingChanged();

    /// Emitted at the end of saveAll(): number of written files, number of files that could not be written,
    /// path of the folder of snapshots, and the reason of the first failure (text of the system, or in the
    /// user's language for a folder that cannot be created), empty without one.
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
