// Settings of the subject "system".
#pragma once

#include "commandline/settings.h"

#include <QVariantMap>

namespace commandline {

/// The work that sets values of the subject "system".
struct SystemPlan
{
    /// A command of Batches::configureSystem().
    struct Step
    {
        QString command;
        QVariantMap data;
    };

    QString name;      ///< pattern of the channel names, see NamePlan; empty if they are not changed
    QList<Step> steps; ///< one batch each, in this order
    QString error;     ///< describes the first invalid value in English; empty on success
};

/// The work for these assignments, whose names are those of systemSettings(). Of assignments with the same
/// name, the last one counts. With an error, the other members are incomplete. Sends nothing.
[[nodiscard]] SystemPlan systemPlan(const QList<Assignment> &assignments);

} // namespace commandline
