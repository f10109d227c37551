// Uploads of firmware files to devices.
#pragma once

#include "sdk/certificates/certificatedecision.h"
#include "sdk/loginblocks.h"
#include "sdk/onvif/services/deviceservice.h"
#include "sdk/upgradeblocks.h"

#include <cstdint>
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

    [[nodiscard]] static bool isReadable(const std::string &fileName);

    /// Starts the upload of the file, after the delay that the device has requested. Returns the handle, 0
    /// when no thread can be created.
    [[nodiscard]] std::int64_t open(LLONG loginHandle, const FirmwareUpload &upload, const HttpLogin &login,
                                    const std::string &fileName, UpgradeProgressHandler handler, void *user);

    /// Ends an upload and frees its handle. NotSupported while the device has the complete file and has not
    /// responded; InvalidValue for an invalid handle.
    [[nodiscard]] NetError close(std::int64_t handle);
    void closeAllOf(LLONG loginHandle);
    void closeAll();

private:
    const std::shared_ptr<const CertificateDecision> m_decision;
    std::mutex m_mutex;
    std::int64_t m_lastHandle = 0;
    std::map<std::int64_t, std::shared_ptr<FirmwareTransfer>> m_transfers;
};

} // namespace sdk::onvif
