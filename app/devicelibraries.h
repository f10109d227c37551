// Closed device libraries next to the application.
#pragma once

#include "sdk/sdklibraries.h"

#include <QString>

/// Name of the binding file, which lists the libraries and their functions.
inline constexpr const char *bindingFileName = "devicelibraries.txt";

/// Loads the libraries that the binding file in `folder` lists, and replaces all members of `libraries` by
/// them except the clock, which is kept. Returns false and changes nothing if there is no binding file,
/// otherwise true, also on an error: if the file is invalid or one of its libraries cannot be loaded,
/// `libraries` is unchanged and `error` is set to a sentence in the user's language. On success `error` is
/// unchanged. The libraries stay loaded until the process ends.
bool bindDeviceLibraries(const QString &folder, sdk::SdkLibraries &libraries, QString &error);
