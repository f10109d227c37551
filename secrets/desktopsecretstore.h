// The secret service of the desktop.
#pragma once

#include "secrets/secretstore.h"

#include <chrono>
#include <memory>

class BusCalls;

/// The secret service of the desktop on the session bus of the user (org.freedesktop.secrets), by libsecret.
/// The passwords are items of the default collection, with the attributes "application" and "file" (the path)
/// and a label from the product and the title. No bus is started; the bus may start the service.
///
/// A locked service asks the user for its password, which is not entered in this application.
class DesktopSecretStore : public SecretStore
{
public:
    struct Options
    {
        QString product;     ///< name in the labels
        bool hasBus = false; ///< a session bus exists; otherwise the service is absent
        std::chrono::milliseconds responseLimit = std::chrono::seconds(10); ///< of a request
        std::chrono::milliseconds promptLimit = std::chrono::minutes(2); ///< of a request that asks the user
    };

    /// Connects to nothing yet.
    explicit DesktopSecretStore(Options options);
    ~DesktopSecretStore() override;

    [[nodiscard]] StoredSecrets readAll() override;
    [[nodiscard]] SecretProblem store(const Secret &secret) override;
    [[nodiscard]] SecretProblem remove(const QString &file) override;
    void interrupt() override;

private:
    struct Service;

    [[nodiscard]] SecretProblem open();
    /// Runs `work` on the opened service, which is opened again after a problem: it may have restarted.
    template<typename Work>
    [[nodiscard]] SecretProblem withService(const Work &work);

    const Options m_options;
    const std::unique_ptr<BusCalls> m_calls;
    std::unique_ptr<Service> m_service; ///< null before the first call and after a problem
};
