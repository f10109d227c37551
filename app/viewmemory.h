// Stores the arrangement of the window.
#pragma once

#include <QMap>
#include <QObject>
#include <QString>
#include <QTimer>

/// Named strings in the group "view" of the settings file: columns and order of the tables, tab and position
/// of the window. The other settings are not changed.
///
/// Changes of one second are written together, because a drag of a column has many steps. Nothing is written
/// without a settings file: a file with these strings alone would lack the defaults of the other settings.
/// Main thread only.
class ViewMemory : public QObject
{
    Q_OBJECT
public:
    static constexpr qsizetype longestText =
        4096; ///< in characters; longer ones are not stored and read as empty

    explicit ViewMemory(QString settingsPath, QObject *parent = nullptr);
    ~ViewMemory() override; ///< writes pending changes

    /// The string of this name; empty if there is none.
    Q_INVOKABLE [[nodiscard]] QString text(const QString &name) const;

    /// Sets the string of this name. It is written within a second.
    Q_INVOKABLE void keep(const QString &name, const QString &text);

    /// Writes pending changes. Blocks until they are on disk.
    Q_INVOKABLE void write();

Q_SIGNALS:
    /// The first of consecutive failed writes. The changes stay pending for the next one.
    void failed();

private:
    const QString m_settingsPath;
    QMap<QString, QString> m_pending; ///< by name
    bool m_hasFailed = false;         ///< the last write has failed
    QTimer m_delay;
};
