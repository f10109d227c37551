#pragma once

#include <QObject>
#include <QPoint>
#include <QStringList>
#include <QVariantList>

#include <memory>

class QSharedMemory;

/// The user's local settings, the interface language, the texts that name the product, the help documents and
/// the single-instance lock.
///
/// The settings file is opened afresh for every read and every write, so that a write is on disk at once and
/// nothing is cached. A missing key reads as an empty text or 0. A write that fails leaves the file as it
/// was, with a warning in the log; the caller reads the value back to notice. Main thread only.
class CLocalConfig : public QObject
{
    Q_OBJECT
public:
    /// The process-wide object for the executable's directory, created on first use.
    static CLocalConfig *getinstance();

    /// Deletes the process-wide object.
    static void deleteInstance();

    /// Works on the files of `directory`. Writes a settings file with the defaults when there is none; an
    /// existing one is never completed or repaired.
    explicit CLocalConfig(const QString &directory);
    ~CLocalConfig() override;

    Q_INVOKABLE [[nodiscard]] QString getLanguage() const;
    /// Stores the language of the next start; the running program keeps its own.
    Q_INVOKABLE void setLanguage(const QString &lang);
    Q_INVOKABLE [[nodiscard]] QString getSearchConfigStartIP() const;
    Q_INVOKABLE void setSearchConfigStartIP(const QString &address);
    Q_INVOKABLE [[nodiscard]] QString getSearchConfigEndIP() const;
    Q_INVOKABLE void setSearchConfigEndIP(const QString &address);
    /// Spelt as the scene calls it.
    Q_INVOKABLE [[nodiscard]] QString getSearchConfigUsrename() const;
    Q_INVOKABLE void setSearchConfigUsername(const QString &user);
    Q_INVOKABLE [[nodiscard]] QString getSearchConfigPass() const;
    Q_INVOKABLE void setSearchConfigPass(const QString &pass);
    Q_INVOKABLE [[nodiscard]] int getSearchConfigLocalDomain() const;
    Q_INVOKABLE void setSearchConfigLocalDomain(int check);
    Q_INVOKABLE [[nodiscard]] int getSearchConfigOtherDomain() const;
    Q_INVOKABLE void setSearchConfigOtherDomain(int check);

    /// Whether a search logs in to the devices that it finds, with the account above. Off unless set.
    Q_INVOKABLE [[nodiscard]] bool searchLogsIn() const;
    Q_INVOKABLE void setSearchLogsIn(bool logsIn);
    /// Which colours the windows have: "light", "dark", or those of the "desktop", as unless set.
    [[nodiscard]] QString colourScheme() const;
    void setColourScheme(const QString &scheme);
    /// Starts the program again with the same arguments and quits this process.
    Q_INVOKABLE void reboot();
    /// Starts the program on the demo site and quits this process.
    Q_INVOKABLE void openDemoSite();
    Q_INVOKABLE [[nodiscard]] QString getVersion() const;
    Q_INVOKABLE [[nodiscard]] QString getSoftwareName() const;
    Q_INVOKABLE [[nodiscard]] QString getLogoSoftwareName() const;
    // Each shows a document with the program that the system has for it: documentRequested() follows.
    Q_INVOKABLE void OpenHelpFile();
    Q_INVOKABLE void OpenQAFile();
    Q_INVOKABLE [[nodiscard]] QString getAppPath() const;
    /// Indexes into languageCodes of the languages without a translation file, ascending.
    Q_INVOKABLE [[nodiscard]] QVariantList getRemoveLanguageList() const;
    Q_INVOKABLE [[nodiscard]] QPoint cursorPos() const;

    /// How many devices a batch works on at the same time: 1 to 32, and 8 when the file says nothing else, or
    /// nothing that makes sense.
    [[nodiscard]] int devicesAtOnce() const;

    /// How many devices may be upgraded at the same time: 1 to 16, and 4 when the file says nothing else, or
    /// something that is no such number.
    Q_INVOKABLE [[nodiscard]] int upgradesAtOnce() const;
    Q_INVOKABLE void setUpgradesAtOnce(int count);

    void setCurrentLanguage(const QString &code);
    [[nodiscard]] bool hasTranslation(const QString &code) const;
    [[nodiscard]] QString settingsPath() const { return m_settingsPath; }
    /// Paths of the translation files that exist, in the order of languageCodes.
    [[nodiscard]] QStringList languageFiles() const { return m_languageFiles; }

    /// Takes the single-instance lock for the life of this object. Returns true when another instance holds
    /// it. A lock that a killed process left behind is taken over.
    [[nodiscard]] bool anotherInstanceRuns();

Q_SIGNALS:
    /// The system was asked to show a document. `isHandedOver` is false when the file is not there, or when
    /// the system cannot do that; whether a program shows it is not known.
    void documentRequested(const QString &path, bool isHandedOver);

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
    std::unique_ptr<QSharedMemory> m_instanceLock; ///< null while not held
    QVariantList m_removedLanguages;
    QStringList m_languageFiles;
};
