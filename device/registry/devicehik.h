#pragma once

#include "device/registry/devicebase.h"

/// A family without operations.
class CDeviceHik : public CDeviceBase
{
    Q_OBJECT
public:
    using CDeviceBase::CDeviceBase;
};
