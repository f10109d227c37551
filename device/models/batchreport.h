#pragma once

#include "device/registry/loginresult.h"

#include <QHash>
#include <QObject>
#include <QStringList>

/// The results of a batch, by device. Each device of the batch is in one of these states: succeeded, failed,
/// skipped, waiting for a further step, or not done. Nothing is stored on disk. Lives on the main thread.
class BatchReport : public QObject
{
    Q_OBJECT
    Q_PROPERTY(int total READ total NOTIFY changed)
    Q_PROPERTY(int succeeded READ succeeded NOTIFY changed)
    Q_PROPERTY(int waiting READ waiting NOTIFY changed)
    Q_PROPERTY(int failed READ failed NOTIFY changed)
    Q_PROPERTY(int skipped READ skipped NOTIFY changed)
    Q_PROPERTY(int notDone READ notDone NOTIFY changed)
    Q_PROPERTY(QString summary READ summary NOTIFY changed)
public:
    /// The results that are not failures. Every other result is a failure: a LoginResult, or another code of
    /// resultName().
    enum Result
    {
        Waiting = resultCode(LoginResult::Unknown), ///< a further step follows
        Succeeded = resultCode(LoginResult::Success),
        NotDone = resultCode(LoginResult::NotDone),               ///< no result yet, or not reached
        NotInitialised = resultCode(LoginResult::NotInitialised), ///< skipped
        Upgrading = resultCode(LoginResult::Upgrading),           ///< skipped
    };
    Q_ENUM(Result)

    /// Whether the result means that the batch sends no request to the device because of the device's state.
    /// The preview of a batch shows these devices before its start.
    [[nodiscard]] static constexpr bool isSkipped(int result)
    {
        return result == NotInitialised || result == Upgrading;
    }

    explicit BatchReport(QObject *parent = nullptr);

    /// Clears the report and sets each device to NotDone. A name that is listed twice counts as two devices.
    Q_INVOKABLE void begin(const QStringList &devices);

    /// Sets the result of the first device with this name whose result is NotDone or Waiting. Does nothing
    /// if there is none: any other result is final.
    void note(const QString &device, int result);

    /// Same for several devices, with one changed() for all. Both lists must have the same length.
    void note(const QStringList &devices, const QList<int> &results);

    /// The names of the devices with this result, in the order of the batch.
    Q_INVOKABLE [[nodiscard]] QStringList devicesWith(int result) const;
    /// The names of all devices whose result is not Succeeded, in the order of the batch.
    Q_INVOKABLE [[nodiscard]] QStringList devicesNotSucceeded() const;

    /// devicesNotSucceeded() followed by `leftOut`, the devices that were not part of the batch.
    Q_INVOKABLE [[nodiscard]] QStringList devicesLeft(const QStringList &leftOut) const
    {
        return devicesNotSucceeded() + leftOut;
    }

    /// Sets the devices that wait for a further step to NotDone. Returns their names.
    Q_INVOKABLE QStringList cancelWaiting();

    [[nodiscard]] int total() const { return static_cast<int>(m_entries.size()); }
    [[nodiscard]] int succeeded() const { return m_counts.value(Succeeded); }
    [[nodiscard]] int waiting() const { return m_counts.value(Waiting); }
    [[nodiscard]] int skipped() const;
    [[nodiscard]] int notDone() const { return m_counts.value(NotDone); }
    [[nodiscard]] int failed() const { return total() - succeeded() - waiting() - skipped() - notDone(); }

    /// The numbers of devices by state, in the user's language. States without devices are omitted; empty
    /// for an empty batch.
    [[nodiscard]] QString summary() const;

    /// Same for a running batch: the text calls NotDone devices pending.
    [[nodiscard]] QString summaryOfRunning() const;

Q_SIGNALS:
    void changed(); ///< a result has changed, or begin() was called

private:
    struct Entry
    {
        QString device;
        int result = NotDone;
    };

    [[nodiscard]] QString summaryWith(const QString &notDoneText) const;
    [[nodiscard]] bool take(const QString &device, int result); ///< false: not a device of the batch
    void setResult(qsizetype index, int result);

    QList<Entry> m_entries;
    QHash<QString, QList<qsizetype>> m_indexesByDevice; ///< indexes in m_entries, by device
    QHash<int, int> m_counts;                           ///< entries by result
};
