#pragma once

#include "app/colourscheme.h"
#include "app/commandline.h"
#include "app/desktopscheme.h"
#include "app/publication.h"
#include "sdk/sdklibraries.h"

#include <QCoreApplication>
#include <QTranslator>

#include <memory>
#include <optional>

/// Start-up and clean-up around the event loop. Requires the application object. Main thread only.
class Shell
{
    Q_DECLARE_TR_FUNCTIONS(Shell)
public:
    /// Sets the attributes of the application and the limits of the allocator. Called before the application
    /// object is created.
    static void prepareApplication();

    explicit Shell(CommandLine commandLine);

    /// Deletes the windows and the engine of QML, the local settings (CLocalConfig), the object for commands
    /// over HTTP (CGIConfigManage), and the device factory, in this order.
    ~Shell();

    Shell(const Shell &) = delete;
    Shell &operator=(const Shell &) = delete;

    /// Chooses colours and language, acquires the single-instance lock, chooses the device libraries, creates
    /// the stores and back ends, and loads QML, in this order. Returns nullopt if the event loop may run.
    /// Otherwise it has shown the reason and returns the exit code.
    [[nodiscard]] std::optional<int> begin();

    /// The engine of QML; null before a successful begin().
    [[nodiscard]] QQmlApplicationEngine *engine() const { return m_engine.get(); }

    /// The libraries in use; complete after a successful begin() only.
    [[nodiscard]] const sdk::SdkLibraries &libraries() const { return m_libraries; }

private:
    void loadTranslators();
    [[nodiscard]] bool chooseLibraries();
    void chooseCertificates();
    void chooseAccounts();
    void registerBackEnds();
    void loadQml();

    const CommandLine m_commandLine;
    QTranslator m_fallbackTranslator; ///< English, for strings that the chosen language lacks
    QTranslator m_mainTranslator;
    std::unique_ptr<DesktopScheme> m_desktopScheme;
    std::unique_ptr<ColourScheme> m_colourScheme;
    std::shared_ptr<CertificateStore> m_certificates; ///< outlives the libraries, which call it
    std::shared_ptr<AccountStore> m_accounts;
    sdk::SdkLibraries m_libraries;
    DemoNotice m_demo;
    std::shared_ptr<BatchEngine> m_batchEngine;
    std::shared_ptr<DeviceStore> m_deviceStore;
    std::unique_ptr<QQmlApplicationEngine> m_engine;
};
