// The running work with devices, and the actions that must wait for it.
#pragma once

#include <QObject>
#include <QString>
#include <QStringList>

#include <functional>
#include <vector>

/// The list of running work: batches, imports, single requests, searches. Code that starts work adds it here
/// and removes it at its end; code that starts an action checks refusal() before.
///
/// Lives on the main thread. QML adds work with BusyReport.
class BusyState : public QObject
{
    Q_OBJECT
public:
    /// The resource that a work needs until its end.
    enum Need
    {
        Program, ///< the application must not end
        Rows,    ///< like Program; the device rows with their addresses and accounts must also stay
        Listing, ///< a search: the application must not end before the search
        Edits,   ///< unsaved input: the user is asked before it is lost
    };
    Q_ENUM(Need)

    /// An action that running work can block.
    enum Action
    {
        Search,        ///< removes all rows
        Delete,        ///< removes rows
        ChangeAddress, ///< of devices that the work may access by their address
        Close,
        Restart,
        ChangeTab, ///< never refused: work continues in the background
    };
    Q_ENUM(Action)

    /// `isUpgrading` returns whether the firmware of any device is being upgraded; empty for never.
    explicit BusyState(std::function<bool()> isUpgrading, QObject *parent = nullptr);

    /// Adds a work. `title` is its name for the user. Returns its number for end(), never 0.
    int begin(const QString &title, Need need);

    /// Changes the title of a work. Does nothing for an unknown number.
    void rename(int work, const QString &title);

    /// Removes a work. Does nothing for an unknown number.
    void end(int work);

    /// Whether running work needs the rows.
    [[nodiscard]] bool areRowsInUse() const;

    /// The reason why an action must wait, as a sentence for the user with the titles of the running work;
    /// empty if the action may start. Running upgrades block Search, Close and Restart. They do not block
    /// Delete and ChangeAddress: the back end refuses these for the devices concerned.
    Q_INVOKABLE [[nodiscard]] QString refusal(BusyState::Action action) const;

    /// Whether the action discards unsaved input, so that the user must be asked first.
    Q_INVOKABLE [[nodiscard]] bool losesEdits(BusyState::Action action) const;

Q_SIGNALS:
    void changed(); ///< work was added or removed

private:
    struct Work
    {
        int number = 0;
        QString title;
        Need need = Rows;
    };

    [[nodiscard]] QStringList titlesThatBlock(Action action) const;

    const std::function<bool()> m_isUpgrading;
    std::vector<Work> m_works; ///< in the order of begin()
    int m_lastNumber = 0;
};
