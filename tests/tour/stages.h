// The stages of the tour: each is one start of the program.
#pragma once

#include <QString>

#include <functional>

class Driver;

namespace sdk::demo {
class DemoSite;
}

struct Stage
{
    QString name;
    QString scene = {};    ///< the simulated site; empty: none, but the network
    QString password = {}; ///< of the search settings
    bool goesOn = false;   ///< with the settings that the stage before has left
    std::function<void(Driver &driver, sdk::demo::DemoSite *site)> drive;
    std::function<void(Driver &driver)> leave =
        {}; ///< out of the program; empty: with the button of the window
};

/// In their order. The first ones are users with the work that each has to do.
[[nodiscard]] const QList<Stage> &stagesOfTour();

/// The stage with this name, null when there is none.
[[nodiscard]] const Stage *stageOfTour(const QString &name);
