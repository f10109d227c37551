#pragma once

#include <QStringList>

/// The recent and the favourite commands of the user, in a small JSON file. There is one object for a file,
/// used on one thread. Each change writes the file before it returns. If the file cannot be written, a
/// warning is logged, and the commands are kept in memory only.
class CommandMemory
{
public:
    static constexpr qsizetype mostRecent = 20;
    static constexpr qsizetype mostFavourites = 200;
    static constexpr qsizetype longestCommand = 2048; ///< characters; longer commands are not stored

    /// Reads the file, if it exists. Entries beyond the limits are ignored. A file of more than 4 MiB and an
    /// invalid one count as empty, a warning is logged, and the next change renames the file and writes a new
    /// one. A file that cannot be opened counts as empty, a warning is logged, and it is never written.
    explicit CommandMemory(const QString &path);

    /// The recent commands, the latest first, without duplicates. At most mostRecent.
    [[nodiscard]] const QStringList &recent() const { return m_recent; }
    /// Makes a command the latest one, and removes the oldest one beyond mostRecent. Spaces at the ends are
    /// removed. An empty or too long command is ignored.
    void remember(const QString &command);

    /// The favourite commands, in the order in which they were added. At most mostFavourites.
    [[nodiscard]] const QStringList &favourites() const { return m_favourites; }
    /// Adds a favourite command at the end, or removes it. Spaces at the ends are removed. An empty or too
    /// long command, and a new one beyond mostFavourites, is ignored.
    void setFavourite(const QString &command, bool isFavourite);

private:
    /// State of the file.
    enum class State
    {
        Valid,    ///< read, or missing
        Unopened, ///< exists, but cannot be opened
        Damaged,  ///< opened, but contains no commands
    };

    void read();
    void write();

    const QString m_path;
    State m_state = State::Valid;
    QStringList m_recent;
    QStringList m_favourites;
};
