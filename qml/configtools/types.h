// QML names of types from other folders, which do not use QML. Each structure registers the type of
// QML_FOREIGN under the name of QML_NAMED_ELEMENT. A type with QML_ANONYMOUS has no name: QML only gets
// objects of it. Objects of a type with QML_UNCREATABLE are published as context properties ("...Api") or
// returned by other objects. QML creates the only object of a type with QML_SINGLETON.
#pragma once

#include "device/batch/addressplan.h"
#include "device/batch/batches.h"
#include "device/batch/batchhistory.h"
#include "device/batch/batchpreview.h"
#include "device/batch/batchresultmodel.h"
#include "device/batch/initialisationpreview.h"
#include "device/batch/nameplan.h"
#include "device/batch/upgradepreview.h"
#include "device/forms/cameraform.h"
#include "device/forms/channelnameform.h"
#include "device/forms/encodeform.h"
#include "device/forms/systemtools.h"
#include "device/models/accountlist.h"
#include "device/models/batchreport.h"
#include "device/models/busyreport.h"
#include "device/models/certificatelist.h"
#include "device/models/checkablerows.h"
#include "device/models/devicedetailmodel.h"
#include "device/models/deviceselection.h"
#include "device/models/devicetablemodel.h"
#include "device/models/dialogrows.h"
#include "device/models/failedmarks.h"
#include "device/models/favouritelistmodel.h"
#include "device/models/liveorder.h"
#include "device/models/treemodel.h"
#include "device/models/treerows.h"
#include "device/models/watcheddevices.h"
#include "device/registry/bytetext.h"
#include "device/registry/devicefactory.h"
#include "device/registry/upgradetools.h"
#include "device/search/addresstools.h"
#include "device/search/searchreports.h"
#include "device/sites/knowndevices.h"
#include "device/store/devicenotes.h"
#include "device/work/devicework.h"
#include "device/work/livesession.h"
#include "device/work/sessionwork.h"
#include "gallery/imagegallery.h"
#include "report/sitereport.h"

#include <QtQml/qqml.h>

struct CDeviceFactoryForeign
{
    Q_GADGET
    QML_FOREIGN(CDeviceFactory)
    QML_ANONYMOUS
};

struct SiteReportForeign
{
    Q_GADGET
    QML_FOREIGN(SiteReport)
    QML_NAMED_ELEMENT(SiteReport)
    QML_UNCREATABLE("there is one instance per application")
};

struct DeviceNotesForeign
{
    Q_GADGET
    QML_FOREIGN(DeviceNotes)
    QML_NAMED_ELEMENT(DeviceNotes)
    QML_UNCREATABLE("there is one instance per application")
};

struct KnownDevicesForeign
{
    Q_GADGET
    QML_FOREIGN(KnownDevices)
    QML_NAMED_ELEMENT(KnownDevices)
    QML_UNCREATABLE("there is one instance per application")
};

struct DeviceTableModelForeign
{
    Q_GADGET
    QML_FOREIGN(DeviceTableModel)
    QML_NAMED_ELEMENT(DeviceTableModel)
};

struct DeviceDetailModelForeign
{
    Q_GADGET
    QML_FOREIGN(DeviceDetailModel)
    QML_NAMED_ELEMENT(DeviceDetailModel)
};

struct DialogRowsForeign
{
    Q_GADGET
    QML_FOREIGN(DialogRows)
    QML_ANONYMOUS
};

struct CheckableRowsForeign
{
    Q_GADGET
    QML_FOREIGN(CheckableRows)
    QML_ANONYMOUS
};

struct DeviceSelectionForeign
{
    Q_GADGET
    QML_FOREIGN(DeviceSelection)
    QML_NAMED_ELEMENT(DeviceSelection)
};

struct BatchPreviewForeign
{
    Q_GADGET
    QML_FOREIGN(BatchPreview)
    QML_NAMED_ELEMENT(BatchPreview)
};

struct InitialisationPreviewForeign
{
    Q_GADGET
    QML_FOREIGN(InitialisationPreview)
    QML_NAMED_ELEMENT(InitialisationPreview)
};

struct UpgradePreviewForeign
{
    Q_GADGET
    QML_FOREIGN(UpgradePreview)
    QML_NAMED_ELEMENT(UpgradePreview)
};

struct AddressPlanForeign
{
    Q_GADGET
    QML_FOREIGN(AddressPlan)
    QML_NAMED_ELEMENT(AddressPlan)
};

