// Notes of the user about devices.
#pragma once

#include <QHash>
#include <QObject>
#include <QString>
#include <QVariantMap>

class QJsonObject;

/// String: the note of the user about the device. Rows of tables have this key, rows of DeviceStore do not.
inline constexpr QLatin1StringView noteKey("note");

/// A line of text for each device that the user has annotated. A device is identified by its MAC, or by its
/// UUID if it has not reported a MAC. Its note therefore survives searches and changes of the address. A
/// device that reports neither has no note.
///
/// The notes are stored in a file. A file that cannot be opened is not written. The valid notes of a damaged
/// file are used, and it is renamed when a note is written. Lives on the main thread.
class DeviceNotes : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString problem READ problem NOTIFY changed)
    Q_PROPERTY(int longestNote READ longestNote CONSTANT)
public:
    static constexpr qsizetype mostNotes = 20'000;
    static constexpr qint64 largestFile = 64LL * 1024 * 1024; ///< bytes; a longer file is damaged

    /// Reads the file, which may be missing.
    explicit DeviceNotes(QString path, QObject *parent = nullptr);

    /// The reason why the file cannot be read completely, in the user's language; otherwise empty.
    [[nodiscard]] QString problem() const { return m_problem; }

    /// Characters of a new note. A longer note in the file may be changed to a shorter one of any length.
    [[nodiscard]] static int longestNote() { return 200; }
    [[nodiscard]] qsizetype count() const { return m_notes.size(); }

    /// The note of the device of a row; empty for none.
    [[nodiscard]] QString noteOf(const QJsonObject &row) const;

    // For rows from get() of the table models.
    Q_INVOKABLE [[nodiscard]] QString noteOf(const QVariantMap &row) const;
    /// Whether the device has reported a MAC or UUID.
    Q_INVOKABLE [[nodiscard]] bool canNote(const QVariantMap &row) const;

    /// Stores the note of the device of a row; an empty note removes it. Line breaks and several spaces
    /// become one space, spaces at the ends are removed. Returns an empty string, or the reason of the
    /// failure in the user's language; the earlier note is kept then. Blocks until the file is written.
    Q_INVOKABLE [[nodiscard]] QString setNote(const QVariantMap &row, const QString &note);

Q_SIGNALS:
    void changed(); ///< a note was stored or removed, or the file was read again

private:
    enum class State
    {
        Valid,
        Unopened,
        Damaged,
    };

    void read();
    [[nodiscard]] QString write(const QHash<QString, QString> &notes) const;

    const QString m_path;
    State m_state = State::Valid;
    QString m_problem;
    QHash<QString, QString> m_notes; ///< by identity
};
