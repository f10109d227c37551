#pragma once

#include "device/registry/devicebase.h"

/// The back end of the family "hik", which has no operations yet: each operation is the default of
/// CDeviceBase.
class CDeviceHik : public CDeviceBase
{
    Q_OBJECT
public:
    using CDeviceBase::CDeviceBase;
};
