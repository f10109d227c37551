#pragma once

#include <QObject>

/// The states and results of firmware upgrades (the int "upgraderes" of device rows), with their texts and
/// properties. Stateless. For QML and C++; parameters of type int are values of Result.
class UpgradeTools : public QObject
{
    Q_OBJECT
public:
    enum Result
    {
        // Running
        Restarting = -6, ///< waiting until the device has restarted
        Writing = -5,    ///< cannot be stopped
        Sending = -4,    ///< the firmware file
        Preparing = -3,  ///< checking the file and logging in
        Waiting = -2,    ///< until other upgrades are finished

        None = -1,   ///< no upgrade yet; as the result of a check: no reason against an upgrade
        Success = 0, ///< the device has responded with the new version

        // Failures that a retry does not solve
        NoFile = 1,
        FileMissing = 2,
        FileUnreadable = 3,
        FileEmpty = 4,
        FileTooLarge = 5,
        FileDamaged = 6,     ///< invalid header
        WrongModel = 7,      ///< the file is for other devices
        FirmwareRefused = 8, ///< by the device
        WrongPassword = 9,
        NoSuchAccount = 10,
        AccountLocked = 11,
        NotInitialised = 12,
        NotSupported = 13, ///< the device does not support upgrades, or is not initialised
        LineUnusable = 14, ///< of a document: the address is missing, or address or port is invalid
        ListedTwice = 15,  ///< of a document: an earlier line has the same device
        NotListed = 16,    ///< the device is no longer in the list

        // Failures that a retry may solve
        NoResponse = 20,
        DeviceBusy = 21,
        Failed = 22,         ///< the device has aborted the upgrade
        Stuck = 23,          ///< the device has not reported progress for too long
        NotBack = 24,        ///< the device has not responded since its restart
        KeptVersion = 25,    ///< the device has restarted with the old version
        Stopped = 26,        ///< by the user, before the device was changed
        Cut = 27,            ///< the application ended
        VersionUnknown = 28, ///< the device has restarted, but its version is unknown
        UnknownCertificate = 29,
        ChangedCertificate = 30,
    };
    Q_ENUM(Result)

    explicit UpgradeTools(QObject *parent = nullptr) : QObject(parent) {}

    Q_INVOKABLE [[nodiscard]] static bool isRunning(int result) { return result < None; }
    Q_INVOKABLE [[nodiscard]] static bool isFailure(int result) { return result > Success; }

    /// Whether the upgrade runs and can still be stopped.
    Q_INVOKABLE [[nodiscard]] static bool canStop(int result)
    {
        return isRunning(result) && result != Writing && result != Restarting;
    }

    /// Whether a retry may succeed.
    Q_INVOKABLE [[nodiscard]] static bool canTryAgain(int result) { return result >= NoResponse; }

    /// The state or result in the user's language; empty for None. The text for an unknown value contains its
    /// number. Any thread.
    Q_INVOKABLE [[nodiscard]] static QString text(int result);

    /// The result as StepOutcome::result: a LoginResult, another code of loginresult.h, or unusableLine.
    /// LoginResult::NotDone for states of running upgrades, Stopped, Cut and None.
    [[nodiscard]] static int batchResult(Result result);

    /// File name, without a folder, of the template of upgrade documents (workbooks with devices and firmware
    /// files) in the user's language.
    [[nodiscard]] static QString templateFileName();
};
