// Logs in to one device to make its row.
#pragma once

#include "device/registry/devicestep.h"
#include "device/registry/loginresult.h"
#include "sdk/sdklibraries.h"
#include "sdk/searchblocks.h"

#include <QJsonObject>
#include <QString>

#include <optional>

/// How a device is reached.
enum class ReachedBy : int
{
    Address = 0, ///< by its IPv4 address or host name
    P2P = 1,     ///< by its P2P ID, through a local port of the port agent
};

/// Parameters of loginForRow().
struct RowLoginRequest
{
    QString address; ///< IPv4 address or host name; with P2P: the P2P ID
    QString account;
    QString password;
    int port = 0; ///< port of the device, or local port of the tunnel
    ReachedBy reachedBy = ReachedBy::Address;
    QString devicePort; ///< with P2P: port of the device itself, as decimal text
};

/// Result of loginForRow().
struct RowLoginOutcome
{
    LoginResult result = LoginResult::Unknown;
    /// By DeviceRowKey, with account and password; empty unless `result` is Success. The store sets "num".
    QJsonObject row;
    std::optional<sdk::SearchResponse> record; ///< response to a directed search of the address; not with P2P
};

/// Logs in, queries the values of a row, and logs out; changes no stored row. The last query is a directed
/// search: a search request to this address only. Blocks for the timeouts of the library, up to 5 s for each
/// query. A query that fails leaves its part of the row empty and does not change the result; the web port is
/// 80 then. NotDone if `control` ends the step before the last but one query (the ports of services). If it
/// ends during that query, only the directed search is left out. Any thread.
[[nodiscard]] RowLoginOutcome loginForRow(const sdk::SdkLibraries &libraries, const RowLoginRequest &request,
                                          const StepControl &control = StepControl());
