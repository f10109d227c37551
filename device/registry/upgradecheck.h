#pragma once

#include <QString>

#include <functional>

/// Whether the firmware of the device at an address and port, or of a row's name, is being upgraded. Any
/// thread.
using UpgradeCheck = std::function<bool(const QString &device)>;
