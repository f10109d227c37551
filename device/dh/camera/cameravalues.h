// The values of the camera image page by key.
#pragma once

#include "device/dh/camera/cameralists.h"
#include "device/dh/camera/camerastate.h"

#include <QVariant>

/// The lists of a camera.
struct CameraLists
{
    CameraLists(const ValueTables &tables, const sdk::CameraCapabilities &capabilities);

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

/// A range as a page can use it, whatever the device says.
[[nodiscard]] sdk::ValueRange usableRange(sdk::ValueRange told);

/// What a page shows for a key; invalid for one that is not read, and for a channel's name that was not read.
///
/// The key of a group gives a map: "support", "unread" for a group that the camera has but did not give, the
/// values under the sub-keys that they are set by, the lists
/// ("allExposureType", ...), and under "ranges" a map {"min", "max"} for each sub-key of a slider. A value
/// that is chosen from a list is its place there, -1 for none.
[[nodiscard]] QVariant cameraValue(const QString &key, const CameraState &state, const ValueTables &tables);
