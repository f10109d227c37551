// The libraries of a device maker that stand beside the program.
#pragma once

#include "sdk/sdklibraries.h"

#include <QString>

/// The name of the file that names them (sdk/binding/bindingfile.h).
inline constexpr const char *bindingFileName = "devicelibraries.txt";

/// Fills every role but the clock from the binding file in `folder`. False if there is none. If the libraries
/// cannot be used, `libraries` stays as it is and `complaint` is set to a sentence for the user.
bool bindDeviceLibraries(const QString &folder, sdk::SdkLibraries &libraries, QString &complaint);
