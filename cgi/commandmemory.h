#pragma once

#include <QStringList>

/// The recent and the favourite commands, in a small file. There is one object for a file. If the file cannot
/// be written, a warning is logged, and the commands are kept until the end of the process.
class CommandMemory
{
public:
    static constexpr qsizetype mostRecent = 20;
    static constexpr qsizetype mostFavourites = 200;
    static constexpr qsizetype longestCommand = 2048; ///< longer ones are not stored

    /// Reads the file, if it exists. Entries beyond the limits are ignored.
    explicit CommandMemory(const QString &path);

    /// The latest first, without duplicates.
    [[nodiscard]] const QStringList &recent() const { return m_recent; }
    /// Spaces at the ends are removed. Ignores an empty or too long command.
    void remember(const QString &command);

    /// In the order in which they were added.
    [[nodiscard]] const QStringList &favourites() const { return m_favourites; }
    /// Same; also ignores a new favourite beyond the limit.
    void setFavourite(const QString &command, bool isFavourite);

private:
    void read();
    void write() const;

    const QString m_path;
    QStringList m_recent;
    QStringList m_favourites;
};
