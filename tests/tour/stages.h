// The stages of the tour. Each of them is one start of the application, which steps then drive as a user
// does.
#pragma once

#include <QString>

#include <functional>

class Driver;

namespace sdk::demo {
class DemoSite;
}

/// One stage.
struct Stage
{
    QString name;
    QString scene = {};     ///< the simulated site; empty: the real network
    QString password = {};  ///< of the search settings
    bool continues = false; ///< keeps the settings of the previous stage
    int minutes = 22;       ///< after which it has failed
    std::function<void(Driver &driver, sdk::demo::DemoSite *site)> drive;
    /// Closes the application at the end; empty: with the button of the window.
    std::function<void(Driver &driver)> leave = {};
    bool isReplaced = false; ///< by another process at the end, which writes its result
};

/// In the order of execution. The first stages represent users with their tasks.
[[nodiscard]] const QList<Stage> &stagesOfTour();

/// The stage with this name, also "soak", which is not part of the tour; null if there is none.
[[nodiscard]] const Stage *stageOfTour(const QString &name);

/// The language to which the stage "system" changes from `language`.
[[nodiscard]] QString otherLanguage(const QString &language);

/// Exists in the folder of a stage while the application restarts in another language.
[[nodiscard]] QString restartFile(const QString &folder);
