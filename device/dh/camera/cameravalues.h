// The values of the image page by key.
#pragma once

#include "device/dh/camera/cameralists.h"
#include "device/dh/camera/camerastate.h"

#include <QVariant>

/// The lists of choices of a camera.
struct CameraOptions
{
    /// The lists have those names that `capabilities` reports as supported. Keeps no reference.
    CameraOptions(const ValueTables &tables, const sdk::CameraCapabilities &capabilities);

    OfferedValues switchModes;
    OfferedValues antiFlickerTypes;
    OfferedValues exposureTypes;
    OfferedValues backModes;
    OfferedValues whiteBalanceTypes;
    OfferedValues dayNightTypes;
    OfferedValues defogModes;
    OfferedValues lightControls;
    OfferedValues mixedLights;
};

/// A reported range if its minimum is less than its maximum, otherwise 0 to 100.
[[nodiscard]] sdk::ValueRange usableRange(sdk::ValueRange reported);

/// The value of a key of the image page, see CameraKey; sends no request. Invalid for an unknown key, and
/// for a channel name that was not read.
///
/// The key of a group returns a map with "support" (bool), "unread" (bool: the camera has the group but its
/// item was not read), the values by sub-key, the lists ("allExposureType", ...), "ranges" (map of {"min",
/// "max"} by sub-key of each slider; only if there are any) and "missing" (sub-keys that the camera lacks;
/// only if there are any). A value that is chosen from one of the lists is an index, -1 if it is not in the
/// list; CameraSetting states the types of the other values. The values of a group without "support" have no
/// meaning.
[[nodiscard]] QVariant cameraValue(const QString &key, const CameraState &state, const ValueTables &tables);
