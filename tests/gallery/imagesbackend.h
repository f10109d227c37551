// A back end whose devices deliver images of one colour, without a network.
#pragma once

#include "tests/device/rowsbackend.h"

#include <QDir>
#include <QHash>
#include <QImage>

#include <condition_variable>
#include <mutex>

/// A back end with the device list of RowsBackEnd and steps that save images. The steps run on the threads of
/// batches; the other functions are called on the main thread.
class ImagesBackEnd : public RowsBackEnd
{
    Q_OBJECT
public:
    /// The behaviour of a device.
    struct Device
    {
        /// Names of its channels (video inputs); a channel with an empty name has no camera and no image.
        QStringList channels = {QStringLiteral("A")};
        int channelCount = 1; ///< the number of channels that the device reports; may be larger
        int result = 0;       ///< LoginResult of its login; other than 0: no image is saved
        bool waits = false;   ///< its steps block until release() or a stop of the batch
    };

    /// "address:port" of the device with this number, the last byte of its address.
    static QString ipportOf(int number) { return QStringLiteral("192.168.1.%1:37777").arg(number); }

    /// Adds a device with the number `number`, and its row.
    void addDevice(int number, const QString &name, const Device &device)
    {
        add({.address = QStringLiteral("192.168.1.%1").arg(number).toStdString(),
             .mac = numberedMac(number),
             .name = name.toStdString()});
        const std::lock_guard lock(m_mutex);
        m_devices.insert(ipportOf(number), device);
    }
    /// Replaces the behaviour of a device, for steps that start later.
    void change(int number, const Device &device)
    {
        const std::lock_guard lock(m_mutex);
        m_devices.insert(ipportOf(number), device);
    }
    /// Ends the wait of all devices, also of later steps.
    void release()
    {
        const std::lock_guard lock(m_mutex);
        m_isReleased = true;
        m_changed.notify_all();
    }
    /// The steps that were run, in the order of their start, as "address:port channel": the channel (from 0)
    /// whose image was ordered, or -1 for all channels. Removes them.
    [[nodiscard]] QStringList takeOrders()
    {
        const std::lock_guard lock(m_mutex);
        return std::exchange(m_orders, {});
    }
    /// The largest number of steps that were running at the same time.
    [[nodiscard]] int mostParallel()
    {
        const std::lock_guard lock(m_mutex);
        return m_mostParallel;
    }

    /// The IPv4 row with this name (its key); empty if there is none.
    QJsonObject deviceRow(const QString &name) override
    {
        for (const QVariant &row : std::as_const(ipv4)) {
            if (rowName(row.toJsonObject()) == name)
                return row.toJsonObject();
        }
        return {};
    }

    /// A step that saves an image of 960 x 540 pixels as "<channel>.jpg" for each ordered channel.
    DeviceStep imageStep(const ImageOrder &order) override
    {
        return [this, order](const StepControl &control) {
            Device device;
            {
                std::unique_lock lock(m_mutex);
                device = m_devices.value(order.ipport);
                m_orders.append(QStringLiteral("%1 %2").arg(order.ipport).arg(order.onlyChannel));
                m_mostParallel = std::max(m_mostParallel, ++m_running);
                while (device.waits && !m_isReleased && !control.isStopped())
                    m_changed.wait_for(lock, std::chrono::milliseconds(5));
            }
            const StepOutcome outcome = perform(order, device, control);
            const std::lock_guard lock(m_mutex);
            --m_running;
            return outcome;
        };
    }

private:
    static StepOutcome perform(const ImageOrder &order, const Device &device, const StepControl &control)
    {
        if (device.result != 0)
            return {.result = device.result, .text = {}};
        if (device.waits && control.isStopped())
            return {.result = resultCode(LoginResult::NotDone), .text = {}};
        QVariantList found;
        for (int channel = 0; channel < device.channels.size(); ++channel)
            found.append(QVariantMap{
                {"channel", channel}, {"name", device.channels.at(channel)}, {"connected", true}});
        if (order.onlyChannel < 0)
            order.found(found, device.channelCount);
        for (int channel = 0; channel < device.channels.size(); ++channel) {
            if (order.onlyChannel >= 0 && channel != order.onlyChannel)
                continue;
            if (device.channels.at(channel).isEmpty()) {
                order.taken(channel, {}, QStringLiteral("no camera"));
                continue;
            }
            QImage image(960, 540, QImage::Format_RGB32);
            image.fill(QColor::fromHsv(channel * 40 % 360, 200, 200));
            const QString path = QStringLiteral("%1/%2.jpg").arg(order.folder).arg(channel);
            QDir().mkpath(order.folder);
            image.save(path);
            order.taken(channel, path, {});
        }
        return {};
    }

    std::mutex m_mutex;
    std::condition_variable m_changed;
    QHash<QString, Device> m_devices;
    QStringList m_orders;
    int m_running = 0;
    int m_mostParallel = 0;
    bool m_isReleased = false;
};

/// A factory whose back end "dh" is an ImagesBackEnd.
struct ImagesFactory
{
    std::shared_ptr<ImagesBackEnd> devices = std::make_shared<ImagesBackEnd>();
    CDeviceFactory factory{{{QStringLiteral("dh"), [this] {
                                 return devices;
                             }}}};

    /// The IPv4 rows as maps by column, with the key "identity", as a table of QML has them.
    [[nodiscard]] QVariantList rows() const
    {
        QVariantList rows;
        for (const QVariant &value : std::as_const(devices->ipv4)) {
            QVariantMap row = value.toJsonObject().toVariantMap();
            row.insert(QStringLiteral("identity"), rowName(value.toJsonObject()));
            rows.append(row);
        }
        return rows;
    }
};
