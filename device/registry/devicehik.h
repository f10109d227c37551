#pragma once

#include "device/registry/devicebase.h"

/// A family that is declared and does nothing yet.
class CDeviceHik : public CDeviceBase
{
    Q_OBJECT
public:
    using CDeviceBase::CDeviceBase;
};
