// The editable table of the channel names of the logged-in device.
#pragma once

#include "device/models/dialogrows.h"

#include <QList>
#include <QVariantList>

/// One row for each channel. An edited name stays in this model until it is written. The roles are those of
/// DialogRows; "identity" is the channel number from 0 as text. The model sends no requests: the page handles
/// writeRequested() and reports the result with takeWritten(). Lives on the main thread.
class ChannelNameForm : public DialogRows
{
    Q_OBJECT
    Q_PROPERTY(int count READ rowCount NOTIFY changed)
    Q_PROPERTY(int changedCount READ changedCount NOTIFY changed)
    Q_PROPERTY(int failedCount READ failedCount NOTIFY changed)   ///< rows whose last write failed
    Q_PROPERTY(int unknownCount READ unknownCount NOTIFY changed) ///< connected cameras with an unknown name
    Q_PROPERTY(bool saving READ isSaving NOTIFY savingChanged)
    Q_PROPERTY(int savingRow READ savingRow NOTIFY savingChanged) ///< the row being written; -1 for none
    Q_PROPERTY(double savingProgress READ savingProgress NOTIFY savingChanged) ///< 0 to 1
public:
    /// The problem that a row shows.
    enum Trouble
    {
        None,
        Unknown,    ///< the device does not report the name
        Empty,      ///< the entered name is empty or has spaces only
        TooLong,    ///< the entered name has more bytes than the device can store
        Refused,    ///< the device refused the last write
        NoResponse, ///< the device did not respond to the last write
        Upgrading,  ///< nothing was written because the device is being upgraded
        Different,  ///< the device accepted the name and reports a different one
    };
    Q_ENUM(Trouble)

    explicit ChannelNameForm(QObject *parent = nullptr) : DialogRows(parent) {}

    [[nodiscard]] int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    [[nodiscard]] int changedCount() const;
    [[nodiscard]] int failedCount() const;
    [[nodiscard]] int unknownCount() const;

    /// Replaces the rows. A null name is a name that the device does not report. `connected` has a bool for
    /// each channel: whether it has a camera. Discards edits that are not written, and ends a running save as
    /// cancelSaving() does.
    Q_INVOKABLE void load(const QVariantList &names, const QVariantList &connected);

    /// Sets the name that the user typed for a row, without control, line-break and bidirectional characters.
    Q_INVOKABLE void set(int row, const QString &typed);

    /// Same for several channels; `channels` are numbers from 0 as strings.
    Q_INVOKABLE void setNames(const QStringList &channels, const QStringList &names);

    /// Restores the saved name.
    Q_INVOKABLE void restoreName(int row);

    /// Truncates the name to the number of bytes that the device can store.
    Q_INVOKABLE void truncate(int row);

    /// The first changed row whose name is empty or too long; -1 if there is none.
    Q_INVOKABLE [[nodiscard]] int firstFaulty() const;

    /// Requests a write of each changed name without spaces at its ends, one after another in channel order,
    /// also of a name that is empty or too long: the caller checks firstFaulty() first. Stops early if the
    /// device does not respond or is being upgraded, since the other writes would fail as well. Does nothing
    /// while saving, or if no name is changed.
    Q_INVOKABLE void save();

    /// Sets the result of a write. `result` is 0, a LoginResult, or an error code of the device library.
    /// `name` is the name that the device has now, null if it is not reported. Continues a running save with
    /// the next row.
    Q_INVOKABLE void takeWritten(int row, int result, const QVariant &name);

    /// Skips the names that are not written yet. The save ends with the result of the current write.
    Q_INVOKABLE void stopSaving();

    /// Ends the save immediately, with saved(). The result of the current write is not waited for.
    Q_INVOKABLE void cancelSaving();

    [[nodiscard]] bool isSaving() const { return !m_rowsToSave.isEmpty(); }
    [[nodiscard]] int savingRow() const;
    [[nodiscard]] double savingProgress() const;

Q_SIGNALS:
    void changed();
    void savingChanged();

    /// Requests the write of one name. The receiver calls takeWritten() with the result.
    void writeRequested(int row, const QString &name);

    /// A save has ended. `rows` names were to be written, the device accepted `written` of them, and
    /// `failedRow` is the first row whose write failed, -1 if none failed.
    void saved(int rows, int written, int failedRow);

protected:
    /// Keys: "num" (from 1), "connected", "name" (edited), "saved" (on the device), "changed", "bytes",
    /// "trouble" (a Trouble) and "identity".
    [[nodiscard]] QVariantMap valuesOf(int row) const override;
    [[nodiscard]] bool isInConflict(int row) const override;

private:
    struct Row
    {
        QString saved;
        QString name;
        bool isReported = false;
        bool isConnected = true;
        Trouble lastWrite = None;

        [[nodiscard]] bool isChanged() const { return name != saved; }
    };

    [[nodiscard]] static bool isFaulty(Trouble trouble) { return trouble == Empty || trouble == TooLong; }
    [[nodiscard]] static bool hasFailed(Trouble trouble)
    {
        return trouble == Refused || trouble == NoResponse || trouble == Upgrading;
    }
    [[nodiscard]] Trouble troubleOf(const Row &row) const;
    void change(int row, const QString &name);
    void notifyRowChanged(int row);
    void requestNext();
    void finishSaving();

    QList<Row> m_rows;            ///< by channel
    QList<int> m_rowsToSave;      ///< of the running save; empty while not saving
    qsizetype m_finishedRows = 0; ///< rows of m_rowsToSave that are finished
    bool m_isWriting = false;     ///< the save waits for takeWritten()
    bool m_isStopping = false;    ///< the save ends with the next takeWritten()
};
