#pragma once

#include <QStringList>

/// The commands that were used last and those that the user keeps, in a small file. One object for a file; a
/// file that cannot be written leaves a warning in the log, and what was remembered stays until the end.
class CommandMemory
{
public:
    static constexpr qsizetype mostRecent = 20;
    static constexpr qsizetype mostFavourites = 200;
    static constexpr qsizetype longestCommand = 2048; ///< longer ones are not remembered

    /// Reads the file, when there is one. What it holds beyond the limits is left out.
    explicit CommandMemory(const QString &path);

    /// The last one first, none twice.
    [[nodiscard]] const QStringList &recent() const { return m_recent; }
    void remember(const QString &command);

    /// In the order in which they became favourites.
    [[nodiscard]] const QStringList &favourites() const { return m_favourites; }
    void setFavourite(const QString &command, bool isFavourite);

private:
    void read();
    void write() const;

    const QString m_path;
    QStringList m_recent;
    QStringList m_favourites;
};
