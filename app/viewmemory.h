// The arrangement of the window, which outlives the program.
#pragma once

#include <QMap>
#include <QObject>
#include <QString>
#include <QTimer>

/// Texts by name in the group "view" of the settings file: columns and order of the tables, tab and place of
/// the window. The file's other settings stay as they are.
///
/// Texts are written a moment later, several changes at once, since a column is dragged in many steps.
/// Without a settings file nothing is written: one with these texts only would lack the defaults of all other
/// settings. Main thread only.
class ViewMemory : public QObject
{
    Q_OBJECT
public:
    static constexpr qsizetype longestText = 4096; ///< longer ones are not kept and read as empty

    explicit ViewMemory(QString settingsPath, QObject *parent = nullptr);
    ~ViewMemory() override; ///< writes the kept texts

    /// The text with this name; empty when there is none.
    Q_INVOKABLE [[nodiscard]] QString text(const QString &name) const;

    Q_INVOKABLE void keep(const QString &name, const QString &text);

    /// Writes the kept texts at once. Blocks until the disk has them.
    Q_INVOKABLE void write();

Q_SIGNALS:
    /// The first of several failed writes. The kept texts are tried again with the next one.
    void failed();

private:
    const QString m_settingsPath;
    QMap<QString, QString> m_pending; ///< by name
    bool m_hasFailed = false;         ///< the last time
    QTimer m_delay;
};
