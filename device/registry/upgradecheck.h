#pragma once

#include <QString>

#include <functional>

/// Returns whether the firmware of a device is being upgraded, so that requests could disturb it. The owner
/// of the function states whether `device` is the "address:port" or the name of its row. Any thread.
using UpgradeCheck = std::function<bool(const QString &device)>;
