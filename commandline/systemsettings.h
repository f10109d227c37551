// Settings of the subject "system".
#pragma once

#include "commandline/settings.h"

#include <QVariantMap>

namespace commandline {

/// Commands of Batches::configureSystem() that set values.
struct SystemPlan
{
    struct Step
    {
        QString command;
        QVariantMap data;
    };

    QString name; ///< pattern of the channel names, see NamePlan; empty if they are not changed
    QList<Step> steps;
    QString error; ///< in English; empty on success
};

/// The commands for these values.
[[nodiscard]] SystemPlan systemPlan(const QList<Assignment> &assignments);

} // namespace commandline
