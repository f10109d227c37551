// Marks of the devices whose last batch failed.
#pragma once

#include <QHash>
#include <QList>
#include <QObject>
#include <QSet>
#include <QStringList>

/// Marks the devices for which a batch failed or which it did not reach. The pages filter their devices by
/// the marks and show the results. A mark remains until a later batch of the same work succeeds for the
/// device, or until the user clears all marks. A mark belongs to the name of a row (see rowName()). It
/// survives a change of the device's address, and a search: Batches sets the marked rows as
/// DeviceStore::setKept(), so that the search does not remove them. A name need not have a row.
///
/// The marks are in memory only. Lives on the main thread.
class FailedMarks : public QObject
{
    Q_OBJECT
    Q_PROPERTY(int count READ count NOTIFY changed)
    Q_PROPERTY(QStringList operations READ operations NOTIFY changed)
public:
    /// The result of a batch for one device.
    struct Outcome
    {
        QString identity; ///< name of the row
        int result = 0;   ///< a result code, see BatchReport::Result
        QString message;  ///< message for the user
    };

    explicit FailedMarks(QObject *parent = nullptr) : QObject(parent) {}

    /// Updates the marks with the results of a batch. `work` is the id of the work: the new results replace
    /// the marks of earlier batches with the same id, for the devices in `outcomes`. `title` is the name of
    /// the work for the user; the functions below call it the operation. A device that waits for a further
    /// step or was skipped (see BatchReport) keeps its marks and gets no new one. A success only removes
    /// marks. Messages are cut to one line of 160 characters.
    void note(const QString &work, const QString &title, const QList<Outcome> &outcomes);

    Q_INVOKABLE void clear(); ///< removes all marks

    /// Titles of the work that has marks, in alphabetical order, each once.
    [[nodiscard]] QStringList operations() const;

    // In the following functions only the marks of `operation`, one of operations(), count. Empty: all marks.

    /// The number of marked devices.
    [[nodiscard]] int count(const QString &operation = {}) const;

    /// Whether the device is marked.
    [[nodiscard]] bool contains(const QString &identity, const QString &operation = {}) const;

    /// The result (see resultName()) of the most recent mark of the device, in the user's language; empty if
    /// it has none.
    [[nodiscard]] QString reasonOf(const QString &identity, const QString &operation = {}) const;

    // The following functions consider all marks.

    /// The names of the marked rows.
    [[nodiscard]] QSet<QString> identities() const { return {m_failures.keyBegin(), m_failures.keyEnd()}; }

    /// Whether all marks of the device are from batches that did not reach it. True if it is not marked.
    [[nodiscard]] bool isOnlyNotDone(const QString &identity) const;

    /// The marks of the device, most recent first: a line of title and message for each; empty if it is not
    /// marked. Equal lines are shown once.
    [[nodiscard]] QString messagesOf(const QString &identity) const;

Q_SIGNALS:
    void changed(); ///< marks were added, replaced or removed

private:
    struct Failure
    {
        QString work;
        QString title;
        int result = 0;
        QString message; ///< title of the work and message
    };

    /// Returns whether a failure was removed.
    bool removeFailure(const QString &identity, const QString &work);

    QHash<QString, QList<Failure>> m_failures; ///< by identity; most recent first
};
