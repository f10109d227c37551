// Settings of the subject "system" of the command "set": time, time server, video standard, automatic reboot
// and name.
#pragma once

#include "commandline/settings.h"

#include <QVariantMap>

namespace commandline {

/// The work that sets values of the subject "system".
struct SystemPlan
{
    /// A command for all devices, which Batches::configureSystem() sends in one batch.
    struct Step
    {
        QString command;  ///< a SystemCommand
        QVariantMap data; ///< its parameters, by SystemDataKey
    };

    /// The name of channel 1 of cameras, with placeholders such as "{n}" for a number; empty: not changed.
    QString name;
    QList<Step> steps; ///< one batch each: time, time server, video standard, automatic reboot, in this order
    QString error;     ///< describes one invalid or missing value in English; empty on success
};

/// The work for these assignments, whose names are those of systemSettings(). Settings of one command become
/// one step, such as all names with "ntp."; a missing optional one of them gets its default. Of assignments
/// with the same name, the last one counts. With an error, the other members are incomplete. Sends nothing.
[[nodiscard]] SystemPlan systemPlan(const QList<Assignment> &assignments);

} // namespace commandline
