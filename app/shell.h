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

/// Start-up and clean-up around the event loop, given an application object. Everything on the main thread.
class Shell
{
    Q_DECLARE_TR_FUNCTIONS(Shell)
public:
    /// What must be set before the application object is created: its attributes, and what the allocator
    /// keeps.
    static void prepareApplication();

    explicit Shell(CommandLine commandLine);

    /// Closes the scene's windows, deletes the local configuration, the object for commands and then the
    /// device factory; the engine and the translators follow.
    ~Shell();

    Shell(const Shell &) = delete;
    Shell &operator=(const Shell &) = delete;

    /// Settles the language, takes the single-instance lock, chooses the device libraries and loads the
    /// scene. Returns an exit code when the program is not to run, after it has said why.
    [[nodiscard]] std::optional<int> begin();

    /// The scene's engine; null before a successful begin().
    [[nodiscard]] QQmlApplicationEngine *engine() const { return m_engine.get(); }

    /// The libraries in use; empty before a successful begin().
    [[nodiscard]] const sdk::SdkLibraries &libraries() const { return m_libraries; }

private:
    void loadTranslators();
    [[nodiscard]] bool chooseLibraries();
    void chooseCertificates();
    void chooseAccounts();
    void registerBackEnds();
    void loadScene();

    const CommandLine m_commandLine;
    QTranslator m_fallbackTranslator; ///< English, for texts that the chosen language lacks
    QTranslator m_mainTranslator;
    std::unique_ptr<DesktopScheme> m_desktopScheme;
    std::unique_ptr<ColourScheme> m_colourScheme;
    std::shared_ptr<CertificateStore> m_certificates; ///< outlives the libraries, which ask it
    std::shared_ptr<AccountStore> m_accounts;
    sdk::SdkLibraries m_libraries;
    DemoNotice m_demo;
    std::shared_ptr<BatchEngine> m_batchEngine;
    std::shared_ptr<DeviceStore> m_deviceStore;
    std::unique_ptr<QQmlApplicationEngine> m_engine;
};
