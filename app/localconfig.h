#pragma once

#include <QObject>
#include <QPoint>
#include <QPointer>
#include <QStringList>
#include <QVariantList>

#include <memory>

class QSharedMemory;
class SecretVault;

/// The user's local settings, the interface language, the product name, the help documents and the
/// single-instance lock.
///
/// Settings are not cached: each getter reads the file, each setter writes it before it returns. A missing
/// key reads as an empty string or 0, unless the getter states another default. Setters do not check their
/// values. A failed write leaves the file unchanged and logs a warning; a caller detects it by reading the
/// value. Changes are not signalled. Main thread only.
class CLocalConfig : public QObject
{
    Q_OBJECT
public:
    /// The process-wide object, created by the first call for the application's own folder, and for the
    /// folder of the user's settings.
    static CLocalConfig *getinstance();

    /// Deletes the process-wide object. The next getinstance() creates another one.
    static void deleteInstance();

    /// `directory` contains the settings file "LocalConfig.ini" and the folders "language" (translation
    /// files) and "documents". If there is no settings file, one with the defaults is written; an existing
    /// one is not changed.
    explicit CLocalConfig(const QString &directory) : CLocalConfig(directory, directory) {}

    /// As above, with the settings file in `settingsFolder`.
    CLocalConfig(const QString &directory, const QString &settingsFolder);
    ~CLocalConfig() override;

    /// The stored language code, one of languageCodes; empty before the first start.
    Q_INVOKABLE [[nodiscard]] QString getLanguage() const;
    /// Stores the language of the next start. The current language does not change.
    Q_INVOKABLE void setLanguage(const QString &lang);

    // Search settings, which the next search uses. The range of addresses consists of its first and its last
    // address, as dotted IPv4 addresses.
    Q_INVOKABLE [[nodiscard]] QString getSearchConfigStartIP() const;
    Q_INVOKABLE void setSearchConfigStartIP(const QString &address);
    Q_INVOKABLE [[nodiscard]] QString getSearchConfigEndIP() const;
    Q_INVOKABLE void setSearchConfigEndIP(const QString &address);
    /// User name of the default account, which devices without another account use. QML uses this spelling.
    Q_INVOKABLE [[nodiscard]] QString getSearchConfigUsrename() const;
    Q_INVOKABLE void setSearchConfigUsername(const QString &user);
    /// Password of the default account. The file contains it as plain text, unless setVault() was called.
    Q_INVOKABLE [[nodiscard]] QString getSearchConfigPass() const;
    /// With a vault, an empty password removes that of the vault, but only if that could be read.
    Q_INVOKABLE void setSearchConfigPass(const QString &pass);

    /// Moves the password of the default account to `vault`: that of the file when `vault` is loaded, and
    /// each one that is set later. It leaves the file when the service has confirmed it. A file without a
    /// password then has that of `vault`. `vault` may be destroyed before this object.
    void setVault(SecretVault &vault);
    /// Whether the password is empty because the vault has not been read yet, or cannot be read.
    [[nodiscard]] bool lacksPassword() const;
    /// 1 if a search includes the networks of this host, 0 if not.
    Q_INVOKABLE [[nodiscard]] int getSearchConfigLocalDomain() const;
    Q_INVOKABLE void setSearchConfigLocalDomain(int check);
    /// 1 if a search includes the range of addresses, 0 if not.
    Q_INVOKABLE [[nodiscard]] int getSearchConfigOtherDomain() const;
    Q_INVOKABLE void setSearchConfigOtherDomain(int check);

