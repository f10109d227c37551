// The PDF file of a site report.
#pragma once

#include "report/sitedata.h"

/// Writes the report as a PDF file `path`, which is replaced: the findings and the latest 500 changes first,
/// then a block with the images and values of each device (of four streams at most). Images are scaled down
/// and stored as JPEG, and only one is in memory at a time. Requires the application object of a GUI
/// application. Returns the reason of a failure, in which case the file is unchanged; empty on success.
/// Blocks; any thread.
[[nodiscard]] QString saveSiteDocument(const SiteData &data, const QString &path);
