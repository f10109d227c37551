// Firmware that is sent to devices.
#pragma once

#include "site/http/httpexchange.h"

#include "sdk/demo/scene.h"
#include "sdk/firmwarehead.h"

#include <QMap>

#include <memory>
#include <mutex>

namespace sdk::demo {
class DemoSite;
}

namespace site {

class Poller;

/// A device takes one file at a time, writes it, and reboots with it; its faults act on the way. Thread-safe.
class FirmwareUploads
{
public:
    /// `site` and `poller` must outlive the uploads.
    FirmwareUploads(sdk::demo::DemoSite &site, Poller &poller) : m_site(site), m_poller(poller) {}

    /// The path that a file is to be sent to, in the place of the one before; nothing while the device
    /// writes.
    [[nodiscard]] std::optional<QString> begin(const sdk::demo::SceneDevice &device);

    [[nodiscard]] static bool isUploadPath(const QByteArray &path);

    /// What takes the bytes of a file, as long as `size` says.
    [[nodiscard]] BodyTaker taker(const HttpReceiver &receiver, const QByteArray &path, qint64 size);

    /// What the device says of the file that it has got.
    [[nodiscard]] sdk::demo::HttpReply finish(const HttpReceiver &receiver, const QByteArray &path);

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
    bool take(const HttpReceiver &receiver, Upload &upload, QByteArrayView piece, qint64 size) const;
    [[nodiscard]] sdk::demo::HttpReply refuse(const QString &mac, const QString &sentence);
    void write(const QString &mac, const sdk::FirmwareHead &firmware);
    void end(const QString &mac);

    sdk::demo::DemoSite &m_site;
    Poller &m_poller;
    mutable std::mutex m_mutex; // of the following
    int m_last = 0;
    QMap<QString, UploadPointer> m_uploads; ///< by MAC
};

} // namespace site
