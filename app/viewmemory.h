// Stores the arrangement of the window.
#pragma once

#include <QMap>
#include <QObject>
#include <QString>
#include <QTimer>

/// Named strings in the group "view" of the settings file, for QML: columns and order of the tables, tab and
/// position of the window. QML chooses the names and the form of the strings. The other settings are not
/// changed.
///
/// All changes are written together, one second after the last one, because a drag of a column changes the
/// string many times. Without a settings file, nothing is written and the changes stay pending: a file with
/// these strings alone would lack the defaults of the other settings. Main thread only.
class ViewMemory : public QObject
{
    Q_OBJECT
public:
    static constexpr qsizetype longestText =
        4096; ///< in characters; a longer string in the file reads as empty

    /// `settingsPath` is the path of the settings file.
    explicit ViewMemory(QString settingsPath, QObject *parent = nullptr);
    ~ViewMemory() override; ///< writes pending changes

    /// The string of this name, also if it is not written yet; empty if there is none.
    Q_INVOKABLE [[nodiscard]] QString text(const QString &name) const;

    /// Sets the string of this name. It is written later, see above. A string of more than longestText
    /// characters is ignored: the earlier one stays.
    Q_INVOKABLE void keep(const QString &name, const QString &text);

    /// Writes pending changes before it returns.
    Q_INVOKABLE void write();

Q_SIGNALS:
    /// A write has failed. Emitted for the first of several failures in a row. The changes stay pending and
    /// are written with the next change or write(). Not emitted if there is no settings file.
    void failed();

private:
    const QString m_settingsPath;
    QMap<QString, QString> m_pending; ///< by name
    bool m_hasFailed = false;         ///< the last write has failed
    QTimer m_delay;
};
