// The folders of the application's own files and of the files that it stores.
#pragma once

#include <QString>

/// Name of the file that marks an installed copy, in the folder of the executable.
inline constexpr const char *installedMarkName = "installed.txt";

/// A portable copy stores everything next to its executable. An installed copy stores it in the folders of
/// the user that the desktop defines (XDG base directories and user directories). A copy is installed if its
/// folder is not writable, or contains the mark: for the administrator every folder is writable.
///
/// Folders have no trailing "/" unless stated otherwise, and need not exist.
class ApplicationFolders
{
public:
    /// The folders of the running application, determined once. The first call requires the application
    /// object, and creates configuration() and data() of an installed copy, readable by the user only. Any
    /// thread.
    static const ApplicationFolders &current();

    /// The folders of a copy whose executable is in `program`.
    explicit ApplicationFolders(const QString &program);

    [[nodiscard]] bool isPortable() const { return m_isPortable; }

    /// Files that the application only reads: translations, documents, templates, device libraries.
    [[nodiscard]] const QString &program() const { return m_program; }

    /// The settings.
    [[nodiscard]] const QString &configuration() const { return m_configuration; }

    /// The settings of the port agent for devices behind NAT. A portable copy reads them in the working
    /// directory.
    [[nodiscard]] QString portAgentSettings() const;

    /// Accounts, certificates, notes and typed commands.
    [[nodiscard]] const QString &data() const { return m_data; }

    /// Saved devices, with a trailing "/".
    [[nodiscard]] QString favourites() const;

    /// The folders of the devices' snapshots: "snap" in the working directory of a portable copy, which is
    /// read at each call, otherwise "ConfigTools" in the pictures of the user.
    [[nodiscard]] QString snapshots() const;

    /// Images and recordings that devices send in response to commands.
    [[nodiscard]] const QString &responses() const { return m_responses; }

    /// The translation file of a language code. A portable copy reads it in the working directory.
    [[nodiscard]] QString translation(const QString &code) const;

    /// Creates the folders of settings and data of an installed copy. A failure is reported by the first
    /// write.
    void createMissing() const;

private:
    const QString m_program;
    const bool m_isPortable;
    QString m_configuration;
    QString m_data;
    QString m_responses;
    QString m_snapshots; ///< empty for a portable copy
};
