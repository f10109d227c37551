// A back end whose devices have the images of a test.
#pragma once

#include "tests/device/rowsbackend.h"

#include <QDir>
#include <QHash>
#include <QImage>

#include <condition_variable>
#include <mutex>

class ImagesBackEnd : public RowsBackEnd
{
    Q_OBJECT
public:
    struct Device
    {
        QStringList channels = {QStringLiteral("A")};
        int channelCount = 1;
        int result = 0;     ///< of the login
        bool waits = false; ///< until release(), after its login
    };

    static QString ipportOf(int number) { return QStringLiteral("192.168.1.%1:37777").arg(number); }

    /// Adds a row and its device.
    void addDevice(int number, const QString &name, const Device &device)
    {
        add({.address = QStringLiteral("192.168.1.%1").arg(number).toStdString(),
             .mac = numberedMac(number),
             .name = name.toStdString()});
        const std::lock_guard lock(m_mutex);
        m_devices.insert(ipportOf(number), device);
    }
    void change(int number, const Device &device)
    {
        const std::lock_guard lock(m_mutex);
        m_devices.insert(ipportOf(number), device);
    }
    void release()
    {
        const std::lock_guard lock(m_mutex);
        m_isReleased = true;
        m_changed.notify_all();
    }
    /// The orders as "address only-channel", in the order of their execution.
    [[nodiscard]] QStringList takeOrders()
    {
        const std::lock_guard lock(m_mutex);
        return std::exchange(m_orders, {});
    }
    [[nodiscard]] int mostParallel()
    {
        const std::lock_guard lock(m_mutex);
        return m_mostParallel;
    }

    QJsonObject deviceRow(const QString &name) override
    {
        for (const QVariant &row : std::as_const(ipv4)) {
            if (rowName(row.toJsonObject()) == name)
                return row.toJsonObject();
        }
        return {};
    }

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

/// A factory of one ImagesBackEnd under the name "dh".
struct ImagesFactory
{
    std::shared_ptr<ImagesBackEnd> devices = std::make_shared<ImagesBackEnd>();
    CDeviceFactory factory{{{QStringLiteral("dh"), [this] {
                                 return devices;
                             }}}};

    /// The rows in the form of a page.
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
