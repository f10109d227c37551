// The workbook of a site report.
#pragma once

#include "report/sitedata.h"

/// Writes the report as a workbook (.xlsx) with the sheets of devices, findings, changes and streams to the
/// file `path`, which is replaced. Numbers and times are values, not texts. Returns the reason of a failure,
/// in which case the file is unchanged; empty on success. Blocks; any thread.
[[nodiscard]] QString saveSiteWorkbook(const SiteData &data, const QString &path);
