#pragma once

#include "device/devicebase.h"

/// A family that is declared and does nothing yet.
class CDeviceOL : public CDeviceBase
{
    Q_OBJECT
public:
    using CDeviceBase::CDeviceBase;
};
