#pragma once

#include <QObject>
#include <QPoint>
#include <QStringList>
#include <QVariantList>

#include <memory>

class QSharedMemory;

/// The user's local settings, the interface language, the product name, the help documents and the
/// single-instance lock.
///
/// Settings are not cached: each getter reads the file, each setter writes it. A missing key reads as an
/// empty string or 0, unless the getter states another default. A failed write leaves the file unchanged and
/// logs a warning; a caller detects it by reading the value. Main thread only.
class CLocalConfig : public QObject
{
    Q_OBJECT
public:
    /// The process-wide object for the ApplicationFolders, created by the first call.
    static CLocalConfig *getinstance();

    /// Deletes the process-wide object.
    static void deleteInstance();

    /// Uses the files in `directory`. The settings file is "LocalConfig.ini". If there is none, one with the
    /// defaults is written; an existing one is not changed.
    explicit CLocalConfig(const QString &directory) : CLocalConfig(directory, directory) {}

    /// As above, with the settings file in another folder.
    CLocalConfig(const QString &directory, const QString &settingsFolder);
    ~CLocalConfig() override;

    /// The stored code of the languageCodes; empty before the first start.
    Q_INVOKABLE [[nodiscard]] QString getLanguage() const;
    /// Stores the language of the next start. The current language does not change.
    Q_INVOKABLE void setLanguage(const QString &lang);

    // Search settings. The range of addresses consists of two dotted IPv4 addresses.
    Q_INVOKABLE [[nodiscard]] QString getSearchConfigStartIP() const;
    Q_INVOKABLE void setSearchConfigStartIP(const QString &address);
    Q_INVOKABLE [[nodiscard]] QString getSearchConfigEndIP() const;
    Q_INVOKABLE void setSearchConfigEndIP(const QString &address);
    /// User name of the default account, which devices without another account use. QML uses this spelling.
    Q_INVOKABLE [[nodiscard]] QString getSearchConfigUsrename() const;
    Q_INVOKABLE void setSearchConfigUsername(const QString &user);
    /// Password of the default account. The file contains it as plain text.
    Q_INVOKABLE [[nodiscard]] QString getSearchConfigPass() const;
    Q_INVOKABLE void setSearchConfigPass(const QString &pass);
    /// 1 if a search includes the local segment, otherwise 0.
    Q_INVOKABLE [[nodiscard]] int getSearchConfigLocalDomain() const;
    Q_INVOKABLE void setSearchConfigLocalDomain(int check);
    /// 1 if a search includes the range of addresses, otherwise 0.
    Q_INVOKABLE [[nodiscard]] int getSearchConfigOtherDomain() const;
    Q_INVOKABLE void setSearchConfigOtherDomain(int check);

    /// Whether a search logs in to the devices that it finds; false by default.
    Q_INVOKABLE [[nodiscard]] bool searchLogsIn() const;
    Q_INVOKABLE void setSearchLogsIn(bool logsIn);
    /// The colours of the windows: "light", "dark", or "desktop" (default).
    [[nodiscard]] QString colourScheme() const;
    /// Stores one of these values. Any other one is stored, too, and reads as "desktop".
    void setColourScheme(const QString &scheme);
    /// Releases the single-instance lock, starts the application with the same arguments, and ends this one.
    Q_INVOKABLE void reboot();
    /// As reboot(), on the demo site.
    Q_INVOKABLE void openDemoSite();
    Q_INVOKABLE [[nodiscard]] QString getVersion() const; ///< Product::version
    /// The display name of the application object: the name of the executable, unless another one was set.
    Q_INVOKABLE [[nodiscard]] QString getSoftwareName() const;
    Q_INVOKABLE [[nodiscard]] QString getLogoSoftwareName() const; ///< Product::logoName
    // Open a PDF document in the current language, or the English one if there is none, with the default
    // application of the system. Emit documentRequested().
    Q_INVOKABLE void OpenHelpFile();
    Q_INVOKABLE void OpenQAFile();
    Q_INVOKABLE [[nodiscard]] QString getAppPath() const; ///< `directory` of the constructor
    /// Indexes of the languageCodes that had no translation file at the start, in ascending order.
    Q_INVOKABLE [[nodiscard]] QVariantList getRemoveLanguageList() const;
    Q_INVOKABLE [[nodiscard]] QPoint cursorPos() const; ///< of the mouse, in screen coordinates

    /// Number of simultaneous devices of a batch: 1 to 32, or 8 if the setting is missing or invalid.
    [[nodiscard]] int parallelDevices() const;

    /// Number of simultaneous upgrades: 1 to 16, or 4 if the setting is missing or invalid.
    Q_INVOKABLE [[nodiscard]] int parallelUpgrades() const;
    Q_INVOKABLE void setParallelUpgrades(int count);

    /// Sets the language of the documents until the application ends. It is not stored.
    void setCurrentLanguage(const QString &code);
    /// Whether there is a translation file for a language code.
    [[nodiscard]] bool hasTranslation(const QString &code) const;
    [[nodiscard]] QString settingsPath() const { return m_settingsPath; }
    /// Paths of the translation files that existed at the start, in the order of languageCodes.
    [[nodiscard]] QStringList languageFiles() const { return m_languageFiles; }

    /// Acquires the single-instance lock until reboot(), openDemoSite() or the destructor. Returns false if
    /// another instance holds it. The lock of a killed process is taken over.
    [[nodiscard]] bool acquireInstanceLock();

Q_SIGNALS:
    /// The system was requested to open a document. `path` has the separators of the system. `isAccepted` is
    /// false if the file is missing or the system has refused the request.
    void documentRequested(const QString &path, bool isAccepted);

private:
    [[nodiscard]] QVariant value(const QString &key) const;
    [[nodiscard]] int number(const QString &key) const;
    void setValue(const QString &key, const QString &value) { setValues({{key, value}}); }
    void setValues(const QList<QPair<QString, QString>> &values);
    void writeDefaults();
    [[nodiscard]] QString translationFile(const QString &code) const;
    void openDocument(const QString &name);
    void restart(const QStringList &arguments);

    QString m_currentLanguage;
    const QString m_directory;
    const QString m_settingsPath;
    std::unique_ptr<QSharedMemory> m_instanceLock; ///< null unless acquired
    QVariantList m_removedLanguages; ///< indexes of the languageCodes without a translation file
    QStringList m_languageFiles;
};
