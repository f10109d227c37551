// Notes of the user about devices.
#pragma once

#include <QHash>
#include <QObject>
#include <QString>
#include <QVariantMap>

class QJsonObject;

/// Text: the note about the device of a row. Rows in tables have it, those of the list do not.
inline constexpr QLatin1StringView noteKey("note");

/// A line of text for each device that the user has written one for. A device is known by its MAC, else by
/// its UUID, so that a note is there again after each search and each change of the address; one that reports
/// neither has no note.
///
/// The notes are in a file of the user. A file that cannot be opened is not written either; a damaged one is
/// kept under another name when a note is written. Lives on the scene's thread.
class DeviceNotes : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString problem READ problem NOTIFY changed)
    Q_PROPERTY(int longestNote READ longestNote CONSTANT)
public:
    static constexpr qsizetype mostNotes = 20'000;
    static constexpr qint64 largestFile = 64LL * 1024 * 1024;

    /// Reads the file, which need not exist.
    explicit DeviceNotes(QString path, QObject *parent = nullptr);

    /// Why notes are missing although there is a file, in the user's language; else empty.
    [[nodiscard]] QString problem() const { return m_problem; }

    [[nodiscard]] static int longestNote() { return 200; } ///< letters that a new note may have
    [[nodiscard]] qsizetype count() const { return m_notes.size(); }

    /// The note of the device of a row; empty when there is none.
    [[nodiscard]] QString noteOf(const QJsonObject &row) const;

    // For rows as the tables' get() returns them.
    Q_INVOKABLE [[nodiscard]] QString noteOf(const QVariantMap &row) const;
    Q_INVOKABLE [[nodiscard]] bool canNote(const QVariantMap &row) const;

    /// Stores the note of the device of a row; an empty one removes it. Line breaks become blanks. Returns
    /// why it could not be stored, in the user's language; the earlier note stays then. Blocks until the disk
    /// has the file.
    Q_INVOKABLE [[nodiscard]] QString setNote(const QVariantMap &row, const QString &note);

Q_SIGNALS:
    void changed();

private:
    enum class State
    {
        Sound,
        Unopened,
        Damaged,
    };

    void read();
    [[nodiscard]] QString write(const QHash<QString, QString> &notes) const;

    const QString m_path;
    State m_state = State::Sound;
    QString m_problem;
    QHash<QString, QString> m_notes; ///< by identity
};
