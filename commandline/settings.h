// Settings of devices by their names in the commands "get" and "set", as in "set encode main.bitRate=2048".
// Settings belong to a subject: "encode" (video and audio encoding), "image" (image of the camera) or
// "system".
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
    QVariant value; ///< a number or a text; a flag is "on" or "off"
};

/// The name of a setting and a description of its values, for the help.
struct SettingInfo
{
    QString name;
    QLatin1StringView values; ///< description of the values that can be set, in English
};

/// Splits "name=value" at the first "="; nullopt if the text has no "=" or begins with it. Spaces around the
/// name are removed, those around the value are not. The name is not checked.
[[nodiscard]] std::optional<Assignment> assignmentFrom(const QString &operand);

/// A subject whose settings are read and written in a session (an open login) with a device. `device` has the
/// operations of that session; the functions with this parameter run in the job of workInSession(). load()
/// and write() send requests and block; a failed request is reported in the outcome of workInSession().
struct SessionSubject
{
    /// The settings of the subject, regardless of the device.
    std::vector<SettingInfo> (*names)();

    /// Selects a channel (video input, from 0) and reads its settings from the device. Called before the
    /// functions below. Returns false, without a request, if the device has no such channel. Returns true
    /// also after a failed request: if SessionOperations::isDeviceAway() is true then, the functions below
    /// must not be called.
    bool (*load)(SessionOperations &device, int channel);

    /// The settings that load() has read, in the order of names(), without those that the device does not
    /// have. Sends no request.
    QList<SettingValue> (*read)(SessionOperations &device);

    /// The reason why the device does not accept a value, in English; empty if it does. The assignment has a
    /// name of names(). Sends no request.
    QString (*faultOf)(SessionOperations &device, const Assignment &assignment);

    /// Writes values to the device in their order. faultOf() is empty for each of them. Sends no further
    /// request once the session is lost; values that were sent before stay on the device.
    void (*write)(SessionOperations &device, const QList<Assignment> &assignments);
};

/// The subject "encode". The names of its settings start with "main." or "sub.", the stream of the channel.
[[nodiscard]] const SessionSubject &encodeSubject();
/// The subject "image". Some names have a group, as in "exposure.mode".
[[nodiscard]] const SessionSubject &imageSubject();

/// The settings of the subject "system" that can be set. They are not written in a session, but by batches:
/// see systemPlan().
[[nodiscard]] const std::vector<SettingInfo> &systemSettings();

/// The text of the help with the settings of all subjects: for the command "set" if `writable`, otherwise for
/// the command "get".
[[nodiscard]] QString settingsHelp(bool writable);

/// Selects the channel (from 0) of a session. `key` is the key of the current channel in the session's
/// values, EncodeKey::curChannel for "encode" or curVideoChannel for "image". Sends no request. Returns false
/// if the device has no such channel.
[[nodiscard]] bool selectChannel(SessionOperations &device, QLatin1StringView key, int channel);

/// True for "on", "1", "yes" and "true"; false for "off", "0", "no" and "false"; nullopt for other texts,
/// also for "ON".
[[nodiscard]] std::optional<bool> flagFrom(const QString &text);
/// "on" or "off".
[[nodiscard]] QString flagText(bool flag);

/// The index in `choices`, from 0, of the first choice that a text names; -1 if there is none. Case, spaces
/// and full stops are ignored: "h264" names "H.264". "x", "*", "_" and the multiplication sign are the same.
[[nodiscard]] qsizetype choiceIndex(const QStringList &choices, const QString &text);

} // namespace commandline
