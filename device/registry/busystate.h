// The running work with devices, and the actions that must wait for it.
#pragma once

#include <QObject>
#include <QString>
#include <QStringList>

#include <functional>
#include <vector>

/// The list of running work: batches, imports, single requests, searches. It only informs: code that starts
/// work must call begin() and, at its end, end(); code that starts an action must check refusal() and
/// losesEdits() before.
///
/// Lives on the main thread; owned by CDeviceFactory. QML adds work with BusyReport.
class BusyState : public QObject
{
    Q_OBJECT
public:
    /// The resource that a work needs until its end.
    enum Need
    {
        Program, ///< the application: blocks Close and Restart
        Rows,    ///< also the device rows with their addresses and accounts: blocks all but ChangeTab
        Listing, ///< a search: blocks Close and Restart, with a message about the search
        Edits,   ///< unsaved input: blocks nothing, see losesEdits()
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

    /// Adds a work. `title` is its name for the user. Returns its number for rename() and end(), never 0.
    int begin(const QString &title, Need need);

    /// Changes the title of the work with this number. Does nothing for an unknown number. Does not emit
    /// changed().
    void rename(int work, const QString &title);

    /// Removes the work with this number. Does nothing for an unknown number.
    void end(int work);

    /// Whether a work with the need Rows is registered.
    [[nodiscard]] bool areRowsInUse() const;

    /// The reason why an action must wait, as a sentence for the user with the titles of the work that blocks
    /// it; empty if the action may start. Running upgrades also block Search, Close and Restart. They do not
    /// block Delete and ChangeAddress: the back end refuses these for the devices that are being upgraded.
    Q_INVOKABLE [[nodiscard]] QString refusal(BusyState::Action action) const;

    /// Whether the action discards unsaved input (a work with the need Edits), so that the user must be asked
    /// first. Only Close, Restart and ChangeTab discard it.
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
