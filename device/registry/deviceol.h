#pragma once

#include "device/registry/devicebase.h"

/// The back end of the family "ol", which has no operations yet: each operation is the default of
/// CDeviceBase.
class CDeviceOL : public CDeviceBase
{
    Q_OBJECT
public:
    using CDeviceBase::CDeviceBase;
};
