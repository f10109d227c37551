// Firmware uploads to devices.
#pragma once

#include "site/http/httpexchange.h"

#include "sdk/demo/scene/scene.h"
#include "sdk/firmwarehead.h"

#include <QMap>

#include <memory>
#include <mutex>

namespace sdk::demo {
class DemoSite;
}

namespace site {

class Poller;

/// The uploads to all devices of a site. A device accepts one file at a time, writes it and reboots. An
/// upload is begin(), then bodyReceiver() with its chunks, then finish(). The faults of upgrades
/// (Fault::Upgrade...) apply. Thread-safe: the functions are called on threads of connections.
class FirmwareUploads
{
public:
    /// `site` and `poller` must outlive this object. The poller must be stopped before this object is
    /// destroyed.
    FirmwareUploads(sdk::demo::DemoSite &site, Poller &poller) : m_site(site), m_poller(poller) {}

    /// Starts an upload to the device and returns the path of its URL. An earlier path of the device becomes
    /// unknown. Nothing while the device writes a file, and for a device with Fault::UpgradeBusy.
    [[nodiscard]] std::optional<QString> begin(const sdk::demo::SceneDevice &device);

    /// Whether a path has the form of begin(), also if it is unknown.
    [[nodiscard]] static bool isUploadPath(const QByteArray &path);

    /// Returns the function that receives the `size` bytes of a file. Only the head of the file is kept. The
    /// function discards the bytes for an unknown path. It blocks for the duration of slow and hanging
    /// uploads, until HttpReceiver::stop. It returns false when the upload fails by a fault or the device has
    /// left the site: the upload is over then.
    [[nodiscard]] BodyReceiver bodyReceiver(const HttpReceiver &receiver, const QByteArray &path,
                                            qint64 size);

    /// The response to a complete file: Ok if the device accepts it, NotFound for an unknown path and for a
    /// device that has left the site, InternalServerError for a file that is refused, which ends the upload:
    /// no firmware for the model of the device, or any file with Fault::UpgradeFailsAt 100.
    /// After Ok, the device writes the file for DeviceUpgrade::writing and reboots; with
    /// Fault::UpgradeHangsAt 100 it writes forever.
    [[nodiscard]] sdk::demo::HttpResponse finish(const HttpReceiver &receiver, const QByteArray &path);

private:
    struct Upload
    {
        QByteArray path;
        QByteArray head; ///< of the file
        qint64 received = 0;
        bool isWriting = false;
    };
    using UploadPointer = std::shared_ptr<Upload>;

    [[nodiscard]] UploadPointer uploadOf(const HttpReceiver &receiver, const QByteArray &path) const;
    bool take(const HttpReceiver &receiver, Upload &upload, QByteArrayView chunk, qint64 size) const;
    [[nodiscard]] sdk::demo::HttpResponse refuse(const QString &mac, const Upload &upload,
                                                 const QString &sentence);
    void write(const QString &mac, const Upload &upload, const sdk::FirmwareHead &firmware);
    /// Removes the upload, unless begin() has replaced it.
    void end(const QString &mac, const Upload &upload);

    sdk::demo::DemoSite &m_site;
    Poller &m_poller;
    mutable std::mutex m_mutex;             // guards the members below
    int m_last = 0;                         ///< number in the last path
    QMap<QString, UploadPointer> m_uploads; ///< by MAC
};

} // namespace site
