#pragma once

#include "device/batch/batchplan.h"
#include "device/models/batchreport.h"

#include <QDateTime>
#include <QObject>
#include <QPointer>
#include <QTimer>
#include <QVariantList>

#include <memory>
#include <mutex>

/// One batch of the session, for the scene: how far it is and what has come of each device. What its steps
/// report on the engine's threads arrives here in groups, one for each painted frame at most.
///
/// Lives on the scene's thread.
class Batch : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString title READ title NOTIFY changed)
    Q_PROPERTY(QString summary READ summary NOTIFY changed)
    Q_PROPERTY(int total READ total CONSTANT)
    Q_PROPERTY(int done READ done NOTIFY changed)
    Q_PROPERTY(double progress READ progress NOTIFY changed)
    Q_PROPERTY(QString device READ device NOTIFY changed)
    Q_PROPERTY(bool running READ isRunning NOTIFY changed)
    Q_PROPERTY(bool stopping READ isStopping NOTIFY changed)
    Q_PROPERTY(bool held READ isHeld NOTIFY changed)
    Q_PROPERTY(int refusalsInARow READ refusalsInARow CONSTANT)
    Q_PROPERTY(QString refusedAccounts READ refusedAccounts NOTIFY changed)
    Q_PROPERTY(int failedBefore READ failedBefore NOTIFY changed)
    Q_PROPERTY(int secondsLeft READ secondsLeft NOTIFY changed)
    Q_PROPERTY(BatchReport *report READ report CONSTANT)
    Q_PROPERTY(bool changesAddresses READ changesAddresses CONSTANT)
    Q_PROPERTY(QString retryRefusal READ retryRefusal NOTIFY changed)
    Q_PROPERTY(QDateTime began READ began CONSTANT)
    Q_PROPERTY(QDateTime ended READ ended NOTIFY changed)
public:
    /// What has come of a device.
    struct Entry
    {
        BatchDevice device;
        StepOutcome outcome = {.result = BatchReport::NotDone, .text = {}};
        QDateTime time;               ///< of the outcome; invalid when nothing was done
        QString refusedAccount = {};  ///< the device has not accepted, when the plan knows accounts
        QByteArray refusedLogin = {}; ///< compared with the account of a retry; holds no password
    };

    /// `engine` lives longer than this.
    Batch(BatchEngine &engine, BatchPlan plan, QObject *parent = nullptr);
    ~Batch() override;

    /// To be called once. Returns false when the engine does not take the batch.
    bool start();

    /// Name of the work, or of the step that its devices wait for and are not given.
    [[nodiscard]] const QString &title() const { return m_title; }
    /// How many devices there are of each kind, in the user's language.
    [[nodiscard]] QString summary() const;
    [[nodiscard]] int total() const { return static_cast<int>(m_entries.size()); }
    [[nodiscard]] int done() const { return m_done; }
    /// From 0 to 1. Devices count when they are done, unless noteProgress() knows more.
    [[nodiscard]] double progress() const;
    /// How far the devices are that are not done, with the others: for steps that take long.
    void noteProgress(double progress);

    /// Address and port of a device that is being worked on, or its name when it has no address; empty when
    /// there is none.
    [[nodiscard]] QString device() const;
    [[nodiscard]] bool isRunning() const { return m_isRunning; }
    [[nodiscard]] bool isStopping() const { return m_isRunning && m_isStopping; }

    /// Too many devices in a row have refused the password: the user decides whether it goes on.
    [[nodiscard]] bool isHeld() const { return m_isRunning && m_isHeld && !m_isStopping; }

    /// How many refused passwords in a row hold the batch.
    [[nodiscard]] int refusalsInARow() const { return m_plan.policy.wrongPasswordsInARow; }

    /// Names of the accounts that devices have not accepted, in a line; empty when the plan knows none.
    [[nodiscard]] QString refusedAccounts() const;

    /// Devices that this batch, which retries another one, has left out, and that failed or were not done
    /// there.
    [[nodiscard]] int failedBefore() const;

    /// Estimated at the last advance of the progress. -1 while there is nothing to estimate from, and when
    /// the time has passed without a further advance.
    [[nodiscard]] int secondsLeft() const;
    [[nodiscard]] BatchReport *report() { return &m_report; }
    /// Whether Batches::putAddressesBack() can undo it.
    [[nodiscard]] bool changesAddresses() const { return !m_plan.addressesBefore.isEmpty(); }
    [[nodiscard]] const QDateTime &began() const { return m_began; }
    [[nodiscard]] const QDateTime &ended() const { return m_ended; }
    [[nodiscard]] const QList<Entry> &entries() const { return m_entries; }
    [[nodiscard]] const BatchPlan &plan() const { return m_plan; }

    /// Whether the batch may be retried, now or after accounts have changed.
    [[nodiscard]] bool hasRetryable() const;

    /// What its steps were made from, such as a password, is kept only as long as it may be retried.
    void forgetSteps();

    /// Leaves out what was not begun. Running steps end at their next safe point.
    Q_INVOKABLE void stop();

    /// Goes on after isHeld().
    Q_INVOKABLE void resume();

    /// The devices that wait for the next step, which is named `title`, do not get it: they are not done.
    Q_INVOKABLE void giveUpWaiting(const QString &title);

    /// The batch whose devices this one tries again.
    void setRetryOf(Batch *earlier);

    /// The accounts of devices have changed: with another one, a device may be tried again.
    void noteAccounts();

    /// The devices that a retry is for: those of this batch and those that it has left out.
    [[nodiscard]] QList<BatchDevice> devicesToRetry() const;

    /// Identities of the devices that failed or were not done, by which pages tick their rows. As the next
    /// ones, also those that this batch has left out.
    Q_INVOKABLE [[nodiscard]] QStringList failedIdentities() const;

    /// Names of the devices that may succeed in a retry.
    Q_INVOKABLE [[nodiscard]] QStringList retryableDevices() const;

    /// Names of the devices of this batch that failed or were not done.
    Q_INVOKABLE [[nodiscard]] QStringList failedDevices() const;

    /// Why no device of the batch can be tried again, in the user's language; empty when one can.
    [[nodiscard]] QString retryRefusal() const;

    /// Whether the batch has ended and the device with this identity may succeed in a retry.
    Q_INVOKABLE [[nodiscard]] bool canRetry(const QString &identity) const;

    /// What a device's outcome says beside its code, here or else in the batch that this one retries; empty
    /// when there is nothing.
    Q_INVOKABLE [[nodiscard]] QString textOf(const QString &device) const;
    Q_INVOKABLE [[nodiscard]] QStringList textsOf(const QStringList &devices) const;

    /// Maps of "device" and "words" for those of the devices that are in this batch, or else in the one that
    /// it retries: what the outcome says, or the meaning of its code.
    Q_INVOKABLE [[nodiscard]] QVariantList wordsOf(const QStringList &devices) const;

    /// The devices that have succeeded until now, in the order in which their results came, but for the first
    /// `known` ones.
    Q_INVOKABLE [[nodiscard]] QStringList succeededDevices(int known) const;

    /// Devices that succeeded but whose outcome says something: they could not take everything.
    Q_INVOKABLE [[nodiscard]] int partlyDone() const;

