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

/// A device accepts one file at a time, writes it and reboots. Faults of the device apply. Thread-safe.
class FirmwareUploads
{
public:
    /// `site` and `poller` must outlive the uploads.
    FirmwareUploads(sdk::demo::DemoSite &site, Poller &poller) : m_site(site), m_poller(poller) {}

    /// Returns the path of the URL for the upload of a file, which replaces an earlier path; nothing while
    /// the device writes, and for a device with Fault::UpgradeBusy.
    [[nodiscard]] std::optional<QString> begin(const sdk::demo::SceneDevice &device);

    [[nodiscard]] static bool isUploadPath(const QByteArray &path);

    /// Returns the function that receives the `size` bytes of a file. The bytes for an unknown path are
    /// discarded. The function blocks for the duration of slow and hanging uploads.
    [[nodiscard]] BodyReceiver bodyReceiver(const HttpReceiver &receiver, const QByteArray &path,
                                            qint64 size);

    /// The response to a complete file: Ok if the device writes it, NotFound for an unknown path,
    /// InternalServerError for a refused file.
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
    [[nodiscard]] sdk::demo::HttpResponse refuse(const QString &mac, const QString &sentence);
    void write(const QString &mac, const sdk::FirmwareHead &firmware);
    void end(const QString &mac);

    sdk::demo::DemoSite &m_site;
    Poller &m_poller;
    mutable std::mutex m_mutex; // guards the members below
    int m_last = 0;
    QMap<QString, UploadPointer> m_uploads; ///< by MAC
};

} // namespace site
