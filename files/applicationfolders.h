// The folders of the application's own files and of the files that it stores.
#pragma once

#include <QString>

/// Name of the file that marks an installed copy, in the folder of the executable.
inline constexpr const char *installedMarkName = "installed.txt";

/// A portable copy stores everything in the folder of its executable, except where a function below names the
/// working directory. An installed copy stores everything in the folders of the user that the desktop defines
/// (XDG base directories and user directories). A copy is installed if its folder is not writable, or
/// contains the mark, which is needed for the administrator: every folder is writable for the administrator.
///
/// Paths of folders have no trailing "/" unless stated otherwise. The folders need not exist. An object is
/// immutable.
class ApplicationFolders
{
public:
    /// The folders of the running application, determined once. The first call requires the application
    /// object, and creates configuration() and data() of an installed copy, readable by the user only. Any
    /// thread.
    static const ApplicationFolders &current();

    /// The folders of a copy whose executable is in `program`.
    explicit ApplicationFolders(const QString &program);

    /// Whether this copy is portable.
    [[nodiscard]] bool isPortable() const { return m_isPortable; }

    /// The folder of the executable, with the files that the application only reads: translations, documents,
    /// templates, device libraries.
    [[nodiscard]] const QString &program() const { return m_program; }

    /// The folder of the settings.
    [[nodiscard]] const QString &configuration() const { return m_configuration; }

    /// The path of the file "p2p.ini" with the settings of the port agent for devices behind NAT. For a
    /// portable copy it is relative to the working directory.
    [[nodiscard]] QString portAgentSettings() const;

    /// The folder of the files with accounts, certificates, notes and typed commands.
    [[nodiscard]] const QString &data() const { return m_data; }

    /// The folder of the crash reports, in data().
    [[nodiscard]] QString crashReports() const { return m_data + QStringLiteral("/crashes"); }

    /// The folder of the saved devices, in data(), with a trailing "/".
    [[nodiscard]] QString favourites() const;

    /// The folder that contains a folder of snapshots for each device: for a portable copy "snap" in the
    /// working directory at the time of the call, otherwise "ConfigTools" in the pictures of the user.
    [[nodiscard]] QString snapshots() const;

    /// The folder of the images and recordings that devices send in response to commands: for a portable copy
    /// program(), otherwise "ConfigTools" in the documents of the user.
    [[nodiscard]] const QString &responses() const { return m_responses; }

    /// The path of the translation file of a language code. For a portable copy it is relative to the working
    /// directory.
    [[nodiscard]] QString translation(const QString &code) const;

    /// Creates configuration() and data() of an installed copy, readable by the user only. Existing folders
    /// are not changed. A failure is not reported here; the first write into the folder fails.
    void createMissing() const;

private:
    const QString m_program;
    const bool m_isPortable;
    QString m_configuration;
    QString m_data;
    QString m_responses;
    QString m_snapshots; ///< empty for a portable copy
};
