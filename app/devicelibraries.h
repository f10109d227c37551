// Closed device libraries next to the application.
#pragma once

#include "sdk/sdklibraries.h"

#include <QString>

/// Name of the binding file, which lists the libraries and their functions.
inline constexpr const char *bindingFileName = "devicelibraries.txt";

/// Loads the libraries of the binding file in `folder` into all members of `libraries` except the clock.
/// Returns false if there is no binding file. If the libraries cannot be loaded, returns true, leaves
/// `libraries` unchanged and sets `error` to a sentence in the user's language.
bool bindDeviceLibraries(const QString &folder, sdk::SdkLibraries &libraries, QString &error);
