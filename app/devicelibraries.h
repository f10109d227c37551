// Closed device libraries next to the application.
#pragma once

#include "sdk/sdklibraries.h"

#include <QString>

/// Name of the binding file, which lists the libraries and their functions.
inline constexpr const char *bindingFileName = "devicelibraries.txt";

/// Loads the libraries that the binding file in `folder` lists, and replaces all members of `libraries` by
/// them except the clock, which is kept. Returns true if there is a binding file. If one of its libraries
/// cannot be loaded, `libraries` is unchanged and `error` is set to a sentence in the user's language;
/// otherwise `error` is unchanged. Returns false and changes nothing if there is no binding file.
bool bindDeviceLibraries(const QString &folder, sdk::SdkLibraries &libraries, QString &error);
