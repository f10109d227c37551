#pragma once

#include "device/registry/loginresult.h"

#include <QHash>
#include <QObject>
#include <QStringList>

/// The results of a batch of devices. Every device that was asked for is accounted for: it succeeded, failed,
/// was skipped, waits for the next step, or was not done.
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
    /// Results beside those of a login. Anything else is a failure, unless isSkipped().
    enum Result
    {
        Waiting = resultCode(LoginResult::Unknown), ///< the next step is still to come
        Succeeded = resultCode(LoginResult::Success),
        NotDone = resultCode(LoginResult::NotDone),
        NotInitialised = resultCode(LoginResult::NotInitialised), ///< skipped
        Upgrading = resultCode(LoginResult::Upgrading),           ///< skipped
    };
    Q_ENUM(Result)

    /// Whether nothing was asked of the device because of its state, as the preview of the batch announces.
    [[nodiscard]] static constexpr bool isSkipped(int result)
    {
        return result == NotInitialised || result == Upgrading;
    }

    explicit BatchReport(QObject *parent = nullptr);

    /// Forgets what there was. The devices are not done until they are noted; a name that is listed twice
    /// stands for two devices.
    Q_INVOKABLE void begin(const QStringList &devices);

    /// Notes the result of a device, the first of that name that is not done or waits. Does nothing for a
    /// device that the batch was not asked for.
    void note(const QString &device, int result);

    /// The same for several devices, with one changed() for all of them. Both lists have the same length.
    void note(const QStringList &devices, const QList<int> &results);

    /// In the order of the batch.
    Q_INVOKABLE [[nodiscard]] QStringList devicesWith(int result) const;
    Q_INVOKABLE [[nodiscard]] QStringList devicesNotSucceeded() const;

    /// The same, with those that were left out of the batch behind them.
    Q_INVOKABLE [[nodiscard]] QStringList devicesLeft(const QStringList &leftOut) const
    {
        return devicesNotSucceeded() + leftOut;
    }

    /// The devices that wait get no next step: they are not done. Returns their names.
    Q_INVOKABLE QStringList giveUpWaiting();

    [[nodiscard]] int total() const { return static_cast<int>(m_entries.size()); }
    [[nodiscard]] int succeeded() const { return m_counts.value(Succeeded); }
    [[nodiscard]] int waiting() const { return m_counts.value(Waiting); }
    [[nodiscard]] int skipped() const;
    [[nodiscard]] int notDone() const { return m_counts.value(NotDone); }
    [[nodiscard]] int failed() const { return total() - succeeded() - waiting() - skipped() - notDone(); }

    /// How many there are of each kind, in the user's language; empty for an empty batch.
    [[nodiscard]] QString summary() const;

    /// The same while the batch runs: what is not done is still to come.
    [[nodiscard]] QString summaryOfRunning() const;

Q_SIGNALS:
    void changed();

private:
    struct Entry
    {
        QString device;
        int result = NotDone;
    };

    [[nodiscard]] QString summaryWith(const QString &notDoneWords) const;
    [[nodiscard]] bool take(const QString &device, int result); ///< false: it is not of the batch
    void setResult(qsizetype place, int result);

    QList<Entry> m_entries;
    QHash<QString, QList<qsizetype>> m_places; ///< in m_entries, by device
    QHash<int, int> m_counts;                  ///< entries by result
};
