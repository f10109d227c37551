// Devices that batches have failed with.
#pragma once

#include <QHash>
#include <QList>
#include <QObject>
#include <QSet>

/// The devices that a batch failed with or did not come to. Each stays marked until a later batch of the same
/// work succeeds with it, or until the user clears the marks. A mark belongs to the name of a row (see
/// rowName()): it lives through a search, which keeps the row (see DeviceStore::setKept()), and through a
/// change of its address.
///
/// Lives on the scene's thread.
class FailedMarks : public QObject
{
    Q_OBJECT
    Q_PROPERTY(int count READ count NOTIFY changed)
public:
    /// What has come of a device.
    struct Outcome
    {
        QString identity;
        int result = 0;
        QString words; ///< the result for the user
    };

    explicit FailedMarks(QObject *parent = nullptr) : QObject(parent) {}

    /// Takes what has come of the devices of a batch. `work` tells which batches do the same, `title` names
    /// it for the user. A device that waits for a next step, or is skipped, keeps its marks and gets none.
    void note(const QString &work, const QString &title, const QList<Outcome> &outcomes);

    Q_INVOKABLE void clear();

    [[nodiscard]] int count() const { return static_cast<int>(m_failures.size()); }
    [[nodiscard]] bool contains(const QString &identity) const { return m_failures.contains(identity); }

    /// The names of the marked rows.
    [[nodiscard]] QSet<QString> identities() const { return {m_failures.keyBegin(), m_failures.keyEnd()}; }

    /// Name of the result that the device had in the last work that failed; empty when it is not marked.
    [[nodiscard]] QString reasonOf(const QString &identity) const;

    /// Whether no work has failed with the device: those of its marks did not come to it.
    [[nodiscard]] bool isOnlyNotDone(const QString &identity) const;

    /// The works that failed with the device, each in a line with its result, the last one first; empty when
    /// it is not marked.
    [[nodiscard]] QString wordsOf(const QString &identity) const;

Q_SIGNALS:
    void changed();

private:
    struct Failure
    {
        QString work;
        int result = 0;
        QString words; ///< with the title of the work
    };

    /// Returns whether there was one.
    bool forget(const QString &identity, const QString &work);

    QHash<QString, QList<Failure>> m_failures; ///< by identity; the last one first
};
