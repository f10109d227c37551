// The input for a site report.
#pragma once

#include <QString>
#include <QStringList>

/// The wanted report.
struct ReportOrder
{
    QString site;           ///< name of the site; must not be empty
    QString installer;      ///< may be empty
    QString folder;         ///< absolute path; created if it is missing
    QStringList identities; ///< names of the rows of the devices, in the order of the report
    bool wantsDocument = true;
    bool wantsWorkbook = true;
};
