#pragma once

#include <QString>

#include <functional>

/// Returns whether the firmware of a device is being upgraded. `device` is its "address:port" or the name of
/// its row. Any thread.
using UpgradeCheck = std::function<bool(const QString &device)>;