    /// Whether a search logs in to the devices that it finds; false by default.
    Q_INVOKABLE [[nodiscard]] bool searchLogsIn() const;
    Q_INVOKABLE void setSearchLogsIn(bool logsIn);
    /// The colours of the windows: "light", "dark", or "desktop" (as the desktop; default).
    [[nodiscard]] QString colourScheme() const;
    /// Stores a value of colourScheme(). Any other value is stored, too, and reads as "desktop".
    void setColourScheme(const QString &scheme);
    /// Releases the single-instance lock, starts a process of the application with the same arguments, and
    /// ends the event loop of this process. This process ends also if the other one cannot be started.
    Q_INVOKABLE void reboot();
    /// As reboot(), with the argument "--demo" alone: the other process runs on the simulated devices of the
    /// scene "office".
    Q_INVOKABLE void openDemoSite();
    /// Version number, then a date and time: "V1.2.5.1.20260306_133556".
    Q_INVOKABLE [[nodiscard]] QString getVersion() const;
    /// The display name of the application object: the name of the executable, unless another one was set.
    Q_INVOKABLE [[nodiscard]] QString getSoftwareName() const;
    Q_INVOKABLE [[nodiscard]] QString getLogoSoftwareName() const; ///< name of the product, next to its logo
    // The two functions below open a PDF document of the folder "documents" with the default application of
    // the system: the document in the current language (setCurrentLanguage()), or the English one if there is
    // none. They emit documentRequested() before they return.
    Q_INVOKABLE void OpenHelpFile();                      ///< the manual
    Q_INVOKABLE void OpenQAFile();                        ///< questions and answers
    Q_INVOKABLE [[nodiscard]] QString getAppPath() const; ///< `directory` of the constructor
    /// Indexes of the languageCodes that had no translation file at the start, in ascending order; the menu
    /// of languages omits them.
    Q_INVOKABLE [[nodiscard]] QVariantList getRemoveLanguageList() const;
    Q_INVOKABLE [[nodiscard]] QPoint cursorPos() const; ///< of the mouse, in screen coordinates

    /// Maximum number of devices that a batch processes at the same time: 1 to 32, or 8 if the setting is
    /// missing or invalid. There is no setter: the user edits the file ("atOnce" in the group "batchConfig").
    [[nodiscard]] int parallelDevices() const;

    /// Maximum number of upgrades at the same time: 1 to 16, or 4 if the setting is missing or invalid.
    Q_INVOKABLE [[nodiscard]] int parallelUpgrades() const;
    Q_INVOKABLE void setParallelUpgrades(int count);

    /// Sets the language code of the help documents until the application ends. It is not stored.
    void setCurrentLanguage(const QString &code);
    /// Whether there is a translation file for this language code now. Its contents are not checked.
    [[nodiscard]] bool hasTranslation(const QString &code) const;
    /// The path of the settings file.
    [[nodiscard]] QString settingsPath() const { return m_settingsPath; }
    /// Paths of the translation files that existed at the start, in the order of languageCodes.
    [[nodiscard]] QStringList languageFiles() const { return m_languageFiles; }

    /// Acquires the single-instance lock, so that a second window of the application on this host is
    /// detected. It is held until reboot(), openDemoSite() or the destructor. Does not wait. Returns false if
    /// another process of the application holds the lock. The lock of a killed process is taken over.
    [[nodiscard]] bool acquireInstanceLock();

Q_SIGNALS:
    /// OpenHelpFile() or OpenQAFile() was called. `path` is the path of the document with the separators of
    /// the system. `isAccepted` is false if the file is missing or the system has refused to open it.
    void documentRequested(const QString &path, bool isAccepted);

private:
    [[nodiscard]] QVariant value(const QString &key) const;
    [[nodiscard]] int number(const QString &key) const;
    void setValue(const QString &key, const QString &value) { setValues({{key, value}}); }
    void setValues(const QList<QPair<QString, QString>> &values);
    void writeDefaults();
    void keepPassword();
    [[nodiscard]] QString translationFile(const QString &code) const;
    void openDocument(const QString &name);
    void restart(const QStringList &arguments);

    QString m_currentLanguage;
    const QString m_directory;
    const QString m_settingsPath;
    QPointer<SecretVault> m_vault;                 ///< null: the password stays in the file
    std::unique_ptr<QSharedMemory> m_instanceLock; ///< null unless acquired
    QVariantList m_removedLanguages; ///< indexes of the languageCodes without a translation file
    QStringList m_languageFiles;
};
