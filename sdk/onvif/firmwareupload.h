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

/// The running uploads. Thread-safe.
///
/// A device responds to the upload when it has the complete file, and does not report its further progress.
/// So the phase Writing starts with the last byte and ends with the response.
class FirmwareUploads
{
public:
    explicit FirmwareUploads(std::shared_ptr<const CertificateDecision> decision);
    ~FirmwareUploads();

    /// True for a file that can be opened and is not empty.
    [[nodiscard]] static bool isReadable(const std::string &fileName);

    /// Starts the upload of the file, after the delay that the device has requested. The progress is reported
    /// on the thread of the upload, possibly before the return. `accepted` is called on that thread when the
    /// device has accepted the file, before Done is reported. Returns the handle, 0 when no thread can be
    /// created.
    [[nodiscard]] std::int64_t open(LLONG loginHandle, const FirmwareUpload &upload, const HttpLogin &login,
                                    const std::string &fileName, UpgradeProgressHandler handler, void *user,
                                    const std::function<void()> &accepted);

    /// Ends an upload and frees its handle. The handler does not run after a successful call. NotSupported
    /// while the device has the complete file and has not responded; InvalidValue for an invalid handle.
    [[nodiscard]] NetError close(std::int64_t handle);
    /// Ends the uploads of a session, also those whose response is outstanding. Their handlers do not run
    /// after the return.
    void closeAllOf(LLONG loginHandle);
    void closeAll();

private:
    const std::shared_ptr<const CertificateDecision> m_decision;
    std::mutex m_mutex;
    std::int64_t m_lastHandle = 0;
    std::map<std::int64_t, std::shared_ptr<FirmwareTransfer>> m_transfers;
};

} // namespace sdk::onvif
