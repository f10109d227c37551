// Conspicuous states of the devices of a site.
#pragma once

#include "report/sitedata.h"

/// A clock that differs from the host by more seconds than this is a finding.
inline constexpr qint64 clockTolerance = 30;

/// The findings of the devices, in the order of FindingKind and, for one kind, of the devices. A value that a
/// device has not reported causes no finding. Two devices have the same address if the ports are the same as
/// well, as in the device table: devices behind a router share its address. A device that the last search has
/// not found (ReportDevice::isLost) does not count for this finding.
[[nodiscard]] QList<Finding> siteFindings(const QList<ReportDevice> &devices);

/// Compares two versions by their numbers, from left to right: negative if `left` is older, 0 if all numbers
/// are the same, otherwise positive. "v2.10" is newer than "v2.9". A missing number is less than 0.
[[nodiscard]] int compareVersions(QStringView left, QStringView right);
