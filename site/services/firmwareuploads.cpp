#include "site/services/firmwareuploads.h"

#include "sdk/clock.h"
#include "sdk/demo/demosite.h"
#include "sdk/demo/device/maintenance.h"
#include "sdk/demo/upgrade/deviceupgrade.h"
#include "site/network/poller.h"

using namespace sdk::demo;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace site {

namespace {

constexpr QByteArrayView pathBegin = "/onvif/upgrade/";
constexpr int all = 100; // percent

int percentOf(const std::optional<FaultSetting> &fault)
{
    return fault ? fault->number : all + 1; // never
}

} // namespace

std::optional<QString> FirmwareUploads::begin(const SceneDevice &device)
{
    const std::lock_guard lock(m_mutex);
    const UploadPointer before = m_uploads.value(device.mac);
    if (device.hasFault(Fault::UpgradeBusy) || (before && before->isWriting))
        return std::nullopt;
    // The sender of an earlier file may have disconnected: the last request replaces the earlier one.
    auto upload = std::make_shared<Upload>();
    upload->path = pathBegin.toByteArray() + QByteArray::number(++m_last);
    m_uploads.insert(device.mac, upload);
    return QString::fromLatin1(upload->path);
}

bool FirmwareUploads::isUploadPath(const QByteArray &path)
{
    return path.startsWith(pathBegin);
}

FirmwareUploads::UploadPointer FirmwareUploads::uploadOf(const HttpReceiver &receiver,
                                                         const QByteArray &path) const
{
    const std::lock_guard lock(m_mutex);
    const UploadPointer upload = m_uploads.value(receiver.mac);
    return upload && upload->path == path && !upload->isWriting ? upload : nullptr;
}

BodyReceiver FirmwareUploads::bodyReceiver(const HttpReceiver &receiver, const QByteArray &path, qint64 size)
{
    const UploadPointer upload = uploadOf(receiver, path);
    return [this, receiver, upload, size](QByteArrayView chunk) {
        if (!upload)
            return true; // the body is discarded; the response is a refusal
        const bool goesOn = take(receiver, *upload, chunk, size);
        if (!goesOn)
            end(receiver.mac, *upload);
        return goesOn;
    };
}

bool FirmwareUploads::take(const HttpReceiver &receiver, Upload &upload, QByteArrayView chunk,
                           qint64 size) const
{
    const std::optional<SceneDevice> device = m_site.device(receiver.mac);
    if (!device)
        return false;
    {
        const std::lock_guard lock(m_mutex);
        upload.head += chunk.first(std::min<qsizetype>(
            chunk.size(), static_cast<qsizetype>(sdk::longestFirmwareHead) - upload.head.size()));
        upload.received += chunk.size();
    }
    const qint64 percent = size > 0 ? upload.received * all / size : all;
    if (const auto slow = device->fault(Fault::UpgradeTakes)) {
        const std::chrono::milliseconds duration = std::chrono::seconds(slow->number);
        m_site.clock().wait(duration * chunk.size() / std::max<qint64>(size, 1), receiver.stop);
    }
    const int hang = percentOf(device->fault(Fault::UpgradeHangsAt));
    if (hang < all && percent >= hang) {
        // Waits until the connection ends.
        m_site.clock().wait(24h, receiver.stop);
        return false;
    }
    const int failure = percentOf(device->fault(Fault::UpgradeFailsAt));
    return failure >= all || percent < failure;
}

HttpResponse FirmwareUploads::finish(const HttpReceiver &receiver, const QByteArray &path)
{
    const UploadPointer upload = uploadOf(receiver, path);
    const std::optional<SceneDevice> device = m_site.device(receiver.mac);
    if (!upload || !device)
        return HttpResponse::line(HttpStatus::NotFound, u"No upgrade was started at this path"_s);
    const sdk::FirmwareHeadReading reading =
        sdk::readFirmwareHead({upload->head.constData(), static_cast<std::size_t>(upload->head.size())});
    if (reading.kind != sdk::FirmwareHeadReading::Kind::Known ||
        !reading.head.fits(device->model.toStdString()))
        return refuse(receiver.mac, *upload, u"This is not a firmware of the device"_s);
    if (percentOf(device->fault(Fault::UpgradeFailsAt)) == all)
        return refuse(receiver.mac, *upload, u"The firmware cannot be written"_s);
    {
        const std::lock_guard lock(m_mutex);
        upload->isWriting = true;
    }
    if (percentOf(device->fault(Fault::UpgradeHangsAt)) != all) {
        m_poller.after(DeviceUpgrade::writing, [this, mac = receiver.mac, upload, firmware = reading.head] {
            write(mac, *upload, firmware);
        });
    }
    return HttpResponse::line(HttpStatus::Ok, u"The device writes the firmware and reboots"_s);
}

HttpResponse FirmwareUploads::refuse(const QString &mac, const Upload &upload, const QString &sentence)
{
    end(mac, upload);
    return HttpResponse::line(HttpStatus::InternalServerError, sentence);
}

void FirmwareUploads::write(const QString &mac, const Upload &upload, const sdk::FirmwareHead &firmware)
{
    m_site.changeDevice(mac, [&](SceneDevice &device, const DeviceAddresses &) {
        installFirmware(device, firmware, m_site.clock().now());
    });
    end(mac, upload);
}

void FirmwareUploads::end(const QString &mac, const Upload &upload)
{
    const std::lock_guard lock(m_mutex);
    if (m_uploads.value(mac).get() == &upload)
        m_uploads.remove(mac);
}

} // namespace site