struct NamePlanForeign
{
    Q_GADGET
    QML_FOREIGN(NamePlan)
    QML_NAMED_ELEMENT(NamePlan)
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

struct FavouriteListModelForeign
{
    Q_GADGET
    QML_FOREIGN(FavouriteListModel)
    QML_NAMED_ELEMENT(FavouriteListModel)
};

struct BatchForeign
{
    Q_GADGET
    QML_FOREIGN(Batch)
    QML_NAMED_ELEMENT(Batch)
    QML_UNCREATABLE("created by Batches")
};

struct BatchesForeign
{
    Q_GADGET
    QML_FOREIGN(Batches)
    QML_NAMED_ELEMENT(Batches)
    QML_UNCREATABLE("there is one instance per application")
};

struct BatchHistoryForeign
{
    Q_GADGET
    QML_FOREIGN(BatchHistory)
    QML_NAMED_ELEMENT(BatchHistory)
};

struct BatchResultModelForeign
{
    Q_GADGET
    QML_FOREIGN(BatchResultModel)
    QML_NAMED_ELEMENT(BatchResultModel)
};

struct BatchReportForeign
{
    Q_GADGET
    QML_FOREIGN(BatchReport)
    QML_NAMED_ELEMENT(BatchReport)
};

struct LiveOrderForeign
{
    Q_GADGET
    QML_FOREIGN(LiveOrder)
    QML_NAMED_ELEMENT(LiveOrder)
};

struct WatchedDevicesForeign
{
    Q_GADGET
    QML_FOREIGN(WatchedDevices)
    QML_NAMED_ELEMENT(WatchedDevices)
};

struct LiveSessionForeign
{
    Q_GADGET
    QML_FOREIGN(LiveSession)
    QML_NAMED_ELEMENT(LiveSession)
};

struct ImageGalleryForeign
{
    Q_GADGET
    QML_FOREIGN(ImageGallery)
    QML_NAMED_ELEMENT(ImageGallery)
};

struct FailedMarksForeign
{
    Q_GADGET
    QML_FOREIGN(FailedMarks)
    QML_NAMED_ELEMENT(FailedMarks)
};

struct BusyStateForeign
{
    Q_GADGET
    QML_FOREIGN(BusyState)
    QML_NAMED_ELEMENT(BusyState)
    QML_UNCREATABLE("there is one instance per application")
};

struct BusyReportForeign
{
    Q_GADGET
    QML_FOREIGN(BusyReport)
    QML_NAMED_ELEMENT(BusyReport)
};

struct ByteTextForeign
{
    Q_GADGET
    QML_FOREIGN(ByteText)
    QML_NAMED_ELEMENT(ByteText)
    QML_SINGLETON
};

struct CertificateListForeign
{
    Q_GADGET
    QML_FOREIGN(CertificateList)
    QML_NAMED_ELEMENT(CertificateList)
    QML_UNCREATABLE("there is one instance per application")
};

struct AccountListForeign
{
    Q_GADGET
    QML_FOREIGN(AccountList)
    QML_NAMED_ELEMENT(AccountList)
    QML_UNCREATABLE("there is one instance per application")
};

struct ChannelNameFormForeign
{
    Q_GADGET
    QML_FOREIGN(ChannelNameForm)
    QML_NAMED_ELEMENT(ChannelNameForm)
};

struct CameraFormForeign
{
    Q_GADGET
    QML_FOREIGN(CameraForm)
    QML_NAMED_ELEMENT(CameraForm)
};

struct DeviceTreeRowsForeign
{
    Q_GADGET
    QML_FOREIGN(DeviceTreeRows)
    QML_NAMED_ELEMENT(DeviceTreeRows)
};

struct SearchReportsForeign
{
    Q_GADGET
    QML_FOREIGN(SearchReports)
    QML_NAMED_ELEMENT(SearchReports)
    QML_UNCREATABLE("there is one instance per application")
};

struct SystemToolsForeign
{
    Q_GADGET
    QML_FOREIGN(SystemTools)
    QML_NAMED_ELEMENT(SystemTools)
    QML_SINGLETON
};

struct UpgradeToolsForeign
{
    Q_GADGET
    QML_FOREIGN(UpgradeTools)
    QML_NAMED_ELEMENT(UpgradeTools)
    QML_SINGLETON
};

struct EncodeFormForeign
{
    Q_GADGET
    QML_FOREIGN(EncodeForm)
    QML_NAMED_ELEMENT(EncodeForm)
};

struct DeviceWorkForeign
{
    Q_GADGET
    QML_FOREIGN(DeviceWork)
    QML_NAMED_ELEMENT(DeviceWork)
};

struct SessionWorkForeign
{
    Q_GADGET
    QML_FOREIGN(SessionWork)
    QML_NAMED_ELEMENT(SessionWork)
};
