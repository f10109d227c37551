#pragma once

#include <QObject>
#include <QStringList>

/// The crash reports of earlier starts, for QML. Main thread only.
class CrashReports : public QObject
{
    Q_OBJECT
    Q_PROPERTY(int count READ count NOTIFY changed)
public:
    static constexpr int maximumReports = 5;
    static constexpr qint64 maximumBytes = qint64{256} * 1024; ///< of a report in text(); the rest is cut

    /// Lists the reports in `folder` and deletes all but the latest maximumReports. The folder need not
    /// exist.
    explicit CrashReports(const QString &folder, QObject *parent = nullptr);

    [[nodiscard]] int count() const { return static_cast<int>(m_paths.size()); }

    /// The reports, the latest first, with an empty line between them. A report that cannot be read is
    /// replaced by the reason.
    Q_INVOKABLE [[nodiscard]] QString text() const;

    /// Deletes the listed reports; the list is empty then. A report that cannot be deleted is listed again at
    /// the next start.
    Q_INVOKABLE void remove();

Q_SIGNALS:
    void changed(); ///< remove() was called

private:
    QStringList m_paths; ///< the latest first
};
