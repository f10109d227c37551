// Marks of the devices whose last batch failed.
#pragma once

#include <QHash>
#include <QList>
#include <QObject>
#include <QSet>
#include <QStringList>

/// Marks the devices for which a batch failed or which it did not reach. A mark remains until a later batch
/// of the same work succeeds for the device, or until the user clears the marks. It belongs to the name of a
/// row (see rowName()): it survives a search, which keeps the row (see DeviceStore::setKept()), and a change
/// of the device's address.
///
/// Lives on the main thread.
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

    /// Updates the marks with the results of a batch. Batches with the same `work` id replace each other's
    /// marks; `title` is the name of the work, shown to the user: the "operation" of the functions below. A
    /// device that waits for a further step or was skipped keeps its marks and gets no new one.
    void note(const QString &work, const QString &title, const QList<Outcome> &outcomes);

    Q_INVOKABLE void clear(); ///< removes all marks

    /// Titles of the work that has marks, in alphabetical order, each once.
    [[nodiscard]] QStringList operations() const;

    // `operation` is one of operations(): only its marks count. Empty: all marks.

    /// The number of marked devices.
    [[nodiscard]] int count(const QString &operation = {}) const;

    /// Whether the device is marked.
    [[nodiscard]] bool contains(const QString &identity, const QString &operation = {}) const;

    /// The name of the most recent failed result of the device; empty if it is not marked.
    [[nodiscard]] QString reasonOf(const QString &identity, const QString &operation = {}) const;

    /// The names of the marked rows.
    [[nodiscard]] QSet<QString> identities() const { return {m_failures.keyBegin(), m_failures.keyEnd()}; }

    /// Whether all marks of the device are from batches that did not reach it. True if it is not marked.
    [[nodiscard]] bool isOnlyNotDone(const QString &identity) const;

    /// The failed work of the device, one line for each with its result, most recent first; empty if it is
    /// not marked.
    [[nodiscard]] QString messagesOf(const QString &identity) const;

Q_SIGNALS:
    void changed();

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
