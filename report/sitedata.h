// The contents of a site report.
#pragma once

#include "device/registry/beforeimages.h"
#include "device/registry/deviceinspection.h"
#include "device/registry/devicestep.h"

#include <QDateTime>
#include <QList>
#include <QString>

/// The current image of a channel.
struct ReportImage
{
    int channel = 0; ///< from 0
    QString name;    ///< of the channel; empty for the only channel of a device
    QString path;    ///< of a JPEG file; empty without an image
    QString message; ///< why there is no image, in the user's language
};

/// A device of the report: its row, and the values that it has reported.
struct ReportDevice
{
    QString identity; ///< name of its row
    QString ipport;   ///< "address:port"
    QString address;  ///< without the port
    QString mac;      ///< empty if the device has not reported one
    QString name;
    QString type;
    QString model;
    QString version; ///< with the prefix "v"; empty if unknown
    QString serial;  ///< empty if unknown
    bool isInitialised = true;
    bool isLost = false; ///< the last search has not found the device

    /// Of the login and of the requests for values.
    StepOutcome outcome = {.result = resultCode(LoginResult::NotDone), .text = {}};
    /// The login succeeded: `inspection` has the values of the device. False also if a different device has
    /// responded at a shared address; the results are then left out.
    bool isRead = false;
    DeviceInspection inspection = {};

    QList<ReportImage> images = {}; ///< by channel
    int channelCount = 0; ///< channels of the device, 0 if unknown; images are taken of the first ones only
    QList<BeforeImages::Image> imagesBefore = {}; ///< from before its first change, by channel

    /// The title of the device for the user: its name, or its model without a name.
    [[nodiscard]] const QString &title() const { return name.isEmpty() ? model : name; }
};

enum class FindingKind
{
    NotInitialised,
    DuplicateAddress, ///< another device of the report has the same address and port
    LoginRefused,     ///< wrong account or password, account locked or in use
    NotReached,   ///< any other failure, except a running upgrade; not for a device that is not initialised
    ClockOff,     ///< by more than clockTolerance
    OldFirmware,  ///< older than that of another device of the same model in the report
    NoTimeServer, ///< the device does not use a time server
};

/// A conspicuous state of a device.
struct Finding
{
    FindingKind kind = FindingKind::NotInitialised;
    qsizetype device = 0; ///< index in SiteData::devices
    QString text;         ///< details in the user's language; may be empty

    bool operator==(const Finding &) const = default;
};

/// A change of a device since the start of the application, or by an earlier command of the same visit.
struct VisitChange
{
    QDateTime time;
    QString identity;  ///< name of the row of the device
    QString ipport;    ///< address and port at the time of the change
    QString device;    ///< name and model
    QString operation; ///< in the user's language
    QString value;     ///< the new value in the user's language; may be empty
};

/// Everything that a report shows.
struct SiteData
{
    QString site;      ///< name of the site
    QString installer; ///< may be empty
    QDateTime time;
    QList<ReportDevice> devices = {};
    QList<Finding> findings = {};    ///< by kind, then by device
    QList<VisitChange> changes = {}; ///< oldest first
    qsizetype droppedChanges = 0;    ///< older changes that were not kept

    /// The findings of each device, by its index in `devices`.
    [[nodiscard]] QList<QList<Finding>> findingsByDevice() const
    {
        QList<QList<Finding>> found(devices.size());
        for (const Finding &finding : findings)
            found[finding.device].append(finding);
        return found;
    }
};
