// Types of other folders under their names in the scene.
#pragma once

#include "device/addresstools.h"
#include "device/devicefactory.h"
#include "device/devicetablemodel.h"
#include "device/treemodel.h"

#include <QtQml/qqml.h>

struct CDeviceFactoryForeign
{
    Q_GADGET
    QML_FOREIGN(CDeviceFactory)
    QML_ANONYMOUS
};

struct DeviceTableModelForeign
{
    Q_GADGET
    QML_FOREIGN(DeviceTableModel)
    QML_NAMED_ELEMENT(DeviceTableModel)
};

struct OVTreeModelForeign
{
    Q_GADGET
    QML_FOREIGN(OVTreeModel)
    QML_NAMED_ELEMENT(OVTreeModel)
};

struct AddressToolsForeign
{
    Q_GADGET
    QML_FOREIGN(AddressTools)
    QML_NAMED_ELEMENT(AddressTools)
    QML_SINGLETON
};
