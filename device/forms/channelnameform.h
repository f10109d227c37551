// The editable table of the channel names of the logged-in device.
#pragma once

#include "device/models/dialogrows.h"

#include <QList>
#include <QVariantList>

#include <optional>

/// One row for each channel; the index of a row is the number of its channel (from 0). An edited name stays
/// in this model until it is written. The roles are those of DialogRows; "identity" is the channel number
/// from 0 as text. The role "conflict" is true for a row whose changed name is empty or too long, or whose
/// last write failed. The model sends no requests: the page handles writeRequested() and reports the result
/// with takeWritten(). A row index out of range is ignored. Lives on the main thread.
class ChannelNameForm : public DialogRows
{
    Q_OBJECT
    Q_PROPERTY(int count READ rowCount NOTIFY changed)
    /// Rows whose name in this model differs from the name on the device.
    Q_PROPERTY(int changedCount READ changedCount NOTIFY changed)
    Q_PROPERTY(int failedCount READ failedCount NOTIFY changed)   ///< rows whose last write failed
    Q_PROPERTY(int unknownCount READ unknownCount NOTIFY changed) ///< connected cameras with an unknown name
    Q_PROPERTY(bool saving READ isSaving NOTIFY savingChanged)
    Q_PROPERTY(int savingRow READ savingRow NOTIFY savingChanged) ///< the row being written; -1 for none
    Q_PROPERTY(double savingProgress READ savingProgress NOTIFY savingChanged) ///< 0 to 1; 0 while not saving
public:
    /// The problem that a row shows: of the entered name, otherwise of the last write of the row.
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

    /// Replaces the rows, one for each entry of `names`; a null entry is a name that the device does not
    /// report. `connected` has a bool for each channel: whether it has a camera (true if the entry is
    /// missing). Discards edits that are not written. Before that, a running save ends as with
    /// cancelSaving().
    Q_INVOKABLE void load(const QVariantList &names, const QVariantList &connected);

    /// Sets the name that the user typed for a row. Control characters, line separators and direction marks
    /// are removed. A changed name clears the trouble of the last write.
    Q_INVOKABLE void set(int row, const QString &typed);

    /// Same for several channels. `channels` are numbers from 0 as strings; `names` has the name of each.
    Q_INVOKABLE void setNames(const QStringList &channels, const QStringList &names);

    /// Sets the name to the one on the device.
    Q_INVOKABLE void restoreName(int row);

    /// Truncates the name at a character boundary to the number of bytes that the device can store, without
    /// spaces at its ends.
    Q_INVOKABLE void truncate(int row);

    /// The first changed row whose name is empty or too long; -1 if there is none.
    Q_INVOKABLE [[nodiscard]] int firstFaulty() const;

    /// Starts a save: requests a write of each changed name without spaces at its ends, one after another in
    /// channel order, with writeRequested(). A name that is empty or too long is written as well: the caller
    /// checks firstFaulty() first. The save ends early if the device does not respond or is being upgraded,
    /// since the other writes would fail as well; it continues after a refusal. Emits saved() at the end.
    /// Does nothing while saving, or if no name is changed.
    Q_INVOKABLE void save();

    /// Sets the result of a write. `result` is 0, LoginResult::Upgrading (trouble Upgrading), or an error
    /// code of the device library: NoResponse if isDeviceAway(), otherwise Refused; no other LoginResult.
    /// `name` is the name that the device reports after a success, null if it reports none. It becomes the
    /// name of the row; for null the written name does. A name that was edited after writeRequested() stays
    /// in the row as a change, also after a success. After a failure the edited name stays. If `row` is
    /// savingRow, the save continues with the next row.
    Q_INVOKABLE void takeWritten(int row, int result, const QVariant &name);

    /// Ends the save after the current write: the remaining names are not written, and stay edited. The save
    /// ends immediately if no write is running.
    Q_INVOKABLE void stopSaving();

    /// Ends the save immediately, with saved(). A result of the current write that arrives later is still
    /// set, but does not count in saved(). Does nothing while not saving.
    Q_INVOKABLE void cancelSaving();

    [[nodiscard]] bool isSaving() const { return !m_rowsToSave.isEmpty(); }
    [[nodiscard]] int savingRow() const;
    [[nodiscard]] double savingProgress() const;

Q_SIGNALS:
    void changed(); ///< names, troubles or counts
    void savingChanged();

    /// Requests the write of one name. The receiver calls takeWritten() with the result, once.
    void writeRequested(int row, const QString &name);

    /// A save has ended. `rows` names were to be written, and the device accepted `written` of them, also
    /// those with the trouble Different. `failedRow` is the first row with the trouble Refused, NoResponse
    /// or Upgrading after its write, also if its name was edited since; -1 if there is none.
    void saved(int rows, int written, int failedRow);

protected:
    /// Keys: "num" (from 1), "connected", "name" (edited), "saved" (on the device), "changed", "bytes" (of
    /// the edited name in UTF-8, without spaces at its ends), "trouble" (a Trouble) and "identity".
    [[nodiscard]] QVariantMap valuesOf(int row) const override;
    [[nodiscard]] bool isInConflict(int row) const override;

private:
    struct Row
    {
        QString saved;
        QString name;
        std::optional<QString> sent = {}; ///< name of the last writeRequested()
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
    int m_writtenRows = 0;        ///< of them, those that the device has accepted
    int m_failedRow = -1;         ///< first of them with a failure; -1 for none
    bool m_isWriting = false;     ///< the save waits for takeWritten()
    bool m_isStopping = false;    ///< the save ends with the next takeWritten()
};
