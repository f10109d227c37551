// What the program is doing with devices, and which actions have to wait for it.
#pragma once

#include <QObject>
#include <QString>
#include <QStringList>

#include <functional>
#include <vector>

/// The one place that knows which work is running: batches, imports, single requests, searches. Each work is
/// entered when it begins and removed when it ends; actions that would disturb it ask here first.
///
/// Lives on the scene's thread. The scene enters works with BusyReport.
class BusyState : public QObject
{
    Q_OBJECT
public:
    /// What a work needs until its end.
    enum Need
    {
        Program, ///< the program must not end
        Rows,    ///< and the device rows with their addresses and accounts must stay
        Listing, ///< of a search: the program must not end, unless the user stops the search before
        Edits,   ///< of input that is not saved: the user is asked before it is lost
    };
    Q_ENUM(Need)

    /// What a work can be in the way of.
    enum Action
    {
        Search,        ///< removes all rows
        Delete,        ///< removes rows
        ChangeAddress, ///< of devices that the work may reach by their address
        Close,
        Restart,
        ChangeTab, ///< nothing refuses it: works go on in the background, and keep their devices
    };
    Q_ENUM(Action)

    /// `isUpgrading` tells whether a device's firmware is being upgraded.
    explicit BusyState(std::function<bool()> isUpgrading, QObject *parent = nullptr);

    /// Enters a work. `title` is its name for the user. Returns the number, never 0, that ends it.
    int begin(const QString &title, Need need);

    /// Gives a work another name. Does nothing for a number that is not entered.
    void rename(int work, const QString &title);

    /// Removes a work. Does nothing for a number that is not entered.
    void end(int work);

    /// Whether a work needs the rows.
    [[nodiscard]] bool areRowsHeld() const;

    /// Why an action has to wait, as a sentence for the user that names the works in the way; empty when the
    /// action may begin. Running upgrades are in the way of Search, Close and Restart. Of Delete and
    /// ChangeAddress they are not: the back end refuses these for single devices.
    Q_INVOKABLE [[nodiscard]] QString refusal(BusyState::Action action) const;

    /// Whether the action, when nothing refuses it, loses input that is not saved: the user is asked first.
    Q_INVOKABLE [[nodiscard]] bool losesEdits(BusyState::Action action) const;

Q_SIGNALS:
    void changed();

private:
    struct Work
    {
        int number = 0;
        QString title;
        Need need = Rows;
    };

    [[nodiscard]] QStringList titlesInTheWayOf(Action action) const;

    const std::function<bool()> m_isUpgrading;
    std::vector<Work> m_works; ///< in the order in which they began
    int m_lastNumber = 0;
};
