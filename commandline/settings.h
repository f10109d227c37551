// Settings of devices by their names in the commands "get" and "set".
#pragma once

#include "device/registry/pagestep.h"

#include <QLatin1StringView>
#include <QList>
#include <QString>
#include <QVariant>

#include <optional>
#include <vector>

namespace commandline {

/// A value that a command sets.
struct Assignment
{
    QString name;
    QString value;
};

/// A value that was read.
struct SettingValue
{
    QString name;
    QVariant value;
};

/// A name of a setting with its values, for the help.
struct SettingInfo
{
    QString name;
    QLatin1StringView values;
};

/// Splits "name=value"; nullopt without a name or without "=".
[[nodiscard]] std::optional<Assignment> assignmentFrom(const QString &operand);

/// A subject whose settings are read and written in a session with a device. The functions run on any thread
/// and send requests to the device, except names().
struct SessionSubject
{
    std::vector<SettingInfo> (*names)();

    /// Selects a channel (from 0) and reads its settings from the device. Returns false, without a request,
    /// if the device has no such channel.
    bool (*load)(SessionOperations &device, int channel);

    /// The settings that were read, in the order of names(). Without those that the device does not have.
    QList<SettingValue> (*read)(SessionOperations &device);

    /// Why the device does not take a value, in English; empty if it does.
    QString (*faultOf)(SessionOperations &device, const Assignment &assignment);

    /// Writes values that have no fault.
    void (*write)(SessionOperations &device, const QList<Assignment> &assignments);
};

[[nodiscard]] const SessionSubject &encodeSubject();
[[nodiscard]] const SessionSubject &imageSubject();

/// The settings of the subject "system" that can be set.
[[nodiscard]] const std::vector<SettingInfo> &systemSettings();

/// The names and values of all subjects; `writable` for those that can be set.
[[nodiscard]] QString settingsHelp(bool writable);

/// Selects a channel (from 0) by a key of EncodeKey. Returns false if the device has no such channel.
[[nodiscard]] bool selectChannel(SessionOperations &device, QLatin1StringView key, int channel);

/// The texts of on and off.
[[nodiscard]] std::optional<bool> flagFrom(const QString &text);
[[nodiscard]] QString flagText(bool flag);

/// The index of the choice that a text names. The case, spaces and the sign between width and height are
/// ignored. -1 if there is none.
[[nodiscard]] qsizetype choiceIndex(const QStringList &choices, const QString &text);

} // namespace commandline
