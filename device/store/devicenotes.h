// Notes of the user about devices.
#pragma once

#include <QHash>
#include <QList>
#include <QObject>
#include <QString>
#include <QVariantMap>

#include <utility>

class QJsonObject;

/// String: the note of the user about the device. Rows of tables have this key, rows of DeviceStore do not.
inline constexpr QLatin1StringView noteKey("note");

/// A line of text for each device that the user has annotated. A device is identified by its MAC, or by its
/// UUID if it has not reported a MAC. Its note therefore survives searches and changes of the address. A note
/// that was stored before the device reported its MAC is found by the UUID. A device that reports neither
/// cannot have a note.
///
/// The notes are stored in a JSON file. While the file exists but cannot be opened, setNote() fails and the
/// file is not changed. If the file is damaged, its valid notes are used; the next setNote() that writes
/// renames the damaged file and writes a new one. Lives on the main thread.
class DeviceNotes : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString problem READ problem NOTIFY changed)
    Q_PROPERTY(int longestNote READ longestNote CONSTANT)
public:
    /// Maximum number of notes. A file with more counts as damaged; setNote() refuses a further one.
    static constexpr qsizetype mostNotes = 20'000;
    static constexpr qint64 largestFile = 64LL * 1024 * 1024; ///< bytes; a longer file counts as damaged

    /// Reads the file at `path` in this call. A missing file contains no notes and is no problem().
    explicit DeviceNotes(QString path, QObject *parent = nullptr);

    /// The reason why the file could not be read completely, in the user's language. Empty if it was, and
    /// after the next note was written.
    [[nodiscard]] QString problem() const { return m_problem; }

    /// Maximum length of a new note in characters. A longer note from the file may be replaced by any note
    /// that is not longer than it.
    [[nodiscard]] static int longestNote() { return 200; }
    [[nodiscard]] qsizetype count() const { return m_notes.size(); } ///< number of notes

    /// The note of the device of a row, which is identified by the keys "mac" and "identity" of DeviceRowKey;
    /// empty if it has none.
    [[nodiscard]] QString noteOf(const QJsonObject &row) const;

    // The following functions are for QML. `row` is the map from get() of a table model.

    /// Same as the other noteOf().
    Q_INVOKABLE [[nodiscard]] QString noteOf(const QVariantMap &row) const;
    /// Whether the device has reported a MAC or UUID, so that it can have a note.
    Q_INVOKABLE [[nodiscard]] bool canNote(const QVariantMap &row) const;

    /// Stores the note of the device of a row; an empty `note` removes the note. Line breaks and several
    /// spaces become one space, spaces at the ends are removed. Returns an empty string on success, otherwise
    /// the reason of the failure in the user's language; the earlier note is kept then. Blocks until the file
    /// is written. A note that is equal to the earlier one is not written.
    Q_INVOKABLE [[nodiscard]] QString setNote(const QVariantMap &row, const QString &note);

    /// Adds notes to devices that have none, in one write. Each note belongs to the device of its row. A
    /// longer note is cut to longestNote(). Devices without MAC and UUID, and notes beyond mostNotes, are
    /// left out. Returns as setNote(), but does not try again to read a file that could not be opened.
    [[nodiscard]] QString addMissing(const QList<std::pair<QJsonObject, QString>> &added);

Q_SIGNALS:
    /// A note was stored or removed, or setNote() has tried again to read a file that could not be opened
    /// before.
    void changed();

private:
    /// State of the file.
    enum class State
    {
        Valid,    ///< completely read, or missing
        Unopened, ///< exists, but cannot be opened
        Damaged,  ///< opened, but contains invalid text or notes
    };

    void read();
    [[nodiscard]] QString replace(QHash<QString, QString> notes);
    [[nodiscard]] QString write(const QHash<QString, QString> &notes) const;

    const QString m_path;
    State m_state = State::Valid;
    QString m_problem;
    QHash<QString, QString> m_notes; ///< by MAC or name of the UUID, in lower case
};
