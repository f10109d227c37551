// How the user has arranged the window: what outlives the program of that.
#pragma once

#include <QMap>
#include <QObject>
#include <QString>
#include <QTimer>

/// Texts by name in the group "view" of the settings file, which hold how the window was left: columns and
/// order of the tables, tab, place. The file's other settings stay as they are.
///
/// What is kept is written a moment later, several changes at once, since a column is dragged in many steps.
/// Without a settings file nothing is written: one with these texts only would lack the defaults of all other
/// settings. Main thread only.
class ViewMemory : public QObject
{
    Q_OBJECT
public:
    static constexpr qsizetype longestText = 4096; ///< longer ones are not kept and read as empty

    explicit ViewMemory(QString settingsPath, QObject *parent = nullptr);
    ~ViewMemory() override; ///< writes what was kept

    /// The text with this name; empty when there is none.
    Q_INVOKABLE [[nodiscard]] QString text(const QString &name) const;

    Q_INVOKABLE void keep(const QString &name, const QString &text);

    /// Writes at once what was kept. Blocks until the disk has it.
    Q_INVOKABLE void write();

Q_SIGNALS:
    /// The first of several failed writes. What was kept is tried again with the next one.
    void failed();

private:
    const QString m_settingsPath;
    QMap<QString, QString> m_pending; ///< by name
    bool m_hasFailed = false;         ///< the last time
    QTimer m_delay;
};
