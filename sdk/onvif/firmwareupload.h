// Uploads of firmware files to devices.
#pragma once

#include "sdk/certificates/certificatedecision.h"
#include "sdk/loginblocks.h"
#include "sdk/onvif/services/deviceservice.h"
#include "sdk/upgradeblocks.h"

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <string>

namespace sdk::onvif {

class FirmwareTransfer;

/// The uploads of the firmware files of all sessions, by handle, each with a thread. Thread-safe.
///
/// A device responds to the upload after it has received the complete file. It does not report the progress
/// of writing. So the phase Writing starts when the last byte is sent and ends with the response. If the
/// device then requests the login, the file is sent again, and Sending follows.
///
/// A handle stays valid after Done or Failed, until it is closed. The functions that close uploads block
/// until the threads of the uploads have ended, so handlers and `accepted` must not call them.
class FirmwareUploads
{
public:
    /// `decision` decides about the certificates of devices that receive the file over HTTPS.
    explicit FirmwareUploads(std::shared_ptr<const CertificateDecision> decision);

    /// As closeAll().
    ~FirmwareUploads();

    /// True for a file that can be opened and is not empty. `fileName` is in the local 8-bit encoding.
    [[nodiscard]] static bool isReadable(const std::string &fileName);

    /// Starts the upload of the file and returns immediately. `upload` is the response of the device to the
    /// request for an upgrade. The file is sent to its address with `login`, after the delay that the device
    /// has requested, 60 s at most, and the upload fails after 30 min. The progress is passed to `handler`
    /// (null for none) on the thread of the upload, possibly before the return: Sending with the percentage
    /// of the sent bytes, Writing with 0, and at last Done or Failed. Failed has the error: WrongPassword for
    /// a refused login, FirmwareRefused for another refusal, ConnectTimeout if the device does not respond,
    /// UnknownCertificate, ChangedCertificate, or NetworkFailure for another failure of the connection and
    /// for an unreadable file. `accepted` must not be empty. It is called on that thread when the device has
    /// accepted the file, before Done is reported. Returns the handle, above 0; 0 when no thread can be
    /// created.
    [[nodiscard]] std::int64_t open(LLONG loginHandle, const FirmwareUpload &upload, const HttpLogin &login,
                                    const std::string &fileName, UpgradeProgressHandler handler, void *user,
                                    const std::function<void()> &accepted);

    /// Ends an upload and frees its handle. The handler does not run after a successful call. Returns
    /// NotSupported in the phase Writing: the upload then continues and the handle stays valid. Returns
    /// InvalidValue for an invalid handle.
    [[nodiscard]] NetError close(std::int64_t handle);
    /// Ends the uploads of a session in every phase, and frees their handles. Their handlers do not run after
    /// the return. A device that has the complete file may still install it.
    void closeAllOf(LLONG loginHandle);
    void closeAll(); ///< the same for all sessions

private:
    const std::shared_ptr<const CertificateDecision> m_decision;
    std::mutex m_mutex;
    std::int64_t m_lastHandle = 0;
    std::map<std::int64_t, std::shared_ptr<FirmwareTransfer>> m_transfers;
};

} // namespace sdk::onvif
