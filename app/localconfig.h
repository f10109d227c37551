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
/// empty string or 0. A failed write leaves the file unchanged and logs a warning; a caller detects it by
/// reading the value. Main thread only.
class CLocalConfig : public QObject
{
    Q_OBJECT
public:
    /// The process-wide object for the directory of the executable, created by the first call.
    static CLocalConfig *getinstance();

    /// Deletes the process-wide object.
    static void deleteInstance();

    /// Uses the files in `directory`. Writes a settings file with the defaults if there is none. An existing
    /// one is not changed.
    explicit CLocalConfig(const QString &directory);
    ~CLocalConfig() override;

    Q_INVOKABLE [[nodiscard]] QString getLanguage() const;
    /// Stores the language of the next start.
    Q_INVOKABLE void setLanguage(const QString &lang);
    Q_INVOKABLE [[nodiscard]] QString getSearchConfigStartIP() const;
    Q_INVOKABLE void setSearchConfigStartIP(const QString &address);
    Q_INVOKABLE [[nodiscard]] QString getSearchConfigEndIP() const;
    Q_INVOKABLE void setSearchConfigEndIP(const QString &address);
    /// QML uses this spelling.
    Q_INVOKABLE [[nodiscard]] QString getSearchConfigUsrename() const;
    Q_INVOKABLE void setSearchConfigUsername(const QString &user);
    Q_INVOKABLE [[nodiscard]] QString getSearchConfigPass() const;
    Q_INVOKABLE void setSearchConfigPass(const QString &pass);
    Q_INVOKABLE [[nodiscard]] int getSearchConfigLocalDomain() const;
    Q_INVOKABLE void setSearchConfigLocalDomain(int check);
    Q_INVOKABLE [[nodiscard]] int getSearchConfigOtherDomain() const;
    Q_INVOKABLE void setSearchConfigOtherDomain(int check);

    /// Whether a search logs in to found devices with the account of the search settings; false by default.
    Q_INVOKABLE [[nodiscard]] bool searchLogsIn() const;
    Q_INVOKABLE void setSearchLogsIn(bool logsIn);
    /// The colours of the windows: "light", "dark", or "desktop" (default).
    [[nodiscard]] QString colourScheme() const;
    void setColourScheme(const QString &scheme);
    /// Restarts the application with the same arguments.
    Q_INVOKABLE void reboot();
    /// Restarts the application on the demo site.
    Q_INVOKABLE void openDemoSite();
    Q_INVOKABLE [[nodiscard]] QString getVersion() const;
    Q_INVOKABLE [[nodiscard]] QString getSoftwareName() const;
    Q_INVOKABLE [[nodiscard]] QString getLogoSoftwareName() const;
    // Open a PDF document with the default application of the system and emit documentRequested().
    Q_INVOKABLE void OpenHelpFile();
    Q_INVOKABLE void OpenQAFile();
    Q_INVOKABLE [[nodiscard]] QString getAppPath() const;
    /// Indexes of the languageCodes without a translation file, in ascending order.
    Q_INVOKABLE [[nodiscard]] QVariantList getRemoveLanguageList() const;
    Q_INVOKABLE [[nodiscard]] QPoint cursorPos() const;

    /// Number of simultaneous devices of a batch: 1 to 32, or 8 if the setting is missing or invalid.
    [[nodiscard]] int devicesAtOnce() const;

    /// Number of simultaneous upgrades: 1 to 16, or 4 if the setting is missing or invalid.
    Q_INVOKABLE [[nodiscard]] int upgradesAtOnce() const;
    Q_INVOKABLE void setUpgradesAtOnce(int count);

    void setCurrentLanguage(const QString &code);
    [[nodiscard]] bool hasTranslation(const QString &code) const;
    [[nodiscard]] QString settingsPath() const { return m_settingsPath; }
    /// Paths of the existing translation files, in the order of languageCodes.
    [[nodiscard]] QStringList languageFiles() const { return m_languageFiles; }

    /// Acquires the single-instance lock for the lifetime of this object. Returns false if another instance
    /// holds it. The lock of a killed process is taken over.
    [[nodiscard]] bool acquireInstanceLock();

Q_SIGNALS:
    /// The system was requested to open a document. `isAccepted` is false if the file is missing or the
    /// system has refused the request.
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
