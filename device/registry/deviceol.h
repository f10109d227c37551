#pragma once

#include "device/registry/devicebase.h"

/// A family without operations.
class CDeviceOL : public CDeviceBase
{
    Q_OBJECT
public:
    using CDeviceBase::CDeviceBase;
};
