#pragma once

#include "app/colourscheme.h"
#include "app/commandline.h"
#include "app/desktopscheme.h"
#include "app/devicesetup.h"

#include <QCoreApplication>
#include <QTranslator>

#include <memory>
#include <optional>

class PasswordMove;
class QQmlApplicationEngine;
class SecretVault;

/// Start-up of the application with its window, and clean-up after the event loop, which main() runs.
/// Requires the application object, except prepareApplication(). Main thread only.
class Shell
{
    Q_DECLARE_TR_FUNCTIONS(Shell)
public:
    /// Sets the attributes of the application and the limits of the allocator, and lets worker threads run
    /// with a lower priority than the window. Called before the application object and other threads are
    /// created.
    static void prepareApplication();

    /// Starts nothing yet.
    explicit Shell(CommandLine commandLine);

    /// Deletes the windows and the engine of QML, the process-wide local settings (CLocalConfig), the object
    /// for commands over HTTP (CGIConfigManage), and the device factory (CDeviceFactory), in this order.
    /// Blocks until running work has ended.
    ~Shell();

    Shell(const Shell &) = delete;
    Shell &operator=(const Shell &) = delete;

    /// Chooses colours and language, acquires the single-instance lock, chooses the device libraries, creates
    /// the stores and back ends, and loads QML, in this order. Called once. Returns nullopt if the caller is
    /// to run the event loop. Otherwise returns the exit code, after the user has closed a message with the
    /// reason: 0 if the application is running already, 1 if the device libraries or the simulated site
    /// cannot be used.
    [[nodiscard]] std::optional<int> begin();

    /// The engine of QML; null before a successful begin().
    [[nodiscard]] QQmlApplicationEngine *engine() const { return m_engine.get(); }

    /// The device libraries in use; complete after a successful begin() only.
    [[nodiscard]] const sdk::SdkLibraries &libraries() const { return m_devices.libraries(); }

private:
    void loadTranslators();
    void openVault();
    [[nodiscard]] bool openDevices();
    void loadQml();

    const CommandLine m_commandLine;
    QTranslator m_fallbackTranslator; ///< English, for strings that the chosen language lacks
    QTranslator m_mainTranslator;
    std::unique_ptr<DesktopScheme> m_desktopScheme;
    std::unique_ptr<ColourScheme> m_colourScheme;
    DeviceSetup m_devices;
    std::unique_ptr<SecretVault> m_vault;         ///< null: passwords are in the files
    std::unique_ptr<PasswordMove> m_passwordMove; ///< null without m_vault
    std::unique_ptr<QQmlApplicationEngine> m_engine;
};
