#pragma once

#include <QObject>

/// What an upgrade of a device's firmware has come to, as rows hold it under "upgraderes", and what the scene
/// is to know of it.
class UpgradeTools : public QObject
{
    Q_OBJECT
public:
    enum Result
    {
        // On the way
        Restarting = -6, ///< waiting for the device to come back
        Writing = -5,    ///< cannot be stopped
        Sending = -4,
        Preparing = -3, ///< the file is looked at, the device logged in to
        Waiting = -2,   ///< until others are done

        None = -1,
        Success = 0, ///< the device has answered with the new version

        // What trying again does not mend
        NoFile = 1,
        FileMissing = 2,
        FileUnreadable = 3,
        FileEmpty = 4,
        FileTooLarge = 5,
        FileDamaged = 6, ///< its head makes no sense
        WrongModel = 7,  ///< the file is for other devices
        FirmwareRefused = 8,
        WrongPassword = 9,
        NoSuchAccount = 10,
        AccountLocked = 11,
        NotInitialised = 12,
        NotSupported = 13,
        LineUnusable = 14, ///< of a document: no address, or one that is none
        ListedTwice = 15,  ///< of a document: an earlier line names the same device

        // What it may
        NoAnswer = 20,
        DeviceBusy = 21,
        Failed = 22, ///< the device gave it up
        Stuck = 23,  ///< the device told nothing for too long
        NotBack = 24,
        KeptVersion = 25,
        Stopped = 26,
        Cut = 27,            ///< the program ended
        VersionUnknown = 28, ///< the device is back, and nothing says which firmware it has
        UnknownCertificate = 29,
        ChangedCertificate = 30,
    };
    Q_ENUM(Result)

    explicit UpgradeTools(QObject *parent = nullptr) : QObject(parent) {}

    Q_INVOKABLE [[nodiscard]] static bool isRunning(int result) { return result < None; }
    Q_INVOKABLE [[nodiscard]] static bool isFailure(int result) { return result > Success; }

    /// Whether stopping is still possible.
    Q_INVOKABLE [[nodiscard]] static bool canStop(int result)
    {
        return isRunning(result) && result != Writing && result != Restarting;
    }

    /// Whether the same may go well another time.
    Q_INVOKABLE [[nodiscard]] static bool canTryAgain(int result) { return result >= NoAnswer; }

    /// In the user's language; empty for None. Thread-safe.
    Q_INVOKABLE [[nodiscard]] static QString text(int result);

    /// The result as batches have it, whose codes are those of a login and some more: a wrong password is one
    /// to them, whatever was to be done. What is on the way is not done yet.
    [[nodiscard]] static int batchResult(Result result);

    /// Of the workbook that upgrades by document begin from, in the user's language.
    [[nodiscard]] static QString templateFileName();
};