Q_SIGNALS:
    void changed();

    /// Names of devices and their results, in the order in which they came. At the end of the batch also
    /// those of the devices that were not done.
    void resulted(const QStringList &devices, const QList<int> &results);

    void finished(); ///< once, the last one

private:
    class Mailbox;

    /// The last growth of the progress.
    struct Advance
    {
        double progress = 0;
        qint64 elapsed = 0; ///< milliseconds since the start of the batch
    };

    /// The first of the batch's steps that runs does the preparation before.
    [[nodiscard]] DeviceStep preparedStep(const BatchDevice &device,
                                          const std::shared_ptr<std::once_flag> &flag) const;
    [[nodiscard]] bool isRetryable(const Entry &entry) const;
    [[nodiscard]] bool hasOtherAccount(const Entry &entry) const; ///< than it has refused
    /// Its entries, and behind them those of the batches that it retries of devices that it has left out.
    [[nodiscard]] QList<const Entry *> allEntries() const;
    /// Here or else in the batch that this one retries; null when there is none.
    [[nodiscard]] const Entry *find(const QString &device) const;
    void takeNews();
    void noteAdvance();
    void noteRefusal(Entry &entry) const;
    void deliver(const QList<BatchOutcome> &outcomes) const; ///< to the plan's takeOutcomes
    void finish();

    BatchEngine &m_engine;
    BatchPlan m_plan;
    QString m_title;
    BatchReport m_report;
    QPointer<Batch> m_retryOf; ///< not owned
    QList<Entry> m_entries;
    QHash<QString, qsizetype> m_places; ///< in m_entries, by the device's name
    const std::shared_ptr<Mailbox> m_mailbox;
    QTimer m_frame;
    QStringList m_succeeded;    ///< in the order in which they came
    QList<qsizetype> m_running; ///< places of running steps, in the order of their start
    QDateTime m_began;
    QDateTime m_ended;
    qint64 m_start = 0; ///< milliseconds on the clock of the engine
    int m_number = 0;   ///< in the engine
    int m_done = 0;
    double m_progress = 0; ///< as noted
    Advance m_advance;
    bool m_isRunning = false;
    bool m_isStopping = false;
    bool m_isHeld = false;
};
