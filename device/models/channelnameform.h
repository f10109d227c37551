// The names of the channels of the logged-in device, as a table that the user edits.
#pragma once

#include "device/models/dialogrows.h"

#include <QList>
#include <QVariantList>

/// One row for each channel. What the user types stays here until it is written, each channel for itself.
/// Roles are those of DialogRows; "identity" is the channel's number. Asks no device: the page does what
/// writeRequested() asks for and reports the result. Lives on the scene's thread.
class ChannelNameForm : public DialogRows
{
    Q_OBJECT
    Q_PROPERTY(int count READ rowCount NOTIFY changed)
    Q_PROPERTY(int changedCount READ changedCount NOTIFY changed)
    Q_PROPERTY(int failedCount READ failedCount NOTIFY changed) ///< rows whose last write failed
    Q_PROPERTY(int untoldCount READ untoldCount NOTIFY changed) ///< cameras whose name is not known
    Q_PROPERTY(bool saving READ isSaving NOTIFY savingChanged)
    Q_PROPERTY(int savingRow READ savingRow NOTIFY savingChanged) ///< that is being written; -1 for none
    Q_PROPERTY(double savingProgress READ savingProgress NOTIFY savingChanged) ///< 0 to 1
public:
    /// What a row is to be told apart by.
    enum Trouble
    {
        None,
        Unknown,    ///< the device does not report the name
        Empty,      ///< a name is needed
        TooLong,    ///< in bytes
        Refused,    ///< by the device, at the last write
        Unanswered, ///< the device was away at the last write
        Upgrading,  ///< nothing was written: the device is being upgraded
        Different,  ///< the device took the name and has another one now
    };
    Q_ENUM(Trouble)

    explicit ChannelNameForm(QObject *parent = nullptr) : DialogRows(parent) {}

    [[nodiscard]] int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    [[nodiscard]] int changedCount() const;
    [[nodiscard]] int failedCount() const;
    [[nodiscard]] int untoldCount() const;

    /// Takes the names as they were read, null for one that is not reported, and which channels have
    /// a camera. What was changed and not written is gone.
    Q_INVOKABLE void load(const QVariantList &names, const QVariantList &connected);

    /// Takes what the user has typed for a row, without what cannot be seen and breaks lines or turns letters
    /// around.
    Q_INVOKABLE void set(int row, const QString &typed);

    /// The same for several channels, which are given by their numbers from 0 as texts.
    Q_INVOKABLE void setNames(const QStringList &channels, const QStringList &names);

    /// Takes back what was typed.
    Q_INVOKABLE void takeBack(int row);

    /// Leaves as much of a name as the device can hold.
    Q_INVOKABLE void cut(int row);

    /// The first changed row that cannot be written as it is, -1 when there is none.
    Q_INVOKABLE [[nodiscard]] int firstFaulty() const;

    /// Asks for the writing of the changed names, one after another in the order of their channels. Ends
    /// early when the device is away or is being upgraded: the others would end the same. Does nothing during
    /// a saving, or when nothing is changed.
    Q_INVOKABLE void save();

    /// What has come of the writing of a row's name: `result` is 0, a LoginResult, or another code of a
    /// refusal. `name` is what the device has now, null when it is not reported. A saving goes on with the
    /// next row.
    Q_INVOKABLE void takeWritten(int row, int result, const QVariant &name);

    /// Leaves out the names that are not written yet. The saving ends with the name that is being written.
    Q_INVOKABLE void stopSaving();

    /// Ends the saving at once: nothing comes any more of the name that is being written.
    Q_INVOKABLE void dropSaving();

    [[nodiscard]] bool isSaving() const { return !m_rowsToSave.isEmpty(); }
    [[nodiscard]] int savingRow() const;
    [[nodiscard]] double savingProgress() const;

Q_SIGNALS:
    void changed();
    void savingChanged();

    /// The name of a row is to be written; takeWritten() is to follow.
    void writeRequested(int row, const QString &name);

    /// `rows` are those that were to be written. Of them `written` were taken by the device, and `failedRow`
    /// is the first whose write failed, -1 when none has.
    void saved(int rows, int written, int failedRow);

protected:
    /// "num", "connected", "name" (as typed), "saved" (as the device has it), "changed", "bytes", "trouble"
    /// (a number) and "identity".
    [[nodiscard]] QVariantMap valuesOf(int row) const override;
    [[nodiscard]] bool isInConflict(int row) const override;

private:
    struct Row
    {
        QString saved;
        QString name;
        bool isTold = false;
        bool isConnected = true;
        Trouble lastWrite = None;

        [[nodiscard]] bool isChanged() const { return name != saved; }
    };

    [[nodiscard]] static bool isFaulty(Trouble trouble) { return trouble == Empty || trouble == TooLong; }
    [[nodiscard]] static bool hasFailed(Trouble trouble)
    {
        return trouble == Refused || trouble == Unanswered || trouble == Upgrading;
    }
    [[nodiscard]] Trouble troubleOf(const Row &row) const;
    void change(int row, const QString &name);
    void tellOf(int row);
    void requestNext();
    void finishSaving();

    QList<Row> m_rows;         ///< by channel
    QList<int> m_rowsToSave;   ///< of the saving that runs
    qsizetype m_saveTurns = 0; ///< rows that were come to
    bool m_isWriting = false;  ///< takeWritten() is awaited by the saving
    bool m_isStopping = false; ///< with it the saving ends
};
